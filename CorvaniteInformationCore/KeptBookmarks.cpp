// SPDX-License-Identifier: Apache-2.0

#include "KeptBookmarks.h"

#include "OpenableAddress.h"
#include "PrintableText.h"

#include <QStringList>

#include <chrono>
#include <optional>

namespace {

using std::chrono::sys_seconds;

QString text(const QString& text)
{
    return PrintableText::oneLine(text).toHtmlEscaped();
}

QString lines(const QString& text)
{
    QStringList escaped;
    for (const QString& line : PrintableText::lines(text)) {
        escaped.append(line.toHtmlEscaped());
    }
    return escaped.join(QStringLiteral("<br>\n"));
}

QString added(std::optional<sys_seconds> at)
{
    return at ? QStringLiteral(" ADD_DATE=\"") + QString::number(at->time_since_epoch().count()) +
                    u'"'
              : QString();
}

QString entry(const QString& title, const QString& address, std::optional<sys_seconds> at)
{
    const auto url = OpenableAddress::url(address);
    const QString shown = url ? QStringLiteral("<A HREF=\"") +
                                    text(QString::fromLatin1(url->toEncoded())) + u'"' + added(at) +
                                    u'>' + text(title) + QStringLiteral("</A>")
                              : text(title);
    return QStringLiteral("        <DT>") + shown + u'\n';
}

QString description(const QList<ExportedThread::Detail>& details)
{
    QStringList lineList;
    for (const auto& detail : details) {
        lineList.append((detail.label.isEmpty() ? QString() : text(detail.label) + u'：') +
                        lines(detail.text));
    }
    return lineList.isEmpty()
               ? QString()
               : QStringLiteral("        <DD>") + lineList.join(QStringLiteral("<br>\n")) + u'\n';
}

QString folder(const QString& name, const QString& entries)
{
    return QStringLiteral("    <DT><H3>") + name + QStringLiteral("</H3>\n    <DL><p>\n") +
           entries + QStringLiteral("    </DL><p>\n");
}

} // namespace

QByteArray keptBookmarks(const QList<ExportedThread>& threads,
                         const QList<CustomInformationSource>& handedIn)
{
    QString kept;
    for (const ExportedThread& thread : threads) {
        kept +=
            entry(thread.title(), thread.signal ? thread.signal->originalURL : QString(),
                  thread.keepings.isEmpty() ? std::nullopt
                                            : std::optional(thread.keepings.first().saved.savedAt));
        kept += description(thread.details());
    }
    QString own;
    for (const CustomInformationSource& source : handedIn) {
        own += entry(source.input, source.input, source.createdAt);
    }
    const QString document =
        QStringLiteral("<!DOCTYPE NETSCAPE-Bookmark-file-1>\n"
                       "<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=UTF-8\">\n"
                       "<TITLE>已收下</TITLE>\n"
                       "<H1>已收下</H1>\n"
                       "<DL><p>\n") +
        folder(QStringLiteral("已收下"), kept) +
        folder(QStringLiteral("你交给 Corvanite 的内容"), own) + QStringLiteral("</DL><p>\n");
    return document.toUtf8();
}
