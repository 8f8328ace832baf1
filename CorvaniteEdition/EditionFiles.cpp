// SPDX-License-Identifier: Apache-2.0

#include "EditionFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <memory>
#include <vector>

namespace {

Finding trouble(const QString& path, const QString& text)
{
    return {Finding::Severity::Error, path, QString(), text};
}

Finding notWritten(const QString& path, const QString& reason)
{
    return trouble(path, u"写不了（%1）：请核对权限和磁盘空间"_qs.arg(reason));
}

bool write(QSaveFile& file, const QByteArray& bytes)
{
    constexpr auto readByAll = QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                               QFileDevice::ReadGroup | QFileDevice::ReadOther;
    return file.open(QIODevice::WriteOnly) && file.setPermissions(readByAll) &&
           file.write(bytes) == bytes.size() && file.flush();
}

} // namespace

QString EditionFiles::pathIn(const QString& folder, QAnyStringView name)
{
    return QDir(folder).filePath(name.toString());
}

std::expected<QByteArray, Finding> EditionFiles::read(const QString& path)
{
    if (!QFileInfo::exists(path)) {
        return std::unexpected(trouble(path, u"没有这个文件：请核对路径"_qs));
    }
    if (!QFileInfo(path).isFile()) {
        return std::unexpected(trouble(path, u"不是普通文件：请核对路径"_qs));
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::unexpected(trouble(path, u"读不了：请核对权限"_qs));
    }
    const QByteArray bytes = file.read(maximumBytes + 1);
    if (file.error() != QFileDevice::NoError) {
        return std::unexpected(trouble(path, u"读到一半出错：请核对磁盘"_qs));
    }
    if (bytes.size() > maximumBytes) {
        return std::unexpected(trouble(path, u"超过 16 MiB，程序不会读：请核对文件"_qs));
    }
    return bytes;
}

std::optional<Finding> EditionFiles::replace(const QList<NewFile>& files)
{
    std::vector<std::unique_ptr<QSaveFile>> written;
    for (const NewFile& file : files) {
        const QString folder = QFileInfo(file.path).path();
        if (!QDir().mkpath(folder)) {
            return notWritten(folder, u"文件夹没有建成"_qs);
        }
        written.push_back(std::make_unique<QSaveFile>(file.path));
        if (!write(*written.back(), file.bytes)) {
            return notWritten(file.path, written.back()->errorString());
        }
    }
    for (const auto& file : written) {
        if (!file->commit()) {
            return notWritten(file->fileName(), file->errorString());
        }
    }
    return std::nullopt;
}
