// SPDX-License-Identifier: Apache-2.0

#include "InformationSeed.h"

#include "InformationPackSync.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QSet>
#include <QTest>

class InformationSeedTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesItsEdition()
    {
        QCOMPARE(InformationSeed::schemaVersion(), u"corvanite-public-information-pack-v6"_qs);
        QCOMPARE(InformationSeed::schemaVersion(), InformationPackSync::expectedSchemaVersion);
        QCOMPARE(InformationSeed::selectionPolicyVersion(), u"corvanite-public-auto-v1"_qs);
        QCOMPARE(InformationSeed::asOf(), u"2026-08-27T04:01:03.784Z"_qs);
        QCOMPARE(InformationSeed::checkedEntryCount(), 478);
    }

    void hasItsSignals()
    {
        QCOMPARE(InformationSeed::signals().size(), 22);
        QCOMPARE(InformationSeed::retiredSignals().size(), 7);

        const QStringList current = idsOf(InformationSeed::signals());
        for (const auto& id :
             {u"product-hunt-chatcut-ai-video-editor"_qs, u"github-weekly-modular"_qs,
              u"hn-product-terminal-code"_qs, u"readwise-reader-update-14"_qs,
              u"v2ex-browser-k-meleon-rematch"_qs}) {
            QVERIFY2(current.contains(id), qPrintable(id));
        }
        const QStringList retired = idsOf(InformationSeed::retiredSignals());
        for (const auto& id : {u"github-weekly-diagram-design"_qs, u"hn-product-proliferate"_qs}) {
            QVERIFY2(retired.contains(id), qPrintable(id));
        }
    }

    void idsAreUniqueOverBothLists()
    {
        const QStringList ids =
            idsOf(InformationSeed::signals()) + idsOf(InformationSeed::retiredSignals());
        QCOMPARE(QSet<QString>(ids.begin(), ids.end()).size(), 29);
    }

    void firstSignalIsComplete()
    {
        const InformationSignal& signal = InformationSeed::signals().first();
        QCOMPARE(signal.id, u"product-hunt-chatcut-ai-video-editor"_qs);
        QCOMPARE(signal.kind, InformationSignalKind::New);
        QCOMPARE(signal.lane, InformationLane::ProductRadar);
        QCOMPARE(signal.publishedAt, u"2026-08-22T13:16:05.000Z"_qs);
        QCOMPARE(signal.observedAt, u"2026-08-27T00:42:11.669Z"_qs);
        QCOMPARE(signal.source, u"Product Hunt 官方 Atom 精选流"_qs);
        QCOMPARE(signal.title, u"Product Hunt 新品：ChatCut Desktop"_qs);
        QCOMPARE(signal.caveat, u"上架条目与描述来自产品方，不是独立评测；Product Hunt 在中国大陆"
                                u"访问不稳定。"_qs);

        QCOMPARE(signal.timeline.size(), 1);
        QCOMPARE(signal.timeline.first().dateLabel, u"2026-08-27"_qs);
        QCOMPARE(signal.timeline.first().date, u"2026-08-27T03:18:25.497Z"_qs);
        QCOMPARE(signal.timeline.first().source, u"Product Hunt Atom 精选流"_qs);

        QCOMPARE(signal.followTarget.id, u"product:chatcut-ai-video-editor"_qs);
        QCOMPARE(signal.followTarget.label, u"ChatCut Desktop 产品页"_qs);
        QCOMPARE(signal.followTarget.scope, u"上架条目的公开变化"_qs);
        QCOMPARE(signal.followTarget.updateMode, InformationFollowUpdateMode::VerifiedChange);
        QCOMPARE(signal.followTarget.discoveryRef, std::nullopt);

        QCOMPARE(signal.ingestion.adapter, u"syndication-feed"_qs);
        QCOMPARE(signal.ingestion.evidenceClass, InformationEvidenceClass::CreatorSelfReport);
        QCOMPARE(signal.ingestion.observationRef,
                 u"source-observations/syndication-feeds.snapshot.json#feed:product-hunt-feed"_qs);
        QVERIFY(signal.ingestion.supportingEvidence.isEmpty());
    }

    void usesTheKnownCollectionChannels()
    {
        QSet<QString> adapters;
        for (const auto& signal : InformationSeed::signals()) {
            adapters.insert(signal.ingestion.adapter);
        }
        for (const auto& adapter :
             {u"syndication-feed"_qs, u"v2ex-hot"_qs, u"reviewed-product-promotion"_qs,
              u"reviewed-github-trending-promotion"_qs, u"github-trending-auto"_qs}) {
            QVERIFY2(adapters.contains(adapter), qPrintable(adapter));
        }
    }

    void hasItsSelectionHistory()
    {
        const QList<std::pair<QString, qint64>> days{
            {u"2026-08-22"_qs, 12}, {u"2026-08-23"_qs, 14}, {u"2026-08-24"_qs, 17},
            {u"2026-08-25"_qs, 26}, {u"2026-08-26"_qs, 27}, {u"2026-08-27"_qs, 22}};
        QCOMPARE(InformationSeed::selectionHistory().size(), days.size());
        for (qsizetype index = 0; index < days.size(); ++index) {
            const SelectionDay& day = InformationSeed::selectionHistory().at(index);
            QCOMPARE(day.date, days.at(index).first);
            QCOMPARE(day.totalShown, days.at(index).second);
            QCOMPARE(day.focusSignalIds.size(), 3);
        }
    }

    void everyFeaturedSignalIsThere()
    {
        const QStringList current = idsOf(InformationSeed::signals());
        const QStringList known = current + idsOf(InformationSeed::retiredSignals());
        for (const auto& day : InformationSeed::selectionHistory()) {
            for (const auto& id : day.focusSignalIds) {
                QVERIFY2(known.contains(id), qPrintable(id));
            }
        }
        for (const auto& id : InformationSeed::selectionHistory().last().focusSignalIds) {
            QVERIFY2(current.contains(id), qPrintable(id));
        }
    }

    void listsItsRegistryInOrder_data()
    {
        QTest::addColumn<int>("place");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("take");
        QTest::addColumn<QString>("url");

        int place = 0;
        const auto row = [&](const char* id, const QString& name, const QString& kind,
                             const QString& take, const QString& url) {
            QTest::newRow(id) << place++ << name << kind << take << url;
        };
        row("english-llm-weblog", u"英文个人技术博客"_qs, u"个人技术博客 · 英文"_qs,
            u"LLM 应用工程的一手实践与工具链变化"_qs, u"https://ooh.directory/"_qs);
        row("chinese-curated-blog", u"中文个人精选博客"_qs, u"个人精选博客 · 中文"_qs,
            u"海外 AI 动态的中文转述与评论线索"_qs, u"https://www.travellings.cn/"_qs);
        row("product-hunt-feed", u"Product Hunt"_qs, u"产品发布榜 · 英文"_qs,
            u"新产品首发与社区热度信号"_qs, u"https://www.producthunt.com/"_qs);
        row("lobsters-hotstories", u"Lobsters"_qs, u"技术社区热榜 · 英文"_qs,
            u"计算机与开源社区的讨论型线索"_qs, u"https://lobste.rs/"_qs);
        row("tldr-tech-daily", u"TLDR Tech"_qs, u"技术日报 · 英文"_qs,
            u"跨领域技术要点的每日交叉核对"_qs, u"https://tldr.tech/"_qs);
        row("aihot-featured", u"AIHOT"_qs, u"AI 聚合精选 · 中文"_qs,
            u"168 路 AI 信源的发现线索，仅取标题与原文入口"_qs, u"https://aihot.virxact.com/"_qs);
        row("alphasignal-daily", u"AlphaSignal"_qs, u"工程师 AI 日报 · 英文"_qs,
            u"论文、仓库与模型发布的工程视角线索"_qs, u"https://alphasignal.ai/"_qs);
        row("reddit-local-llama", u"r/LocalLLaMA"_qs, u"Reddit 社区 · 英文"_qs,
            u"本地模型社区的实测讨论与一手反馈"_qs, u"https://www.reddit.com/r/LocalLLaMA/"_qs);
        row("pragmatic-engineer", u"The Pragmatic Engineer"_qs, u"工程管理通讯 · 英文"_qs,
            u"大型科技公司工程实践与团队管理一手复盘"_qs,
            u"https://newsletter.pragmaticengineer.com/"_qs);
        row("english-ai-business-newsletter", u"英文 AI 商业通讯"_qs, u"AI 商业日报 · 英文"_qs,
            u"AI 商业化与创业机会的每日发现线索"_qs, u"https://www.superhuman.ai/"_qs);
        row("the-rundown-ai", u"The Rundown AI"_qs, u"AI 行业日报 · 英文"_qs,
            u"AI 行业动态与平台变化的每日跟踪"_qs, u"https://www.therundown.ai/"_qs);
        row("dev-to-articles", u"DEV Community"_qs, u"开发者社区 · 英文"_qs,
            u"工作流与方法的前沿实践与教程"_qs, u"https://dev.to/"_qs);
        row("ars-technica", u"Ars Technica"_qs, u"科技媒体 · 英文"_qs,
            u"深度科技报道与平台政策变化"_qs, u"https://arstechnica.com/"_qs);
        row("the-verge", u"The Verge"_qs, u"消费科技媒体 · 英文"_qs,
            u"消费科技与产品发布的一手报道"_qs, u"https://www.theverge.com/"_qs);
        row("css-tricks", u"CSS-Tricks"_qs, u"前端技术 · 英文"_qs, u"前端工程方法与 CSS 实践"_qs,
            u"https://css-tricks.com/"_qs);
    }

    void listsItsRegistryInOrder()
    {
        QFETCH(int, place);
        QCOMPARE(InformationSeed::registrySources().size(), 15);
        const auto& entry = InformationSeed::registrySources().at(place);
        QCOMPARE(entry.id, QString::fromLatin1(QTest::currentDataTag()));
        QTEST(entry.name, "name");
        QTEST(entry.kind, "kind");
        QTEST(entry.take, "take");
        QTEST(entry.url, "url");
    }

    void listsAreShared()
    {
        QCOMPARE(&InformationSeed::signals(), &InformationSeed::signals());
        QCOMPARE(InformationSeed::signals().constData(), InformationSeed::signals().constData());
    }

    void registriesThatDecodeOrNot_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<bool>("decodes");

        QTest::newRow("empty") << QByteArray(R"({"sources": []})") << true;
        QTest::newRow("row") << QByteArray(R"({"sources": [{"id": "i", "name": "n", "kind": "k",
                                               "take": "t", "url": "u"}]})")
                             << true;
        QTest::newRow("a key missing")
            << QByteArray(R"({"sources": [{"id": "i", "name": "n", "kind": "k", "take": "t"}]})")
            << false;
        QTest::newRow("no sources") << QByteArray("{}") << false;
        QTest::newRow("no JSON") << QByteArray("sources") << false;
    }

    void registriesThatDecodeOrNot()
    {
        QFETCH(QByteArray, document);
        QTEST(InformationSeed::parseRegistry(document).has_value(), "decodes");
    }
};

TEST_SUBJECT(InformationSeedTest)
#include "InformationSeedTest.moc"
