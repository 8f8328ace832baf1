// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The whole file; null when it cannot be read.
QByteArray contentOf(const QString& path);

void writeFile(const QString& path, const QByteArray& bytes);

/// @param target where the link at the path leads, as it is written
void makeLink(const QString& target, const QString& path);

/// The names in a folder, hidden and dangling ones included, in order.
QStringList namesIn(const QString& folder);

/// The permission bits of what is at the path itself, be it a link.
int modeOf(const QString& path);
