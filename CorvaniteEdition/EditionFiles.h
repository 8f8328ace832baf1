// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Finding.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <expected>
#include <optional>

/// The files of a curator. Unlike the reader's own file they are for everyone to read: a web server
/// runs as somebody else.
namespace EditionFiles {

/// No document that the program downloads, and no sensible feed, is longer.
inline constexpr qsizetype maximumBytes = 16 * 1024 * 1024;

struct NewFile
{
    QString path;
    QByteArray bytes;
};

QString pathIn(const QString& folder, QAnyStringView name);

/// The whole file; a finding where it is none, cannot be read or is longer than `maximumBytes`.
std::expected<QByteArray, Finding> read(const QString& path);

/// Replaces or makes the files in the order given, each whole or not at all, and none before all
/// are written beside their places. Makes missing folders.
std::optional<Finding> replace(const QList<NewFile>& files);

} // namespace EditionFiles
