// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

/// Why a file operation failed, in the classes that a reader can act on.
struct FileError
{
    enum class Reason {
        /// Not allowed to write.
        PermissionDenied,
        ReadPermissionDenied,
        NoSpace,
        ReadOnly,
        /// Busy, a folder, a device, or anything else that is not an ordinary file.
        NotARegularFile,
        /// The path's folder is gone and cannot be made.
        FolderMissing,
        InputOutput,
        /// Another running program works with the data directory.
        InUse,
        /// The file no longer is what it was when it was read.
        ChangedMeanwhile,
        Other
    };

    Reason reason;
    /// The system's error number (errno), for the text of `Reason::Other`.
    int systemError = 0;

    /// The error of an operation that writes.
    static FileError fromSystemError(int systemError);

    /// One calm Chinese sentence for the reader.
    QString localizedDescription() const;

    friend bool operator==(const FileError&, const FileError&) = default;
};
