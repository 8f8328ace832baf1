// SPDX-License-Identifier: Apache-2.0

#include "FeedReader.h"

#include "JsonFeed.h"
#include "XmlFeed.h"

std::expected<Feed, Finding> FeedReader::read(const QString& file, const QByteArray& bytes)
{
    const QByteArray byteOrderMark("\xEF\xBB\xBF");
    const QByteArray text =
        bytes.startsWith(byteOrderMark) ? bytes.sliced(byteOrderMark.size()) : bytes;
    const bool isJson = text.trimmed().startsWith('{');
    return isJson ? JsonFeed::read(file, text) : XmlFeed::read(file, text);
}
