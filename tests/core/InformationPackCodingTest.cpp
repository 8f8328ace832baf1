// SPDX-License-Identifier: Apache-2.0

#include "InformationPackCoding.h"

#include "FormatExamples.h"
#include "Subject.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

using namespace InformationPackCoding;

namespace {

InformationSignal firstSignalWith(const QString& path, const QJsonValue& value)
{
    return decode(examplePackWith(u"signals/0/"_qs + path, value)).value().signals.first();
}

InformationSignal exampleTool()
{
    return {
        .id = u"github-weekly-example-tool"_qs,
        .kind = InformationSignalKind::Update,
        .lane = InformationLane::OpenSourceGrowth,
        .publishedAt = u"2026-08-30T09:00:00.000Z"_qs,
        .observedAt = u"2026-09-02T00:42:11.669Z"_qs,
        .originalURL = u"https://github.com/example/tool"_qs,
        .relatedSources = {{u"项目文档"_qs, u"https://tool.example/docs"_qs},
                           {u""_qs, u"https://tool.example/"_qs}},
        .source = u"GitHub 周度趋势"_qs,
        .title = u"示例工具：2.0 发布"_qs,
        .summary = u"The second major version."_qs,
        .updateSummary = u"从 1.9 到 2.0，配置文件格式改变。"_qs,
        .digest = u"升级前先备份配置。"_qs,
        .why = u"常用工具的大版本，升级要改配置。"_qs,
        .caveat = u"说明来自作者本人，尚无独立评测。"_qs,
        .timeline = {{u"8 月 30 日"_qs, u"2026-08-30T09:00:00.000Z"_qs, u"2.0 发布"_qs,
                      u"项目发布页"_qs},
                     {u""_qs, u"2026-09-01T12:30:00Z"_qs, u""_qs, u""_qs}},
        .followTarget =
            {
                .id = u"repo:example-tool"_qs,
                .label = u"示例工具仓库"_qs,
                .scope = u"新版本与不兼容改动"_qs,
                .url = u"https://github.com/example/tool/releases"_qs,
                .updateMode = InformationFollowUpdateMode::VerifiedChange,
                .discoveryRef = u"source-observations/trending.snapshot.json#repo:example-tool"_qs,
            },
        .ingestion =
            {
                .mode = InformationIngestionMode::Editorial,
                .adapter = u"github-trending-auto"_qs,
                .evidenceClass = InformationEvidenceClass::OfficialRepository,
                .observationRef =
                    u"source-observations/trending.snapshot.json#repo:example-tool"_qs,
                .changeRef =
                    u"source-observations/trending-changes.snapshot.json#repo:example-tool"_qs,
                .supportingEvidence =
                    {{InformationSupportingEvidenceRole::BusinessFact,
                      u"source-observations/pricing.snapshot.json#example-tool"_qs,
                      u"source-observations/pricing-changes.snapshot.json#example-tool"_qs},
                     {InformationSupportingEvidenceRole::ProductFact,
                      u"source-observations/releases.snapshot.json#example-tool"_qs,
                      u"source-observations/releases-changes.snapshot.json#example-tool"_qs}},
            },
    };
}

InformationSignal exampleReader()
{
    return {
        .id = u"product-example-reader"_qs,
        .kind = InformationSignalKind::New,
        .lane = InformationLane::ProductRadar,
        .publishedAt = std::nullopt,
        .observedAt = u"2026-09-01T22:10:00.000Z"_qs,
        .originalURL = u"https://reader.example/"_qs,
        .relatedSources = {},
        .source = {},
        .title = u"示例阅读器上线"_qs,
        .summary = {},
        .updateSummary = std::nullopt,
        .digest = std::nullopt,
        .why = u"离线可用的阅读器。"_qs,
        .caveat = u"只核到官网说明。"_qs,
        .timeline = {},
        .followTarget = {.id = u"product:example-reader"_qs,
                         .label = {},
                         .scope = {},
                         .url = u"https://reader.example/"_qs,
                         .updateMode = InformationFollowUpdateMode::EditorialWatch,
                         .discoveryRef = std::nullopt},
        .ingestion = {.mode = InformationIngestionMode::Editorial,
                      .adapter = u"syndication-feed"_qs,
                      .evidenceClass = InformationEvidenceClass::CreatorSelfReport,
                      .observationRef = std::nullopt,
                      .changeRef = std::nullopt,
                      .supportingEvidence = {}},
    };
}

InformationPackSnapshot exampleSnapshot()
{
    return {
        .schemaVersion = u"corvanite-public-information-pack-v6"_qs,
        .asOf = u"2026-09-02T04:01:03.784Z"_qs,
        .checkedEntryCount = 512,
        .signals = {exampleTool(), exampleReader()},
        .selectionDays = {{u"2026-09-01"_qs,
                           {u"product-example-reader"_qs, u"retired-example"_qs},
                           14},
                          {u"2026-09-02"_qs, {u"github-weekly-example-tool"_qs}, 2}},
    };
}

/// One row for each key of the format, its path leading to where the example has it.
void addKeys()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QJsonValue::Type>("type");
    QTest::addColumn<bool>("isRequired");

