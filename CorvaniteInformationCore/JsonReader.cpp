// SPDX-License-Identifier: Apache-2.0

#include "JsonReader.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace {

char32_t bitsOf(char byte, int mask)
{
    return static_cast<char32_t>(byte & mask);
}

// Of UTF-8 to the letter, which simdjson makes sure of. Gives the end of the units.
char16_t* decodeUtf8(std::string_view utf8, char16_t* unit)
{
    const char* byte = utf8.data();
    const char* const end = byte + utf8.size();
    while (byte != end) {
        const auto lead = static_cast<unsigned char>(*byte);
        if (lead < 0x80) {
            *unit++ = lead;
            byte += 1;
        } else if (lead < 0xE0) {
            *unit++ = static_cast<char16_t>(bitsOf(byte[0], 0x1F) << 6 | bitsOf(byte[1], 0x3F));
            byte += 2;
        } else if (lead < 0xF0) {
            *unit++ = static_cast<char16_t>(bitsOf(byte[0], 0x0F) << 12 |
                                            bitsOf(byte[1], 0x3F) << 6 | bitsOf(byte[2], 0x3F));
            byte += 3;
        } else {
            const char32_t character = bitsOf(byte[0], 0x07) << 18 | bitsOf(byte[1], 0x3F) << 12 |
                                       bitsOf(byte[2], 0x3F) << 6 | bitsOf(byte[3], 0x3F);
            *unit++ = QChar::highSurrogate(character);
            *unit++ = QChar::lowSurrogate(character);
            byte += 4;
        }
    }
    return unit;
}

} // namespace

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
    // A text never has more units than bytes, and Chinese a third of them: what is kept is as long
    // as the text.
    m_units.resize(std::max(m_units.size(), utf8.size()));
    const char16_t* const end = decodeUtf8(utf8, m_units.data());
    return QString(reinterpret_cast<const QChar*>(m_units.data()), end - m_units.data());
}

// Names, labels and addresses come again and again: they are decoded once, and kept once.
QString JsonReader::shared(std::string_view utf8)
{
    constexpr size_t longestRepeated = 96;
    if (utf8.empty() || utf8.size() > longestRepeated) {
        return fromUtf8(utf8);
    }
    Known& known = m_known[std::hash<std::string_view>()(utf8) % m_known.size()];
    if (known.utf8 != utf8) {
        known = {.utf8 = utf8, .text = fromUtf8(utf8)};
    }
    return known.text;
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
    simdjson::dom::element element;
    if (m_object && m_next != m_object->end() && m_next.key_equals(key)) {
        element = m_next.value();
        ++m_next;
    } else if (!m_object || m_object->at_key(key).get(element) != simdjson::SUCCESS) {
        return std::nullopt;
    }
    return element.is_null() ? std::nullopt : std::optional(element);
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
    return m_reader->shared(utf8(key, element));
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
