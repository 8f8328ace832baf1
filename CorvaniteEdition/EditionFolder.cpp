// SPDX-License-Identifier: Apache-2.0

#include "EditionFolder.h"

#include "EditionFiles.h"

#include <QDir>
#include <QFileInfo>

namespace {

std::expected<std::optional<EditionDocument>, Finding> readDocument(const QString& folder,
                                                                    QLatin1StringView name)
{
    const QString path = EditionFiles::pathIn(folder, name);
    if (!QFileInfo::exists(path)) {
        return std::nullopt;
    }
    const auto bytes = EditionFiles::read(path);
    if (!bytes) {
        return std::unexpected(bytes.error());
    }
    auto document = EditionDocument::read(path, *bytes);
    if (!document) {
        return std::unexpected(document.error());
    }
    return *std::move(document);
}

} // namespace

std::expected<EditionFolder, Finding> EditionFolder::read(const QString& path)
{
    if (!QFileInfo(path).isDir()) {
        return std::unexpected(
            Finding{Finding::Severity::Error, path, QString(),
                    u"不是文件夹：请写放着 %1 的文件夹"_qs.arg(EditionDocument::packName)});
    }
    auto pack = readDocument(path, EditionDocument::packName);
    auto retired = readDocument(path, EditionDocument::retiredName);
    auto appVersion = readDocument(path, EditionDocument::appVersionName);
    for (const auto* document : {&pack, &retired, &appVersion}) {
        if (!*document) {
            return std::unexpected(document->error());
        }
    }
    return EditionFolder{.path = path,
                         .pack = *std::move(pack),
                         .retired = *std::move(retired),
                         .appVersion = *std::move(appVersion)};
}

QList<EditionDocument> EditionFolder::documents() const
{
    QList<EditionDocument> all;
    for (const auto* document : {&pack, &retired, &appVersion}) {
        if (*document) {
            all.append(**document);
        }
    }
    return all;
}
