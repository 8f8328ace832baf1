// SPDX-License-Identifier: Apache-2.0

#include "SourcesPage.h"

#include "InformationSeed.h"

SourcesPage::SourcesPage(QObject* parent) : SourcesPage(InformationSeed::registrySources(), parent)
{
}

SourcesPage::SourcesPage(const QList<InformationSourceEntry>& registry, QObject* parent)
    : QObject(parent),
      m_registrySubtitle(u"%1 路订阅源，经人工评审后注册。"_qs.arg(registry.size()))
{
    m_registry.reserve(registry.size());
    for (const auto& entry : registry) {
        m_registry.append(SourceEntryRow::from(entry, m_registry.size() + 1));
    }
}

QString SourcesPage::eyebrow()
{
    return u"SOURCES · 信源透明"_qs;
}

QString SourcesPage::title()
{
    return u"每一张卡从哪里来，全部摊开。"_qs;
}

QString SourcesPage::lead()
{
    return u"Corvanite 从订阅、直采与社区三类公开信源采集，每天 06:00 / 12:00 / 18:00"
           u"（北京时间）自动运行。这份清单与生产管线使用同一份注册表——“少而可信”"
           u"必须可以被核对：你可以直接验证我们的取舍宽度，来源方也能看清自己如何被引用。"_qs;
}

QString SourcesPage::registryEyebrow()
{
    return u"SYNDICATED · 订阅源"_qs;
}

QString SourcesPage::registryNote()
{
    return u"快照只保留标题、链接与时间戳（不存正文），条目变化进入候选队列，"
           u"由编辑复核后才可能成卡。"_qs;
}

QString SourcesPage::directEyebrow()
{
    return u"DIRECT · 直采与社区"_qs;
}

QString SourcesPage::directSubtitle()
{
    return u"结构化数据直接采集，社区信号单独观察。"_qs;
}

QString SourcesPage::directText()
{
    return u"除订阅源外，管线还直接采集 GitHub 仓库与趋势榜、Hacker News 及其产品雷达、"
           u"OpenRouter 模型库、V2EX 热帖，并对重点官方页面做定期快照比对。"
           u"这类源天然结构化，走各自的证据契约。"_qs;
}

QList<LabelledTextRow> SourcesPage::directItems()
{
    return {{u"GitHub"_qs, u"仓库与周度趋势榜：星标、发布与 README 变化"_qs},
            {u"Hacker News"_qs, u"热榜与产品雷达：讨论热度与产品发现的交叉信号"_qs},
            {u"OpenRouter"_qs, u"模型库：模型、价格与上下文变化"_qs},
            {u"V2EX"_qs, u"中文独立开发者社区的一手讨论"_qs},
            {u"官方页面"_qs, u"重点官网与文档的定期快照比对"_qs}};
}

QString SourcesPage::contractEyebrow()
{
    return u"THE CONTRACT · 引用规则"_qs;
}

QString SourcesPage::contractSubtitle()
{
    return u"聚合器只是线索，canonical 永远是原作者。"_qs;
}

QList<LabelledTextRow> SourcesPage::contractRules()
{
    return {{u"原文优先"_qs,
             u"成卡时 originalUrl 指向原始出处；聚合器条目只作为发现源记入关联信源。"_qs},
            {u"不搬正文"_qs, u"快照不存储聚合器的摘要与翻译；条目变化只有标题、链接与时间戳。"_qs},
            {u"编辑复核后自写文案"_qs, u"卡片为什么值得看与最大限制由编辑打开原文复核后自写；"
                                       u"受墙或不稳的原文必须有可达备选链接，否则不成卡。"_qs}};
}

QString SourcesPage::governanceHeadline()
{
    return u"加源要过评审，退源留得下痕迹。"_qs;
}

QString SourcesPage::governanceText()
{
    return u"每一路源都登记在受版本管理的注册表里，采集走统一的安全边界"
           u"（域名白名单、响应体上限、私网地址拒绝）。任何一路要退出或更正展示，"
           u"我们直接照办，并保留历史归档以维持既有卡片的可验证性。"_qs;
}
