// SPDX-License-Identifier: Apache-2.0

#include "SourcesPage.h"
#include "Subject.h"

#include <QTest>

namespace {

QList<InformationSourceEntry> sampleRegistry(qsizetype count)
{
    QList<InformationSourceEntry> registry;
    for (qsizetype i = 0; i < count; ++i) {
        const QString id = QString::number(i);
        registry.append({id, u"信源 "_qs + id, u"技术博客 · 英文"_qs, u"一手实践"_qs,
                         u"https://source.example/"_qs + id});
    }
    return registry;
}

} // namespace

class SourcesPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheCompiledInRegistry()
    {
        const SourcesPage page;

        QCOMPARE(page.registrySubtitle(), u"15 路订阅源，经人工评审后注册。"_qs);
        QCOMPARE(page.registry().size(), 15);
        const auto& productHunt = page.registry()[2];
        QCOMPARE(productHunt.number, u"03"_qs);
        QCOMPARE(productHunt.name, u"Product Hunt"_qs);
        QCOMPARE(productHunt.description, u"产品发布榜 · 英文，新产品首发与社区热度信号。"_qs);
        for (const auto& row : page.registry()) {
            QVERIFY2(!row.address.isEmpty(), qUtf8Printable(row.name));
        }
    }

    void numbersTheRegistry_data()
    {
        QTest::addColumn<qsizetype>("count");
        QTest::addColumn<QString>("subtitle");
        QTest::addColumn<QString>("last");

        QTest::newRow("one") << qsizetype(1) << u"1 路订阅源，经人工评审后注册。"_qs << u"01"_qs;
        QTest::newRow("two digits")
            << qsizetype(12) << u"12 路订阅源，经人工评审后注册。"_qs << u"12"_qs;
        QTest::newRow("three digits")
            << qsizetype(168) << u"168 路订阅源，经人工评审后注册。"_qs << u"168"_qs;
    }

    void numbersTheRegistry()
    {
        QFETCH(qsizetype, count);

        const SourcesPage page(sampleRegistry(count));

        QTEST(page.registrySubtitle(), "subtitle");
        QCOMPARE(page.registry().first().number, u"01"_qs);
        QTEST(page.registry().last().number, "last");
    }

    void aHomePageThatCannotBeOpenedHasNoAddress()
    {
        auto registry = sampleRegistry(2);
        registry[1].url = u"source.example"_qs;

        const SourcesPage page(registry);

        QCOMPARE(page.registry()[0].address, u"https://source.example/0"_qs);
        QCOMPARE(page.registry()[1].address, QString());
    }

    void saysWhereCardsComeFrom()
    {
        QCOMPARE(SourcesPage::eyebrow(), u"SOURCES · 信源透明"_qs);
        QCOMPARE(SourcesPage::title(), u"每一张卡从哪里来，全部摊开。"_qs);
        QCOMPARE(
            SourcesPage::lead(),
            u"Corvanite 从订阅、直采与社区三类公开信源采集，每天 06:00 / 12:00 / 18:00（北京时间）自动运行。这份清单与生产管线使用同一份注册表——“少而可信”必须可以被核对：你可以直接验证我们的取舍宽度，来源方也能看清自己如何被引用。"_qs);
        QCOMPARE(SourcesPage::registryEyebrow(), u"SYNDICATED · 订阅源"_qs);
        QCOMPARE(
            SourcesPage::registryNote(),
            u"快照只保留标题、链接与时间戳（不存正文），条目变化进入候选队列，由编辑复核后才可能成卡。"_qs);
        QCOMPARE(SourcesPage::directEyebrow(), u"DIRECT · 直采与社区"_qs);
        QCOMPARE(SourcesPage::directSubtitle(), u"结构化数据直接采集，社区信号单独观察。"_qs);
        QCOMPARE(
            SourcesPage::directText(),
            u"除订阅源外，管线还直接采集 GitHub 仓库与趋势榜、Hacker News 及其产品雷达、OpenRouter 模型库、V2EX 热帖，并对重点官方页面做定期快照比对。这类源天然结构化，走各自的证据契约。"_qs);
        QCOMPARE(SourcesPage::contractEyebrow(), u"THE CONTRACT · 引用规则"_qs);
        QCOMPARE(SourcesPage::contractSubtitle(), u"聚合器只是线索，canonical 永远是原作者。"_qs);
        QCOMPARE(SourcesPage::governanceHeadline(), u"加源要过评审，退源留得下痕迹。"_qs);
        QCOMPARE(
            SourcesPage::governanceText(),
            u"每一路源都登记在受版本管理的注册表里，采集走统一的安全边界（域名白名单、响应体上限、私网地址拒绝）。任何一路要退出或更正展示，我们直接照办，并保留历史归档以维持既有卡片的可验证性。"_qs);
    }

    void listsWhatIsCollectedDirectly()
    {
        const QList<LabelledTextRow> items{
            {u"GitHub"_qs, u"仓库与周度趋势榜：星标、发布与 README 变化"_qs},
            {u"Hacker News"_qs, u"热榜与产品雷达：讨论热度与产品发现的交叉信号"_qs},
            {u"OpenRouter"_qs, u"模型库：模型、价格与上下文变化"_qs},
            {u"V2EX"_qs, u"中文独立开发者社区的一手讨论"_qs},
            {u"官方页面"_qs, u"重点官网与文档的定期快照比对"_qs},
        };
        QCOMPARE(SourcesPage::directItems(), items);
    }

    void listsTheCitationRules()
    {
        const QList<LabelledTextRow> rules{
            {u"原文优先"_qs,
             u"成卡时 originalUrl 指向原始出处；聚合器条目只作为发现源记入关联信源。"_qs},
            {u"不搬正文"_qs, u"快照不存储聚合器的摘要与翻译；条目变化只有标题、链接与时间戳。"_qs},
            {u"编辑复核后自写文案"_qs,
             u"卡片为什么值得看与最大限制由编辑打开原文复核后自写；受墙或不稳的原文必须有可达备选链接，否则不成卡。"_qs},
        };
        QCOMPARE(SourcesPage::contractRules(), rules);
    }
};

TEST_SUBJECT(SourcesPageTest)
#include "SourcesPageTest.moc"
