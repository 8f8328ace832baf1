// SPDX-License-Identifier: Apache-2.0

#include "EditionCommands.h"

#include "DraftPack.h"
#include "EditionCheck.h"
#include "EditionDiff.h"
#include "EditionFiles.h"
#include "EditionFolder.h"
#include "FeedReader.h"
#include "InformationPackSync.h"
#include "NextEdition.h"
#include "SiteFolder.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {

/// The edition that is being made lies where the program is called.
const QString workingFolder = u"."_qs;

qsizetype countOf(const QList<Finding>& findings, Finding::Severity severity)
{
    return std::ranges::count(findings, severity, &Finding::severity);
}

QString summaryOf(const QList<Finding>& findings)
{
    return findings.isEmpty()
               ? u"没有发现问题"_qs
               : u"%1 处错误，%2 处提示"_qs.arg(countOf(findings, Finding::Severity::Error))
                     .arg(countOf(findings, Finding::Severity::Hint));
}

Finding error(const QString& document, const QString& text)
{
    return {Finding::Severity::Error, document, QString(), text};
}

std::expected<EditionFolder, Finding> folderWithPack(const QString& path)
{
    auto folder = EditionFolder::read(path);
    if (folder && !folder->pack) {
        return std::unexpected(
            error(path, u"没有 %1：请放进这个文件夹"_qs.arg(EditionDocument::packName)));
    }
    if (folder && !InformationPackSync::parse(folder->pack->bytes)) {
        return std::unexpected(
            error(folder->pack->name, u"程序不收这个信息包：请先用 check 检查"_qs));
    }
    return folder;
}

/// Also where there is no telling.
bool isNewer(const EditionDocument& pack, const EditionDocument& than)
{
    const auto snapshot = InformationPackSync::parse(pack.bytes);
    const auto other = InformationPackSync::parse(than.bytes);
    return !snapshot || !other || snapshot->isNewer(other->asOf);
}

} // namespace

EditionCommands::EditionCommands(QTextStream& output, QTextStream& messages, qint64 now,
                                 QString siteHost)
    : m_output(output), m_messages(messages), m_now(now), m_siteHost(std::move(siteHost))
{
}

int EditionCommands::run(const QStringList& arguments)
{
    const auto line = CommandLine::parse(arguments);
    if (!line) {
        m_messages << line.error() << u'\n' << CommandLine::usage();
        return misused;
    }
    switch (line->command) {
    case CommandLine::Command::Help:
        m_output << CommandLine::usage();
        return done;
    case CommandLine::Command::Version:
        m_output << u"corvanite-edition " CORVANITE_VERSION "\n"_qs;
        return done;
    case CommandLine::Command::Draft:
        return draft(line->paths);
    case CommandLine::Command::Check:
        return check(line->paths, line->isStrict);
    case CommandLine::Command::Next:
        return next(line->paths[0], line->paths[1]);
    case CommandLine::Command::Diff:
        return diff(line->paths[0], line->paths[1]);
    case CommandLine::Command::Site:
        return site(line->paths[0]);
    }
    std::unreachable();
}

int EditionCommands::draft(const QStringList& files)
{
    QList<Feed> feeds;
    for (const QString& file : files) {
        const auto bytes = EditionFiles::read(file);
        if (!bytes) {
            return refuse(bytes.error());
        }
        auto feed = FeedReader::read(file, *bytes);
        if (!feed) {
            return refuse(feed.error());
        }
        feeds.append(*std::move(feed));
    }
    m_output << QString::fromUtf8(DraftPack::of(feeds, m_now));
    return done;
}

int EditionCommands::check(const QStringList& files, bool isStrict)
{
    QList<Finding> findings;
    QList<EditionDocument> documents;
    for (const QString& file : files) {
        const auto bytes = EditionFiles::read(file);
        if (!bytes) {
            findings.append(bytes.error());
        } else if (auto document = EditionDocument::read(file, *bytes)) {
            documents.append(*std::move(document));
        } else {
            findings.append(document.error());
        }
    }
    findings += EditionCheck::check(documents, m_siteHost);
    for (const Finding& finding : findings) {
        m_output << finding.line() << u'\n';
    }
    m_output << summaryOf(findings) << u'\n';
    const bool isGood = isStrict ? findings.isEmpty() : !EditionCheck::hasError(findings);
    return isGood ? done : problemFound;
}

int EditionCommands::next(const QString& published, const QString& next)
{
    const auto publishedFolder = EditionFolder::read(published);
    if (!publishedFolder) {
        return refuse(publishedFolder.error());
    }
    const auto nextFolder = EditionFolder::read(next);
    if (!nextFolder) {
        return refuse(nextFolder.error());
    }
    const auto edition = NextEdition::after(*publishedFolder, *nextFolder, m_now);
    if (!edition) {
        return refuse(edition.error());
    }
    const auto trouble = EditionFiles::replace(
        {{EditionFiles::pathIn(next, EditionDocument::retiredName), edition->retired},
         {EditionFiles::pathIn(next, EditionDocument::packName), edition->pack}});
    if (trouble) {
        return refuse(*trouble);
    }
    m_output << u"已写好 %1 和 %2，%3 张卡片退出；接着请用 check 检查，用 diff 看变化\n"_qs
                    .arg(EditionDocument::packName, EditionDocument::retiredName)
                    .arg(edition->leftCount);
    return done;
}

int EditionCommands::diff(const QString& before, const QString& after)
{
    const auto earlier = folderWithPack(before);
    if (!earlier) {
        return refuse(earlier.error());
    }
    const auto later = folderWithPack(after);
    if (!later) {
        return refuse(later.error());
    }
    m_output << EditionDiff::lines(*earlier, *later).join(u'\n') << u'\n';
    return done;
}

int EditionCommands::site(const QString& folder)
{
    auto edition = folderWithPack(workingFolder);
    if (!edition) {
        return refuse(edition.error());
    }
    if (QFileInfo(folder).canonicalFilePath() == QFileInfo(workingFolder).canonicalFilePath()) {
        return refuse(error(folder, u"就是当前文件夹：请布置到另一个文件夹"_qs));
    }
    if (!edition->retired) {
        return refuse(error(workingFolder, u"没有 %1：第一版请写 {\"signals\": []}"_qs.arg(
                                               EditionDocument::retiredName)));
    }
    // What lies there may be anything; only what reads can be told from and carried on.
    const auto published = EditionFolder::read(folder);
    if (published && !edition->appVersion) {
        edition->appVersion = published->appVersion;
    }
    const auto findings = EditionCheck::check(edition->documents(), m_siteHost);
    if (EditionCheck::hasError(findings)) {
        for (const Finding& finding : findings) {
            m_messages << finding.line() << u'\n';
        }
        m_messages << u"没有布置：请先改好错误\n"_qs;
        return problemFound;
    }
    if (const auto trouble = SiteFolder::layOut(*edition, folder)) {
        return refuse(*trouble);
    }
    m_output << u"已布置到 %1\n"_qs.arg(folder);
    if (published && published->pack && !isNewer(*edition->pack, *published->pack)) {
        m_output << u"它的 asOf 不晚于原来的一版：已经同步过的读者不会换成它\n"_qs;
    }
    return done;
}

int EditionCommands::refuse(const Finding& finding)
{
    m_messages << finding.line() << u'\n';
    return problemFound;
}
