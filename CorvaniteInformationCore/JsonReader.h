// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PackedTexts.h"

#include <QByteArrayView>
#include <QLatin1StringView>
#include <QList>
#include <QString>

#include <simdjson.h>

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

/// Reads a JSON document into values, every field's type checked. The first thing that is wrong is
/// remembered as the document's error; from then on everything reads as empty, so that a decoder
/// reads all fields in order and asks `error()` once at its end:
///
///     JsonReader reader(document);
///     const Pack pack = readPack(reader.root());
///     if (reader.error()) { … }
///
/// Refused are documents that are not UTF-8 or not JSON to the letter, or are nested deeper than
/// 1024. Of a repeated key the first value counts. Only the core's own sources include this header.
class JsonReader
{
public:
    struct Error
    {
        enum class Kind { NotJson, MissingKey, InvalidValue };

        Kind kind;
        /// The key in question; empty with `NotJson` and for the document as a whole.
        QString key;

        friend bool operator==(const Error&, const Error&) = default;
    };

    /// One object of the document, valid as long as its reader.
    ///
    /// A required key must be there with a value of its type. An optional key may be missing or
    /// null, which gives nothing or an empty list; any other value must be of its type too.
    ///
    /// Each key is asked for once, in any order, and found fastest in the document's. A key that
    /// the document repeats has its first value.
    class Object
    {
    public:
        QString string(std::string_view key) const;
        std::optional<QString> optionalString(std::string_view key) const;

        /// The same of a text that the document is likely to repeat, as names and labels are: it is
        /// decoded once, and kept once.
        QString repeatedString(std::string_view key) const;
        std::optional<QString> optionalRepeatedString(std::string_view key) const;

        /// The bytes of a required string, to be compared with ASCII; valid as long as the reader.
        QLatin1StringView token(std::string_view key) const;

        /// A whole number within 64 bits, in whatever notation: 1, 1.0 and 1e2 are integers.
        qint64 integer(std::string_view key) const;
        std::optional<qint64> optionalInteger(std::string_view key) const;

        Object object(std::string_view key) const;
        std::optional<Object> optionalObject(std::string_view key) const;

        QList<QString> strings(std::string_view key) const;
        QList<QString> optionalStrings(std::string_view key) const;

        /// An array of objects, each made a value by `read(Object)`.
        template <typename Read>
        QList<std::invoke_result_t<Read, Object>> list(std::string_view key, Read read) const;
        template <typename Read>
        QList<std::invoke_result_t<Read, Object>> optionalList(std::string_view key,
                                                               Read read) const;

        /// The keys of an object whose values are objects, each given to `visit(QString, Object)`
        /// in document order.
        template <typename Visit>
        void forEachMember(Visit visit) const;

        /// Makes the key's value the document's error: its type is right, its content is not.
        void refuse(std::string_view key) const;

    private:
        friend class JsonReader;

        /// Where no object was found: without a member.
        explicit Object(JsonReader& reader) : m_reader(&reader) {}
        Object(JsonReader& reader, simdjson::dom::object object)
            : m_reader(&reader), m_next(object.begin()), m_end(object.end())
        {
        }

        std::optional<simdjson::dom::element> find(std::string_view key) const;
        std::optional<simdjson::dom::element> require(std::string_view key) const;
        std::optional<simdjson::dom::array> array(std::string_view key,
                                                  simdjson::dom::element element) const;
        std::string_view utf8(std::string_view key, simdjson::dom::element element) const;
        QString text(std::string_view key, simdjson::dom::element element) const;
        QString repeatedText(std::string_view key, simdjson::dom::element element) const;
        qint64 wholeNumber(std::string_view key, simdjson::dom::element element) const;
        Object nested(std::string_view key, simdjson::dom::element element) const;
        QList<QString> texts(std::string_view key, simdjson::dom::element element) const;
        template <typename Read>
        QList<std::invoke_result_t<Read, Object>>
        values(std::string_view key, simdjson::dom::element element, Read read) const;

        /// Becomes what it makes, there where that is to stand: a value is large.
        template <typename Make>
        struct InPlace
        {
            Make make;

            operator std::invoke_result_t<Make>() const { return make(); }
        };

        JsonReader* m_reader;
        /// The member behind those that were found in the document's order.
        mutable simdjson::dom::object::iterator m_next;
        simdjson::dom::object::iterator m_end;
    };

    explicit JsonReader(QByteArrayView document);
    Q_DISABLE_COPY_MOVE(JsonReader)

    /// The document's top level, which must be an object.
    Object root();

    const std::optional<Error>& error() const { return m_error; }

private:
    QString repeated(std::string_view utf8);

    void fail(Error::Kind kind, std::string_view key);

    simdjson::dom::parser m_parser;
    std::optional<simdjson::dom::element> m_root;
    std::optional<Error> m_error;
    PackedTexts m_texts;

    struct Known
    {
        std::string_view utf8;
        QString text;
    };
    /// The last repeated texts that were read, each at the place of its hash.
    std::array<Known, 1024> m_known;
};

template <typename Read>
QList<std::invoke_result_t<Read, JsonReader::Object>> JsonReader::Object::list(std::string_view key,
                                                                               Read read) const
{
    const auto element = require(key);
    return element ? values(key, *element, read)
                   : QList<std::invoke_result_t<Read, JsonReader::Object>>();
}

template <typename Read>
QList<std::invoke_result_t<Read, JsonReader::Object>>
JsonReader::Object::optionalList(std::string_view key, Read read) const
{
    const auto element = find(key);
    return element ? values(key, *element, read)
                   : QList<std::invoke_result_t<Read, JsonReader::Object>>();
}

template <typename Read>
QList<std::invoke_result_t<Read, JsonReader::Object>>
JsonReader::Object::values(std::string_view key, simdjson::dom::element element, Read read) const
{
    QList<std::invoke_result_t<Read, JsonReader::Object>> result;
    const auto elements = array(key, element);
    if (!elements) {
        return result;
    }
    result.reserve(static_cast<qsizetype>(elements->size()));
    for (const auto entry : *elements) {
        result.emplaceBack(InPlace{[&] { return read(nested(key, entry)); }});
        if (m_reader->m_error) {
            return {};
        }
    }
    return result;
}

template <typename Visit>
void JsonReader::Object::forEachMember(Visit visit) const
{
    for (auto member = m_next; member != m_end; ++member) {
        const Object value = nested(member.key(), member.value());
        if (m_reader->m_error) {
            return;
        }
        visit(m_reader->m_texts.fromUtf8(member.key()), value);
    }
}
