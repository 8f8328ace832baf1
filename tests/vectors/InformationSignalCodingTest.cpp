// SPDX-License-Identifier: Apache-2.0

#include "InformationSignalCoding.h"

#include "EditedJson.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QJsonArray>
#include <QTest>

using namespace InformationSignalCoding;

namespace {

QJsonObject fullObject()
{
    return {
        {u"id"_qs, u"s"_qs},
        {u"kind"_qs, u"update"_qs},
        {u"lane"_qs, u"founderStory"_qs},
        {u"publishedAt"_qs, u"2026-08-22T13:16:05.000Z"_qs},
        {u"observedAt"_qs, u"2026-08-27T00:42:11.669Z"_qs},
        {u"originalURL"_qs, u"https://origin.example/s"_qs},
        {u"relatedSources"_qs,
         QJsonArray{
             QJsonObject{{u"label"_qs, u"官网"_qs}, {u"url"_qs, u"https://related.example/"_qs}}}},
        {u"source"_qs, u"来源"_qs},
        {u"title"_qs, u"标题"_qs},
        {u"summary"_qs, u"摘要"_qs},
        {u"updateSummary"_qs, u"变化"_qs},
        {u"digest"_qs, u"要点"_qs},
        {u"why"_qs, u"理由"_qs},
        {u"caveat"_qs, u"限制"_qs},
        {u"timeline"_qs, QJsonArray{QJsonObject{{u"dateLabel"_qs, u"8 月 25 日"_qs},
                                                {u"date"_qs, u"2026-08-25T00:00:00Z"_qs},
                                                {u"summary"_qs, u"出现"_qs},
                                                {u"source"_qs, u"榜单"_qs}}}},
        {u"followTarget"_qs, QJsonObject{{u"id"_qs, u"t"_qs},
                                         {u"label"_qs, u"页面"_qs},
                                         {u"scope"_qs, u"公开变化"_qs},
                                         {u"url"_qs, u"https://t.example/"_qs},
                                         {u"updateMode"_qs, u"verified-change"_qs},
                                         {u"discoveryRef"_qs, u"d#1"_qs}}},
        {u"ingestion"_qs, QJsonObject{{u"mode"_qs, u"editorial"_qs},
                                      {u"adapter"_qs, u"syndication-feed"_qs},
                                      {u"evidenceClass"_qs, u"team-report"_qs},
                                      {u"observationRef"_qs, u"o#1"_qs},
                                      {u"changeRef"_qs, u"c#1"_qs},
                                      {u"supportingEvidence"_qs,
                                       QJsonArray{QJsonObject{{u"role"_qs, u"businessFact"_qs},
                                                              {u"observationRef"_qs, u"o#2"_qs},
                                                              {u"changeRef"_qs, u"c#2"_qs}}}}}},
    };
}

std::optional<InformationSignal> decodedWith(const QString& path, const QJsonValue& value)
{
    return decode<InformationSignal>(editedJson(fullObject(), path, value));
}

} // namespace

class InformationSignalCodingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFieldHasItsKey()
    {
        const InformationSignal signal{
            .id = u"s"_qs,
            .kind = InformationSignalKind::Update,
            .lane = InformationLane::FounderStory,
            .publishedAt = u"2026-08-22T13:16:05.000Z"_qs,
            .observedAt = u"2026-08-27T00:42:11.669Z"_qs,
            .originalURL = u"https://origin.example/s"_qs,
            .relatedSources = {{u"官网"_qs, u"https://related.example/"_qs}},
            .source = u"来源"_qs,
            .title = u"标题"_qs,
            .summary = u"摘要"_qs,
            .updateSummary = u"变化"_qs,
            .digest = u"要点"_qs,
            .why = u"理由"_qs,
            .caveat = u"限制"_qs,
            .timeline = {{u"8 月 25 日"_qs, u"2026-08-25T00:00:00Z"_qs, u"出现"_qs, u"榜单"_qs}},
            .followTarget = {.id = u"t"_qs,
                             .label = u"页面"_qs,
                             .scope = u"公开变化"_qs,
                             .url = u"https://t.example/"_qs,
                             .updateMode = InformationFollowUpdateMode::VerifiedChange,
                             .discoveryRef = u"d#1"_qs},
            .ingestion = {.mode = InformationIngestionMode::Editorial,
                          .adapter = u"syndication-feed"_qs,
                          .evidenceClass = InformationEvidenceClass::TeamReport,
                          .observationRef = u"o#1"_qs,
                          .changeRef = u"c#1"_qs,
                          .supportingEvidence = {{InformationSupportingEvidenceRole::BusinessFact,
                                                  u"o#2"_qs, u"c#2"_qs}}},
        };
        QCOMPARE(encode(signal), fullObject());
        QCOMPARE(decode<InformationSignal>(fullObject()), signal);
    }

    void absentFieldsAreLeftOut()
    {
        const QJsonObject object = encode(sampleSignal(u"s"_qs));

        QCOMPARE(
            object.keys(),
            QStringList({u"caveat"_qs, u"followTarget"_qs, u"id"_qs, u"ingestion"_qs, u"kind"_qs,
                         u"lane"_qs, u"observedAt"_qs, u"originalURL"_qs, u"relatedSources"_qs,
                         u"source"_qs, u"summary"_qs, u"timeline"_qs, u"title"_qs, u"why"_qs}));
        QCOMPARE(object.value(u"followTarget").toObject().keys(),
                 QStringList({u"id"_qs, u"label"_qs, u"scope"_qs, u"updateMode"_qs, u"url"_qs}));
        QCOMPARE(object.value(u"ingestion").toObject().keys(),
                 QStringList(
                     {u"adapter"_qs, u"evidenceClass"_qs, u"mode"_qs, u"supportingEvidence"_qs}));
        QCOMPARE(decode<InformationSignal>(object), sampleSignal(u"s"_qs));
    }

    void optionalFieldsMayBeMissing_data()
    {
        QTest::addColumn<QString>("path");
        for (const char* path :
             {"publishedAt", "updateSummary", "digest", "followTarget/discoveryRef",
              "ingestion/observationRef", "ingestion/changeRef"}) {
            QTest::newRow(path) << QString::fromLatin1(path);
        }
    }

    void optionalFieldsMayBeMissing()
    {
        QFETCH(QString, path);
        QVERIFY(decodedWith(path, QJsonValue::Undefined));
        QVERIFY(decodedWith(path, QJsonValue::Null));
        QVERIFY(decodedWith(path, u"text"_qs));
        QVERIFY(!decodedWith(path, 1));
    }

    void otherFieldsAreRequired_data()
    {
        QTest::addColumn<QString>("path");
        for (const char* path : {"id",
                                 "kind",
                                 "lane",
                                 "observedAt",
                                 "originalURL",
                                 "relatedSources",
                                 "source",
                                 "title",
                                 "summary",
                                 "why",
                                 "caveat",
                                 "timeline",
                                 "followTarget",
                                 "ingestion",
                                 "relatedSources/0/label",
                                 "relatedSources/0/url",
                                 "timeline/0/dateLabel",
                                 "timeline/0/date",
                                 "timeline/0/summary",
                                 "timeline/0/source",
                                 "followTarget/id",
                                 "followTarget/label",
                                 "followTarget/scope",
                                 "followTarget/url",
                                 "followTarget/updateMode",
                                 "ingestion/mode",
                                 "ingestion/adapter",
                                 "ingestion/evidenceClass",
                                 "ingestion/supportingEvidence",
                                 "ingestion/supportingEvidence/0/role",
                                 "ingestion/supportingEvidence/0/observationRef",
                                 "ingestion/supportingEvidence/0/changeRef"}) {
            QTest::newRow(path) << QString::fromLatin1(path);
        }
    }

    void otherFieldsAreRequired()
    {
        QFETCH(QString, path);
        QVERIFY(!decodedWith(path, QJsonValue::Undefined));
        QVERIFY(!decodedWith(path, QJsonValue::Null));
        QVERIFY(!decodedWith(path, 1));
        QVERIFY(!decodedWith(path, true));
    }

    void unknownTokensDoNotDecode_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("token");

        QTest::newRow("kind") << u"kind"_qs << u"New"_qs;
        QTest::newRow("lane") << u"lane"_qs << u"founder-story"_qs;
        QTest::newRow("updateMode") << u"followTarget/updateMode"_qs << u"verifiedChange"_qs;
        QTest::newRow("mode") << u"ingestion/mode"_qs << u""_qs;
        QTest::newRow("evidenceClass") << u"ingestion/evidenceClass"_qs << u"teamReport"_qs;
        QTest::newRow("role as packs write it")
            << u"ingestion/supportingEvidence/0/role"_qs << u"business-fact"_qs;
    }

    void unknownTokensDoNotDecode()
    {
        QFETCH(QString, path);
        QFETCH(QString, token);
        QVERIFY(!decodedWith(path, token));
    }

    void listEntriesAreObjects()
    {
        QVERIFY(decodedWith(u"timeline"_qs, QJsonArray()));
        QVERIFY(!decodedWith(u"timeline"_qs, QJsonArray({QJsonValue::Null})));
        QVERIFY(!decodedWith(u"timeline"_qs, QJsonArray({u"text"_qs})));
        QVERIFY(!decodedWith(u"timeline"_qs, QJsonObject()));
    }

    void otherKeysAreIgnored()
    {
        QCOMPARE(decodedWith(u"other"_qs, 1), decode<InformationSignal>(fullObject()));
    }

    void partsHaveTheirOwnForm()
    {
        const InformationSignal signal = decode<InformationSignal>(fullObject()).value();

        const auto roundTrips = [](const auto& record) {
            return decode<std::decay_t<decltype(record)>>(encode(record)) == record;
        };
        QVERIFY(roundTrips(signal.followTarget));
        QVERIFY(roundTrips(signal.ingestion));
        QVERIFY(roundTrips(signal.ingestion.supportingEvidence.first()));
        QVERIFY(roundTrips(signal.timeline.first()));
        QVERIFY(roundTrips(signal.relatedSources.first()));
        QCOMPARE(encode(signal.relatedSources.first()),
                 fullObject().value(u"relatedSources").toArray().first().toObject());
    }
};

TEST_SUBJECT(InformationSignalCodingTest)
#include "InformationSignalCodingTest.moc"
