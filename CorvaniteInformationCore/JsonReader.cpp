// SPDX-License-Identifier: Apache-2.0

#include "JsonReader.h"

#include <algorithm>
#include <cmath>
#include <functional>

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

QString JsonReader::repeated(std::string_view utf8)
{
    Known& known = m_known[std::hash<std::string_view>()(utf8) % m_known.size()];
    if (known.utf8 != utf8) {
        known = {.utf8 = utf8, .text = m_texts.fromUtf8(utf8)};
    }
    return known.text;
}

void JsonReader::fail(Error::Kind kind, std::string_view key)
{
    if (!m_error) {
        m_error = Error{kind, m_texts.fromUtf8(key)};
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

QString JsonReader::Object::repeatedString(std::string_view key) const
{
    const auto element = require(key);
    return element ? repeatedText(key, *element) : QString();
}

std::optional<QString> JsonReader::Object::optionalRepeatedString(std::string_view key) const
{
    const auto element = find(key);
    return element ? std::optional(repeatedText(key, *element)) : std::nullopt;
}

QLatin1StringView JsonReader::Object::token(std::string_view key) const
{
    const auto element = require(key);
    return element ? QLatin1StringView(utf8(key, *element)) : QLatin1StringView();
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
    for (auto member = m_next; member != m_end; ++member) {
        if (member.key_equals(key)) {
            const simdjson::dom::element element = member.value();
            if (member == m_next) {
                ++m_next;
            }
            return element.is_null() ? std::nullopt : std::optional(element);
        }
    }
    return std::nullopt;
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

std::string_view JsonReader::Object::utf8(std::string_view key,
                                          simdjson::dom::element element) const
{
    std::string_view utf8;
    if (element.get(utf8) != simdjson::SUCCESS) {
        refuse(key);
    }
    return utf8;
}

QString JsonReader::Object::text(std::string_view key, simdjson::dom::element element) const
{
    return m_reader->m_texts.fromUtf8(utf8(key, element));
}

QString JsonReader::Object::repeatedText(std::string_view key, simdjson::dom::element element) const
{
    return m_reader->repeated(utf8(key, element));
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
