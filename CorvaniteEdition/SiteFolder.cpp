// SPDX-License-Identifier: Apache-2.0

#include "SiteFolder.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace {

/// In the order in which they are replaced.
constexpr std::array siteNames{EditionDocument::retiredName, EditionDocument::appVersionName,
                               EditionDocument::packName, SiteFolder::sumsName};

/// As `sha256sum --check` reads it.
QByteArray sumLine(const QByteArray& bytes, QLatin1StringView name)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex() + "  " +
           name.data() + '\n';
}

QList<EditionFiles::NewFile> filesOf(const EditionFolder& edition, const QString& folder)
{
    QList<EditionFiles::NewFile> files;
    QByteArray sums;
    const auto add = [&](const std::optional<EditionDocument>& document, QLatin1StringView name) {
        if (document) {
            files.append({EditionFiles::pathIn(folder, name), document->bytes});
            sums += sumLine(document->bytes, name);
        }
    };
    add(edition.retired, EditionDocument::retiredName);
    add(edition.appVersion, EditionDocument::appVersionName);
    add(edition.pack, EditionDocument::packName);
    files.append({EditionFiles::pathIn(folder, SiteFolder::sumsName), sums});
    return files;
}

/// What lies in the folder, to the byte and whatever it is, as files of another one.
std::expected<QList<EditionFiles::NewFile>, Finding> copyOf(const QString& folder,
                                                            const QString& other)
{
    QList<EditionFiles::NewFile> files;
    for (const QLatin1StringView name : siteNames) {
        const QString path = EditionFiles::pathIn(folder, name);
        if (!QFileInfo::exists(path)) {
            continue;
        }
        const auto bytes = EditionFiles::read(path);
        if (!bytes) {
            return std::unexpected(bytes.error());
        }
        files.append({EditionFiles::pathIn(other, name), *bytes});
    }
    return files;
}

} // namespace

QString SiteFolder::previousOf(const QString& folder)
{
    return QDir::cleanPath(folder) + u".previous"_qs;
}

std::optional<Finding> SiteFolder::layOut(const EditionFolder& edition, const QString& folder)
{
    const auto files = filesOf(edition, folder);
    const auto previous = copyOf(folder, previousOf(folder));
    if (!previous) {
        return previous.error();
    }
    using EditionFiles::NewFile;
    const bool isSame = std::ranges::equal(files, *previous, {}, &NewFile::bytes, &NewFile::bytes);
    if (!isSame && !previous->isEmpty()) {
        if (auto trouble = EditionFiles::replace(*previous)) {
            return trouble;
        }
    }
    return EditionFiles::replace(files);
}
