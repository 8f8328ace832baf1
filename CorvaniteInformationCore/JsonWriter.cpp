#include "JsonWriter.h"

#include <QString>
#include <QStringEncoder>

namespace {

constexpr qsizetype indentation = 2;

QByteArray controlEscape(char byte)
{
    return "\\u" + QByteArray::number(byte, 16).rightJustified(4, '0');
}

} // namespace

void JsonWriter::key(QAnyStringView name)
{
    startLine();
    quote(name.toString());
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

void JsonWriter::begin(char bracket)
{
    startValue();
    m_document += bracket;
    m_filled.append(false);
}

void JsonWriter::end(char bracket)
{
    if (m_filled.takeLast()) {
        m_document += '\n' + QByteArray(m_filled.size() * indentation, ' ');
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
    m_document += '\n' + QByteArray(m_filled.size() * indentation, ' ');
}

void JsonWriter::quote(QStringView text)
{
    // Unlike QStringView::toUtf8, which writes "?" for what is no character.
    QStringEncoder toUtf8(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
    const QByteArray utf8 = toUtf8(text);
    m_document += '"';
    for (const char byte : utf8) {
        switch (byte) {
        case '"':
            m_document += "\\\"";
            break;
        case '\\':
            m_document += "\\\\";
            break;
        case '\n':
            m_document += "\\n";
            break;
        case '\r':
            m_document += "\\r";
            break;
        case '\t':
            m_document += "\\t";
            break;
        default:
            if (static_cast<unsigned char>(byte) < ' ') {
                m_document += controlEscape(byte);
            } else {
                m_document += byte;
            }
        }
    }
    m_document += '"';
}
