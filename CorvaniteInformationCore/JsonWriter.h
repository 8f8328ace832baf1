// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QAnyStringView>
#include <QByteArray>
#include <QList>
#include <QStringEncoder>
#include <QStringView>

/// Writes one JSON document: UTF-8, an indented line for each member and element, slashes not
/// escaped, members in the order given. What is no character (half of a surrogate pair) is written
/// as U+FFFD, so that every document reads.
class JsonWriter
{
public:
    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }

    /// Names the member that the next value becomes.
    void key(QAnyStringView name);
    void string(QStringView text);
    void integer(qint64 number);
    void boolean(bool value);

    /// The finished document, with a line end.
    QByteArray document() const { return m_document + '\n'; }

private:
    void begin(char bracket);
    void end(char bracket);
    void startValue();
    void startLine();
    void breakLine();
    template <typename Text>
    void quoteName(Text name);
    void quote(QStringView text);
    void appendUtf8(QStringView text);

    QByteArray m_document;
    /// Unlike QStringView::toUtf8, which writes "?" for what is no character.
    QStringEncoder m_toUtf8{QStringEncoder::Utf8, QStringEncoder::Flag::Stateless};
    /// For each open object or array whether it has something in it.
    QList<bool> m_filled;
    bool m_isAfterKey = false;
};
