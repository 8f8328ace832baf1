// SPDX-License-Identifier: Apache-2.0

#include "FileError.h"

#include <cerrno>
#include <system_error>
#include <utility>

FileError FileError::fromSystemError(int systemError)
{
    switch (systemError) {
    case EACCES:
    case EPERM:
        return {Reason::PermissionDenied, systemError};
    case ENOSPC:
    case EDQUOT:
        return {Reason::NoSpace, systemError};
    case EROFS:
        return {Reason::ReadOnly, systemError};
    case EBUSY:
    case ETXTBSY:
    case EISDIR:
    case ELOOP:
    case ENODEV:
    case ENXIO:
        return {Reason::NotARegularFile, systemError};
    case ENOENT:
    case ENOTDIR:
        return {Reason::FolderMissing, systemError};
    case EIO:
        return {Reason::InputOutput, systemError};
    default:
        return {Reason::Other, systemError};
    }
}

QString FileError::localizedDescription() const
{
    switch (reason) {
    case Reason::PermissionDenied:
        return QStringLiteral("没有写入权限；请检查数据目录的权限。");
    case Reason::ReadPermissionDenied:
        return QStringLiteral("没有读取权限；请检查数据目录的权限。");
    case Reason::NoSpace:
        return QStringLiteral("磁盘空间不足；腾出一些空间后再试。");
    case Reason::ReadOnly:
        return QStringLiteral("磁盘只读，无法写入。");
    case Reason::NotARegularFile:
        return QStringLiteral("文件被占用或不是普通文件。");
    case Reason::FolderMissing:
        return QStringLiteral("数据目录不存在，也无法创建。");
    case Reason::InputOutput:
        return QStringLiteral("读写出错；请检查磁盘。");
    case Reason::InUse:
        return QStringLiteral("数据目录正由另一个运行中的程序使用。");
    case Reason::ChangedMeanwhile:
        return QStringLiteral("文件刚刚在别处有了改动；请再试一次。");
    case Reason::Other:
        return QStringLiteral("文件操作没有完成（") +
               QString::fromLocal8Bit(std::generic_category().message(systemError)) +
               QStringLiteral("）。");
    }
    std::unreachable();
}