    constexpr auto Text = QJsonValue::String;
    constexpr auto Integer = QJsonValue::Double;
    constexpr auto Array = QJsonValue::Array;
    constexpr auto Object = QJsonValue::Object;
    const auto required = [](QJsonValue::Type type, std::initializer_list<const char*> paths) {
        for (const char* path : paths) {
            QTest::newRow(path) << QString::fromLatin1(path) << type << true;
        }
    };
    const auto optional = [](QJsonValue::Type type, std::initializer_list<const char*> paths) {
        for (const char* path : paths) {
            QTest::newRow(path) << QString::fromLatin1(path) << type << false;
        }
    };

    required(Text, {"schemaVersion", "asOf", "selectionHistory/0/date"});
    required(Integer, {"checkedEntryCount", "selectionHistory/1/totalShown"});
    required(Array, {"signals", "selectionHistory/1/focusSignalIds"});
    optional(Array, {"selectionHistory"});

    required(Text, {"signals/0/id", "signals/1/state", "signals/0/lane", "signals/0/observedAt",
                    "signals/0/originalUrl"});
    optional(Text, {"signals/0/publishedAt"});
    required(Object, {"signals/0/title", "signals/0/why", "signals/1/caveat",
                      "signals/0/followTarget", "signals/1/ingestion"});
    optional(Object, {"signals/0/source", "signals/0/summary", "signals/0/updateSummary",
                      "signals/0/digest"});
    required(Array, {"signals/1/timeline"});
    optional(Array, {"signals/0/relatedSources"});

    optional(Text, {"signals/0/title/zh", "signals/0/title/en", "signals/0/updateSummary/zh",
                    "signals/0/updateSummary/en", "signals/0/relatedSources/0/label/en",
                    "signals/0/timeline/0/date/en"});

    required(Text, {"signals/0/relatedSources/1/url", "signals/0/timeline/1/datetime"});
    optional(Object, {"signals/0/relatedSources/0/label", "signals/0/timeline/0/date",
                      "signals/0/timeline/0/summary", "signals/0/timeline/0/source"});

    required(Text, {"signals/0/followTarget/id", "signals/0/followTarget/url",
                    "signals/0/followTarget/updateMode"});
    optional(Text, {"signals/0/followTarget/discoveryRef"});
    optional(Object, {"signals/0/followTarget/label", "signals/0/followTarget/scope"});

    required(Text,
             {"signals/0/ingestion/mode", "signals/0/ingestion/adapter",
              "signals/0/ingestion/evidenceClass", "signals/0/ingestion/supportingEvidence/1/role",
              "signals/0/ingestion/supportingEvidence/1/observationRef",
              "signals/0/ingestion/supportingEvidence/1/changeRef"});
    optional(Text, {"signals/0/ingestion/observationRef", "signals/0/ingestion/changeRef"});
    optional(Array, {"signals/0/ingestion/supportingEvidence"});
}

} // namespace

class InformationPackCodingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheExampleOfTheFormat() { QCOMPARE(decode(examplePack()), exampleSnapshot()); }

    void missingKeys_data() { addKeys(); }

    void missingKeys()
    {
        QFETCH(QString, path);
        QFETCH(bool, isRequired);

        for (const QJsonValue& nothing :
             {QJsonValue(QJsonValue::Undefined), QJsonValue(QJsonValue::Null)}) {
            QCOMPARE(decode(examplePackWith(path, nothing)).has_value(), !isRequired);
        }
    }

    void valuesOfAnotherType_data() { addKeys(); }

    void valuesOfAnotherType()
    {
        QFETCH(QString, path);
        QFETCH(QJsonValue::Type, type);

        for (const QJsonValue& value :
             {QJsonValue(u"1"_qs), QJsonValue(1), QJsonValue(true), QJsonValue(false),
              QJsonValue(QJsonArray()), QJsonValue(QJsonObject())}) {
            if (value.type() != type) {
                QCOMPARE(decode(examplePackWith(path, value)), std::nullopt);
            }
        }
        QCOMPARE(decode(examplePackWith(path, 1.5)), std::nullopt);
    }

    void arrayEntriesOfAnotherType_data()
    {
        QTest::addColumn<QString>("path");
        for (const char* path :
             {"signals/1", "selectionHistory/0", "selectionHistory/0/focusSignalIds/1",
              "signals/0/relatedSources/1", "signals/0/timeline/1",
              "signals/0/ingestion/supportingEvidence/1"}) {
            QTest::newRow(path) << QString::fromLatin1(path);
        }
    }

    void arrayEntriesOfAnotherType()
    {
        QFETCH(QString, path);
        QCOMPARE(decode(examplePackWith(path, QJsonValue::Null)), std::nullopt);
        QCOMPARE(decode(examplePackWith(path, 1)), std::nullopt);
        QCOMPARE(decode(examplePackWith(path, QJsonArray())), std::nullopt);
    }

    void documentsThatAreNoObject_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("array") << QByteArray("[]");
        QTest::newRow("null") << QByteArray("null");
        QTest::newRow("text") << QByteArray("\"pack\"");
        QTest::newRow("half a document") << examplePack().chopped(2);
        QTest::newRow("two documents") << examplePack().repeated(2);
        QTest::newRow("no JSON") << QByteArray("<html></html>");
    }

    void documentsThatAreNoObject()
    {
        QFETCH(QByteArray, document);
        QCOMPARE(decode(document), std::nullopt);
    }

    void otherKeysAreIgnored()
    {
        const QJsonObject anything{{u"id"_qs, QJsonArray({1, QJsonValue::Null, true})}};
        QCOMPARE(decode(examplePackWith(u"signals/0/ingestion/other"_qs, anything)),
                 exampleSnapshot());
        QCOMPARE(decode(examplePackWith(u"Signals"_qs, anything)), exampleSnapshot());
    }

    void wholeNumbersInAnyNotation()
    {
        QByteArray document = examplePack();
        QCOMPARE(decode(document.replace("512", "5.12e2")), exampleSnapshot());
        QCOMPARE(decode(document.replace("5.12e2", "9223372036854775808")), std::nullopt);
    }

    void countsMayBeNegative()
    {
        QCOMPARE(decode(examplePackWith(u"checkedEntryCount"_qs, -1)).value().checkedEntryCount,
                 -1);
    }

    void aMissingHistoryGivesNoDays()
    {
        const auto snapshot =
            decode(examplePackWith(u"selectionHistory"_qs, QJsonValue::Undefined));
        QVERIFY(snapshot.value().selectionDays.isEmpty());
        QCOMPARE(snapshot->signals, exampleSnapshot().signals);
    }

    void contentIsNotJudged_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QJsonValue>("value");

        QTest::newRow("another schema") << u"schemaVersion"_qs << QJsonValue(u"other"_qs);
        QTest::newRow("no time") << u"asOf"_qs << QJsonValue(u"some day"_qs);
        QTest::newRow("no signals") << u"signals"_qs << QJsonValue(QJsonArray());
        QTest::newRow("no address") << u"signals/0/originalUrl"_qs << QJsonValue(u"none"_qs);
        QTest::newRow("id twice") << u"signals/1/id"_qs
                                  << QJsonValue(u"github-weekly-example-tool"_qs);
    }

    void contentIsNotJudged()
    {
        QFETCH(QString, path);
        QFETCH(QJsonValue, value);

        QVERIFY(decode(examplePackWith(path, value)));
    }

    void unknownTokensFallBack()
    {
        const QString other = u"unheard-of"_qs;
        const auto document =
            examplePackWith({{u"signals/0/state"_qs, other},
                             {u"signals/0/lane"_qs, other},
                             {u"signals/0/followTarget/updateMode"_qs, other},
                             {u"signals/0/ingestion/mode"_qs, other},
                             {u"signals/0/ingestion/evidenceClass"_qs, other},
                             {u"signals/0/ingestion/supportingEvidence/0/role"_qs, other}});
        const InformationSignal signal = decode(document).value().signals.first();

        QCOMPARE(signal.kind, InformationSignalKind::New);
        QCOMPARE(signal.lane, InformationLane::PlatformShift);
        QCOMPARE(signal.followTarget.updateMode, InformationFollowUpdateMode::SnapshotBaseline);
        QCOMPARE(signal.ingestion.mode, InformationIngestionMode::Editorial);
        QCOMPARE(signal.ingestion.evidenceClass, InformationEvidenceClass::CreatorSelfReport);
        QCOMPARE(signal.ingestion.supportingEvidence.first().role,
                 InformationSupportingEvidenceRole::ProductFact);
    }

    void everyTokenIsKnown()
    {
        for (const auto& entry : vocabulary<InformationSignalKind>) {
            QCOMPARE(firstSignalWith(u"state"_qs, entry.token).kind, entry.value);
        }
        for (const auto& entry : vocabulary<InformationLane>) {
            QCOMPARE(firstSignalWith(u"lane"_qs, entry.token).lane, entry.value);
        }
        for (const auto& entry : vocabulary<InformationFollowUpdateMode>) {
            QCOMPARE(
                firstSignalWith(u"followTarget/updateMode"_qs, entry.token).followTarget.updateMode,
                entry.value);
        }
        for (const auto& entry : vocabulary<InformationEvidenceClass>) {
            QCOMPARE(
                firstSignalWith(u"ingestion/evidenceClass"_qs, entry.token).ingestion.evidenceClass,
                entry.value);
        }
    }

    void rolesAreWrittenInKebabCase()
    {
        const auto path = u"ingestion/supportingEvidence/0/role"_qs;
        const auto roleOf = [&path](const QString& token) {
            return firstSignalWith(path, token).ingestion.supportingEvidence.first().role;
        };
        QCOMPARE(roleOf(u"business-fact"_qs), InformationSupportingEvidenceRole::BusinessFact);
        QCOMPARE(roleOf(u"product-fact"_qs), InformationSupportingEvidenceRole::ProductFact);
        QCOMPARE(roleOf(u"businessFact"_qs), InformationSupportingEvidenceRole::ProductFact);
    }

    void picksChineseThenEnglish_data()
    {
        QTest::addColumn<QJsonObject>("localized");
        QTest::addColumn<QString>("title");
        QTest::addColumn<std::optional<QString>>("digest");

        const auto none = std::optional<QString>();
        QTest::newRow("both") << QJsonObject{{u"en"_qs, u"E"_qs}, {u"zh"_qs, u"中"_qs}} << u"中"_qs
                              << std::optional(u"中"_qs);
        QTest::newRow("empty Chinese") << QJsonObject{{u"en"_qs, u"E"_qs}, {u"zh"_qs, u""_qs}}
                                       << u""_qs << std::optional(u""_qs);
        QTest::newRow("English only") << QJsonObject{{u"en"_qs, u"E"_qs}} << u"E"_qs << none;
        QTest::newRow("null Chinese")
            << QJsonObject{{u"en"_qs, u"E"_qs}, {u"zh"_qs, QJsonValue::Null}} << u"E"_qs << none;
        QTest::newRow("neither") << QJsonObject() << u""_qs << none;
    }

    void picksChineseThenEnglish()
    {
        QFETCH(QJsonObject, localized);

        QTEST(firstSignalWith(u"title"_qs, localized).title, "title");
        QTEST(firstSignalWith(u"source"_qs, localized).source, "title");
        QTEST(firstSignalWith(u"summary"_qs, localized).summary, "title");
        QTEST(firstSignalWith(u"why"_qs, localized).why, "title");
        QTEST(firstSignalWith(u"caveat"_qs, localized).caveat, "title");
        QTEST(firstSignalWith(u"relatedSources/0/label"_qs, localized).relatedSources[0].label,
              "title");
        QTEST(firstSignalWith(u"timeline/0/date"_qs, localized).timeline[0].dateLabel, "title");
        QTEST(firstSignalWith(u"timeline/0/summary"_qs, localized).timeline[0].summary, "title");
        QTEST(firstSignalWith(u"timeline/0/source"_qs, localized).timeline[0].source, "title");
        QTEST(firstSignalWith(u"followTarget/label"_qs, localized).followTarget.label, "title");
        QTEST(firstSignalWith(u"followTarget/scope"_qs, localized).followTarget.scope, "title");
        QTEST(firstSignalWith(u"updateSummary"_qs, localized).updateSummary, "digest");
        QTEST(firstSignalWith(u"digest"_qs, localized).digest, "digest");
    }

    void retiredListsHaveTheSignalsOfPacks()
    {
        QCOMPARE(decodeRetired(examplePack()), exampleSnapshot().signals);
    }

    void readsTheExampleOfARetiredList()
    {
        const auto retired = decodeRetired(formatExample(u"retired-signals.json"_qs));
        QCOMPARE(retired.value().size(), 1);
        QCOMPARE(retired->first().id, u"retired-example"_qs);
        QCOMPARE(retired->first().title, u"一个人的第一年"_qs);
        QCOMPARE(retired->first().ingestion.evidenceClass,
                 InformationEvidenceClass::FounderSelfReport);
    }

    void retiredListsThatDecodeOrNot_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<bool>("decodes");

        QTest::newRow("empty") << QByteArray(R"({"signals": []})") << true;
        QTest::newRow("another schema")
            << QByteArray(R"({"schemaVersion": "other", "signals": []})") << true;
        QTest::newRow("null schema")
            << QByteArray(R"({"schemaVersion": null, "signals": []})") << true;
        QTest::newRow("beyond the limit of packs")
            << QByteArray(R"({"signals": []})") + QByteArray(2'000'000, ' ') << true;
        QTest::newRow("schema of another type")
            << QByteArray(R"({"schemaVersion": 6, "signals": []})") << false;
        QTest::newRow("no signals") << QByteArray(R"({"schemaVersion": "other"})") << false;
        QTest::newRow("null signals") << QByteArray(R"({"signals": null})") << false;
        QTest::newRow("a signal that does not decode")
            << QByteArray(R"({"signals": [{}]})") << false;
        QTest::newRow("array") << QByteArray("[]") << false;
        QTest::newRow("no JSON") << QByteArray("retired") << false;
        QTest::newRow("nothing") << QByteArray() << false;
    }

    void retiredListsThatDecodeOrNot()
    {
        QFETCH(QByteArray, document);
        QTEST(decodeRetired(document).has_value(), "decodes");
    }

    void nothingDownloadedStopsTheProgram_data()
    {
        QTest::addColumn<QByteArray>("document");

        const qsizetype large = 16 * 1024 * 1024;
        QTest::newRow("brackets") << QByteArray(large, '[');
        QTest::newRow("braces") << QByteArray("{\"a\":").repeated(large / 5);
        QTest::newRow("deep signals")
            << "{\"signals\":" + QByteArray(100'000, '[') + QByteArray(100'000, ']') + "}";
        QTest::newRow("digits") << "{\"signals\":" + QByteArray(large, '9') + "}";
        QTest::newRow("exponent") << QByteArray("{\"signals\":1e999999999}");
        QTest::newRow("quotes") << QByteArray(large, '"');
        QTest::newRow("one long text") << "{\"signals\":\"" + QByteArray(large, 'a') + "\"}";
        QTest::newRow("null bytes") << QByteArray(large, '\0');
        QTest::newRow("invalid bytes") << QByteArray(large, '\xFF');
    }

    void nothingDownloadedStopsTheProgram()
    {
        QFETCH(QByteArray, document);
        QVERIFY(!decodeRetired(document));
        QVERIFY(!decode(document));
    }

    void everyPrefixOfAPackIsRefused()
    {
        const QByteArray document = examplePackWith({});
        for (qsizetype length = 0; length < document.size(); ++length) {
            QCOMPARE(decode(document.left(length)), std::nullopt);
        }
    }
};

TEST_SUBJECT(InformationPackCodingTest)
#include "InformationPackCodingTest.moc"
