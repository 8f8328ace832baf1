// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>

/// Places in a text file, for people: lines and columns count from 1.
namespace TextPlace {

QString at(qint64 line, qint64 column);

/// Of the byte at an offset in UTF-8; columns count UTF-16 units.
QString of(const QByteArray& bytes, qsizetype offset);

} // namespace TextPlace
