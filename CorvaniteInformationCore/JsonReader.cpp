// SPDX-License-Identifier: Apache-2.0

#include "JsonReader.h"

#include <cmath>

JsonReader::JsonReader(QByteArrayView document)
{
    simdjson::dom::element root;
    if (document.isEmpty() ||
        m_parser.parse(document.data(), static_cast<size_t>(document.size())).get(root) !=
            simdjson::SUCCESS) {
        fail(Error::Kind::NotJson, {});
        return;
    }
    m_root = root;
}

JsonReader::Object JsonReader::root()
{
    simdjson::dom::object object;
    if (!m_root) {
        return Object(*this);
    }
    if (m_root->get(object) != simdjson::SUCCESS) {
        fail(Error::Kind::InvalidValue, {});
        return Object(*this);
    }
    return Object(*this, object);
}

QString JsonReader::fromUtf8(std::string_view utf8)
{
    QString text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    if (utf8.starts_with("\xEF\xBB\xBF")) {
        // Dropped as a byte order mark, but inside a document it is a character.
        text.prepend(QChar::ByteOrderMark);
    }
    return text;
}

void JsonReader::fail(Error::Kind kind, std::string_view key)
{
    if (!m_error) {
        m_error = Error{kind, fromUtf8(key)};
    }
}

QString JsonReader::Object::string(std::string_view key) const
{
    const auto element = require(key);
    return element ? text(key, *element) : QString();
}

std::optional<QString> JsonReader::Object::optionalString(std::string_view key) const
{
    const auto element = find(key);
    return element ? std::optional(text(key, *element)) : std::nullopt;
}

qint64 JsonReader::Object::integer(std::string_view key) const
{
    const auto element = require(key);
    return element ? wholeNumber(key, *element) : 0;
}

std::optional<qint64> JsonReader::Object::optionalInteger(std::string_view key) const
{
    const auto element = find(key);
    return element ? std::optional(wholeNumber(key, *element)) : std::nullopt;
}

JsonReader::Object JsonReader::Object::object(std::string_view key) const
{
    const auto element = require(key);
    return element ? nested(key, *element) : Object(*m_reader);
}

std::optional<JsonReader::Object> JsonReader::Object::optionalObject(std::string_view key) const
{
    const auto element = find(key);
    return element ? std::optional(nested(key, *element)) : std::nullopt;
}

QList<QString> JsonReader::Object::strings(std::string_view key) const
{
    const auto element = require(key);
    return element ? texts(key, *element) : QList<QString>();
}

QList<QString> JsonReader::Object::optionalStrings(std::string_view key) const
{
    const auto element = find(key);
    return element ? texts(key, *element) : QList<QString>();
}

void JsonReader::Object::refuse(std::string_view key) const
{
    m_reader->fail(Error::Kind::InvalidValue, key);
}

std::optional<simdjson::dom::element> JsonReader::Object::find(std::string_view key) const
{
    simdjson::dom::element element;
    if (!m_object || m_object->at_key(key).get(element) != simdjson::SUCCESS || element.is_null()) {
        return std::nullopt;
    }
    return element;
}

std::optional<simdjson::dom::element> JsonReader::Object::require(std::string_view key) const
{
    const auto element = find(key);
    if (!element) {
        m_reader->fail(Error::Kind::MissingKey, key);
    }
    return element;
}

std::optional<simdjson::dom::array> JsonReader::Object::array(std::string_view key,
                                                              simdjson::dom::element element) const
{
    simdjson::dom::array array;
    if (element.get(array) != simdjson::SUCCESS) {
        refuse(key);
        return std::nullopt;
    }
    return array;
}

QString JsonReader::Object::text(std::string_view key, simdjson::dom::element element) const
{
    std::string_view utf8;
    if (element.get(utf8) != simdjson::SUCCESS) {
        refuse(key);
        return {};
    }
    return fromUtf8(utf8);
}

qint64 JsonReader::Object::wholeNumber(std::string_view key, simdjson::dom::element element) const
{
    std::int64_t integer = 0;
    if (element.get(integer) == simdjson::SUCCESS) {
        return integer;
    }
    double number = 0;
    if (element.get(number) == simdjson::SUCCESS && std::trunc(number) == number &&
        number >= -0x1p63 && number < 0x1p63) {
        return static_cast<qint64>(number);
    }
    refuse(key);
    return 0;
}

JsonReader::Object JsonReader::Object::nested(std::string_view key,
                                              simdjson::dom::element element) const
{
    simdjson::dom::object object;
    if (element.get(object) != simdjson::SUCCESS) {
        refuse(key);
        return Object(*m_reader);
    }
    return Object(*m_reader, object);
}

QList<QString> JsonReader::Object::texts(std::string_view key, simdjson::dom::element element) const
{
    const auto elements = array(key, element);
    if (!elements) {
        return {};
    }
    QList<QString> result;
    result.reserve(static_cast<qsizetype>(elements->size()));
    for (const auto entry : *elements) {
        result.append(text(key, entry));
    }
    return result;
}
