// SPDX-License-Identifier: Apache-2.0

#include "JsonWriter.h"

#include <QString>

#include <algorithm>

namespace {

constexpr qsizetype indentation = 2;

bool isEscaped(QChar character)
{
    return character == u'"' || character == u'\\' || character < u' ';
}

// Nearly no text has anything to escape. In blocks, without a branch for each character, that is
// seen in a third of the time.
qsizetype lengthToEscaped(QStringView text)
{
    constexpr qsizetype block = 16;
    const auto isPlainBlock = [](const QChar* begin) {
        char16_t escaped = 0;
        for (qsizetype i = 0; i < block; ++i) {
            escaped |= char16_t{isEscaped(begin[i])};
        }
        return escaped == 0;
    };
    const QChar* at = text.begin();
    while (text.end() - at >= block && isPlainBlock(at)) {
        at += block;
    }
    return std::find_if(at, text.end(), isEscaped) - text.begin();
}

/// One character of ASCII that is written as it is.
bool isPlain(char byte)
{
    return byte >= ' ' && byte <= '~' && byte != '"' && byte != '\\';
}

QByteArray escapeOf(char character)
{
    switch (character) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        return "\\u" + QByteArray::number(character, 16).rightJustified(4, '0');
    }
}

} // namespace

void JsonWriter::key(QAnyStringView name)
{
    startLine();
    name.visit([this](auto text) { quoteName(text); });
    m_document += ": ";
    m_isAfterKey = true;
}

void JsonWriter::string(QStringView text)
{
    startValue();
    quote(text);
}

void JsonWriter::integer(qint64 number)
{
    startValue();
    m_document += QByteArray::number(number);
}

void JsonWriter::boolean(bool value)
{
    startValue();
    m_document += value ? "true" : "false";
}

void JsonWriter::begin(char bracket)
{
    startValue();
    m_document += bracket;
    m_filled.append(false);
}

void JsonWriter::end(char bracket)
{
    if (m_filled.takeLast()) {
        breakLine();
    }
    m_document += bracket;
}

void JsonWriter::startValue()
{
    if (m_isAfterKey) {
        m_isAfterKey = false;
    } else {
        startLine();
    }
}

void JsonWriter::startLine()
{
    if (m_filled.isEmpty()) {
        return;
    }
    if (m_filled.last()) {
        m_document += ',';
    }
    m_filled.last() = true;
    breakLine();
}

void JsonWriter::breakLine()
{
    m_document += '\n';
    m_document.append(m_filled.size() * indentation, ' ');
}

// A save writes thousands of names, nearly all of them as they stand.
template <typename Text>
void JsonWriter::quoteName(Text name)
{
    if constexpr (sizeof(*name.data()) == sizeof(char)) {
        if (std::all_of(name.data(), name.data() + name.size(), isPlain)) {
            m_document += '"';
            m_document.append(name.data(), name.size());
            m_document += '"';
            return;
        }
    }
    quote(name.toString());
}

void JsonWriter::quote(QStringView text)
{
    m_document += '"';
    while (!text.isEmpty()) {
        const qsizetype plainLength = lengthToEscaped(text);
        appendUtf8(text.first(plainLength));
        text = text.sliced(plainLength);
        if (!text.isEmpty()) {
            m_document += escapeOf(text.front().toLatin1());
            text = text.sliced(1);
        }
    }
    m_document += '"';
}

void JsonWriter::appendUtf8(QStringView text)
{
    const qsizetype length = m_document.size();
    m_document.resize(length + m_toUtf8.requiredSpace(text.size()));
    const char* const end = m_toUtf8.appendToBuffer(m_document.data() + length, text);
    m_document.truncate(end - m_document.constData());
}
