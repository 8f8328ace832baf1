// SPDX-License-Identifier: Apache-2.0

#include "KeptMarkdown.h"

#include "InformationProjection.h"
#include "OpenableAddress.h"
#include "PrintableText.h"

#include <QStringList>

#include <algorithm>
#include <utility>

namespace {

bool isMarkup(QChar character)
{
    return QStringView(u"\\`*_[]<>&~#").contains(character);
}

QString escapedMarks(const QString& line)
{
    QString escaped;
    for (const QChar character : line) {
        if (isMarkup(character)) {
            escaped += u'\\';
        }
        escaped += character;
    }
    return escaped;
}

// What would make a list or a heading where a line begins: "- ", "+ ", "===", "1. ", "2) ".
QString escapedBeginning(QString line)
{
    const auto isDigit = [](QChar character) { return character >= u'0' && character <= u'9'; };
    const auto digits = std::ranges::find_if_not(std::as_const(line), isDigit) - line.cbegin();
    const QChar mark = digits < line.size() ? line.at(digits) : QChar();
    const QStringView marks = digits == 0 ? QStringView(u"-+=") : QStringView(u".)");
    return marks.contains(mark) ? line.insert(digits, u'\\') : line;
}

// Indentation means something in Markdown, and goes.
QString escaped(const QString& text)
{
    return escapedMarks(PrintableText::oneLine(text).trimmed());
}

// Of a list's item: each further line is indented, and breaks where the text does.
QString escapedLines(const QString& text)
{
    QStringList lines;
    for (const QString& line : PrintableText::lines(text)) {
        const QString marked = escapedMarks(line.trimmed());
        lines.append(lines.isEmpty() ? marked : escapedBeginning(marked));
    }
    return lines.join(QStringLiteral("\\\n  "));
}

QString linked(const QString& title, const QString& address)
{
    const auto url = OpenableAddress::url(address);
    return url ? u'[' + escaped(title) + QStringLiteral("](<") +
                     QString::fromLatin1(url->toEncoded()) + QStringLiteral(">)")
               : escaped(title);
}

QString heading(const ExportedThread& thread)
{
    return QStringLiteral("## ") +
           linked(thread.title(), thread.signal ? thread.signal->originalURL : QString()) +
           QStringLiteral("\n\n");
}

QString item(const ExportedThread::Detail& detail)
{
    const QString label = escaped(detail.label);
    const QString text = escapedLines(detail.text);
    return QStringLiteral("- ") +
           (label.isEmpty() ? escapedBeginning(text)
                            : QStringLiteral("**") + label + QStringLiteral("**：") + text) +
           u'\n';
}

QString item(const CustomInformationSource& source)
{
    const auto time = std::chrono::milliseconds(source.createdAt.time_since_epoch());
    return QStringLiteral("- ") + InformationProjection::beijingDay(time.count()) + u'：' +
           linked(source.input, source.input) + u'\n';
}

} // namespace

QByteArray keptMarkdown(const QList<ExportedThread>& threads,
                        const QList<CustomInformationSource>& handedIn)
{
    QString document = QStringLiteral("# 已收下\n");
    for (const ExportedThread& thread : threads) {
        document += u'\n' + heading(thread);
        for (const auto& detail : thread.details()) {
            document += item(detail);
        }
    }
    if (!handedIn.isEmpty()) {
        document += QStringLiteral("\n# 你交给 Corvanite 的内容\n\n");
    }
    for (const CustomInformationSource& source : handedIn) {
        document += item(source);
    }
    return document.toUtf8();
}
