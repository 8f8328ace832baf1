// SPDX-License-Identifier: Apache-2.0

#include "EditionCheck.h"

#include "EditionContext.h"
#include "Findings.h"
#include "HistoryCheck.h"
#include "InformationPackCoding.h"
#include "InformationPackSync.h"
#include "InformationSeed.h"
#include "InformationUpdateNotice.h"
#include "JsonPlace.h"
#include "ShapeCheck.h"
#include "SignalCheck.h"
#include "TextRules.h"

#include <QSet>

#include <algorithm>

using JsonPlace::element;
using JsonPlace::member;
using JsonPlace::root;

namespace {

bool isWithinLimit(const EditionDocument& document, Findings& findings)
{
    const qsizetype limit = EditionDocument::maximumBytes(document.kind);
    if (document.bytes.size() > limit) {
        findings.error(
            root,
            u"有 %1 字节，程序最多读 %2 字节：请减少内容"_qs.arg(document.bytes.size()).arg(limit));
    }
    return document.bytes.size() <= limit;
}

/// For a document that the core does not decode.
void explainRefusal(const EditionDocument& document, Findings& findings)
{
    const qsizetype before = findings.list().size();
    ShapeCheck::findRefusals(document, findings);
    if (findings.list().size() == before) {
        findings.error(root, u"程序读不了这份文档：请检查重复的键、数字的写法和 UTF-8 编码"_qs);
    }
}

void checkPack(const EditionDocument& document, const EditionContext& context, Findings& findings)
{
    using Kind = InformationPackSync::SyncError::Kind;
    const auto pack = InformationPackSync::parse(document.bytes);
    if (!pack) {
        if (pack.error().kind == Kind::UnsupportedSchema) {
            findings.error(
                member(root, "schemaVersion"),
                u"“%1”不是程序认得的格式：请写 %2"_qs.arg(
                    pack.error().schemaVersion, InformationPackSync::expectedSchemaVersion));
        } else if (pack.error().kind == Kind::EmptyPack) {
            findings.error(member(root, "signals"), u"一张卡片也没有：程序不收空的信息包"_qs);
        } else {
            explainRefusal(document, findings);
        }
        return;
    }
    const QString asOf = member(root, "asOf");
    constexpr qsizetype millisecondForm = 24;
    if (TextRules::requireTime(pack->asOf, asOf, findings) &&
        pack->asOf.size() != millisecondForm) {
        findings.hint(asOf, u"请写到毫秒：程序按文字比较先后，写法要每版一样"_qs);
    }
    if (pack->checkedEntryCount < pack->signals.size()) {
        findings.error(member(root, "checkedEntryCount"), u"比卡片还少：请写看过的公开条目总数"_qs);
    }
    SignalCheck::check(pack->signals, member(root, "signals"), context, findings);
    HistoryCheck::check(pack->selectionDays, pack->signals, member(root, "selectionHistory"),
                        context, findings);
}

void checkRetired(const EditionDocument& document, const EditionContext& context,
                  Findings& findings)
{
    const auto retired = InformationPackCoding::decodeRetired(document.bytes);
    if (!retired) {
        explainRefusal(document, findings);
        return;
    }
    const QString list = member(root, "signals");
    SignalCheck::check(*retired, list, context, findings);
    for (qsizetype index = 0; index < retired->size(); ++index) {
        const QString& id = (*retired)[index].id;
        if (context.packSignals.contains(id)) {
            findings.error(member(element(list, index), "id"),
                           u"“%1”还在信息包里：请从其中一处去掉"_qs.arg(id));
        }
    }
}

void checkSourceKind(const QString& kind, const QString& place, Findings& findings)
{
    if (!kind.endsWith(u" · 英文") && !kind.endsWith(u" · 中文")) {
        findings.error(place, u"没有写语言：请以“ · 英文”或“ · 中文”结尾"_qs);
    }
}

void requireFirst(const QString& text, QSet<QString>& met, const QString& place, Findings& findings)
{
    if (met.contains(text)) {
        findings.error(place, u"“%1”另一个信源已经用了：请改正其中一个"_qs.arg(text));
    }
    met.insert(text);
}

void checkRegistry(const EditionDocument& document, Findings& findings)
{
    const auto registry = InformationSeed::parseRegistry(document.bytes);
    if (!registry) {
        explainRefusal(document, findings);
        return;
    }
    const QString list = member(root, "sources");
    if (registry->isEmpty()) {
        findings.error(list, u"一个信源也没有：请至少写一个"_qs);
    }
    QSet<QString> ids;
    QSet<QString> names;
    QSet<QString> addresses;
    for (qsizetype index = 0; index < registry->size(); ++index) {
        const InformationSourceEntry& entry = (*registry)[index];
        const QString place = element(list, index);
        TextRules::requireText(entry.id, member(place, "id"), findings);
        TextRules::requireText(entry.name, member(place, "name"), findings);
        TextRules::requireSentence(entry.take, member(place, "take"), findings);
        TextRules::requireAddress(entry.url, member(place, "url"), findings);
        checkSourceKind(entry.kind, member(place, "kind"), findings);
        requireFirst(entry.id, ids, member(place, "id"), findings);
        requireFirst(entry.name, names, member(place, "name"), findings);
        requireFirst(entry.url, addresses, member(place, "url"), findings);
    }
}

void explainNoticeError(const EditionDocument& document,
                        const InformationUpdateNotice::ParseError& error, const QString& siteHost,
                        Findings& findings)
{
    using Kind = InformationUpdateNotice::ParseError::Kind;
    const QString payload = error.payload.value_or(QString());
    if (error.kind == Kind::WrongSchemaVersion) {
        if (error.payload) {
            findings.error(member(root, "schemaVersion"),
                           u"“%1”不是程序认得的格式：请写 %2"_qs.arg(
                               payload, InformationUpdateNotice::expectedSchemaVersion));
        } else {
            explainRefusal(document, findings);
        }
    } else if (error.kind == Kind::UntrustedDownloadURL) {
        findings.error(
            member(root, "downloadUrl"),
            u"程序不信任“%1”：下载地址要以 https:// 开头，主机要是 %2"_qs.arg(payload, siteHost));
    } else if (payload == u"version") {
        findings.error(member(root, "version"),
                       u"不是版本号：请写成 1.2.0 这样三段数字，不带后缀"_qs);
    } else {
        findings.error(member(root, payload), u"是空的：请写上"_qs);
    }
}

bool isSha256(const QString& text)
{
    constexpr qsizetype digits = 64;
    return text.size() == digits && std::ranges::all_of(text, [](QChar character) {
               return (character >= u'0' && character <= u'9') ||
                      (character.toLower() >= u'a' && character.toLower() <= u'f');
           });
}

void checkAppVersion(const EditionDocument& document, const QString& siteHost, Findings& findings)
{
    const auto notice = InformationUpdateNotice::parse(document.bytes, siteHost);
    if (!notice) {
        explainNoticeError(document, notice.error(), siteHost, findings);
        return;
    }
    TextRules::requireAddress(document.root.value(u"downloadUrl").toString(),
                              member(root, "downloadUrl"), findings);
    if (!isSha256(notice->sha256)) {
        findings.hint(member(root, "sha256"), u"不像 SHA-256：应是 64 位十六进制数字"_qs);
    }
    if (notice->sizeBytes && *notice->sizeBytes <= 0) {
        findings.hint(member(root, "sizeBytes"), u"不像文件大小：请写字节数，或者去掉"_qs);
    }
}

void checkContent(const EditionDocument& document, const EditionContext& context,
                  const QString& siteHost, Findings& findings)
{
    switch (document.kind) {
    case DocumentKind::Pack:
        checkPack(document, context, findings);
        break;
    case DocumentKind::RetiredList:
        checkRetired(document, context, findings);
        break;
    case DocumentKind::AppVersion:
        checkAppVersion(document, siteHost, findings);
        break;
    case DocumentKind::Registry:
        checkRegistry(document, findings);
        break;
    }
}

} // namespace

QList<Finding> EditionCheck::check(const QList<EditionDocument>& documents, const QString& siteHost)
{
    const EditionContext context = EditionContext::of(documents);
    QList<Finding> all;
    for (const auto& document : documents) {
        Findings findings(document.name);
        if (isWithinLimit(document, findings)) {
            checkContent(document, context, siteHost, findings);
            ShapeCheck::findOddities(document, findings);
        }
        all += findings.list();
    }
    return all;
}

bool EditionCheck::hasError(const QList<Finding>& findings)
{
    return std::ranges::any_of(findings, [](const Finding& finding) {
        return finding.severity == Finding::Severity::Error;
    });
}
