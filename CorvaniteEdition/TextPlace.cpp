// SPDX-License-Identifier: Apache-2.0

#include "TextPlace.h"

#include <algorithm>

QString TextPlace::at(qint64 line, qint64 column)
{
    return u"第 %1 行第 %2 列"_qs.arg(line).arg(column);
}

QString TextPlace::of(const QByteArray& bytes, qsizetype offset)
{
    const QByteArray before = bytes.first(std::clamp<qsizetype>(offset, 0, bytes.size()));
    const qsizetype lineStart = before.lastIndexOf('\n') + 1;
    return at(before.count('\n') + 1, QString::fromUtf8(before.sliced(lineStart)).size() + 1);
}
