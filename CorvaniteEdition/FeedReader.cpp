#include "FeedReader.h"

#include "JsonFeed.h"
#include "XmlFeed.h"

std::expected<Feed, Finding> FeedReader::read(const QString& file, const QByteArray& bytes)
{
    const bool isJson = bytes.trimmed().startsWith('{');
    return isJson ? JsonFeed::read(file, bytes) : XmlFeed::read(file, bytes);
}
