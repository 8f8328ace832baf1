// SPDX-License-Identifier: Apache-2.0

#include "EditionDiff.h"
#include "SeedFolder.h"
#include "Subject.h"

#include <QTest>

class EditionDiffTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsThatNothingChanges()
    {
        QCOMPARE(EditionDiff::lines(m_seed, m_seed),
                 QStringList{u"按下“同步站点”后什么也不变，显示“已是最新（22 条，2026-08-27）”："
                             "新版的 asOf 要晚于 2026-08-27T04:01:03.784Z"_qs});
    }

    void tellsWhatAReaderWillSee()
    {
        QJsonArray signalList = SeedFolder::packSignals(m_seed);
        const QJsonObject uv = SeedFolder::with(
            signalList.takeAt(2),
            {{u"id"_qs, u"uv-next"_qs}, {u"title"_qs, QJsonObject{{u"zh"_qs, u"uv\n又一版"_qs}}}});
        signalList.append(uv);
        signalList.replace(
            0,
            SeedFolder::with(signalList[0], {{u"lane"_qs, u"workflow"_qs},
                                             {u"title"_qs, QJsonObject{{u"zh"_qs, u"换名"_qs}}}}));
        signalList.replace(
            3,
            SeedFolder::with(signalList[3], {{u"observedAt"_qs, u"2026-08-28T00:00:00.000Z"_qs},
                                             {u"title"_qs, QJsonObject{{u"zh"_qs, u"新版"_qs}}}}));
        QJsonArray days = m_seed.pack->root.value(u"selectionHistory").toArray();
        days.removeFirst();
        days.append(QJsonObject{{u"date"_qs, u"2026-08-28"_qs},
                                {u"focusSignalIds"_qs, QJsonArray{u"uv-next"_qs}},
                                {u"totalShown"_qs, 22}});
        EditionFolder after =
            SeedFolder::withPack(m_seed, {{u"asOf"_qs, u"2026-08-28T04:00:00.000Z"_qs},
                                          {u"signals"_qs, signalList},
                                          {u"selectionHistory"_qs, days}});
        after.appVersion = appVersion(u"1.2.0"_qs);
        EditionFolder before = m_seed;
        before.appVersion = appVersion(u"1.1.0"_qs);

        QCOMPARE(EditionDiff::lines(before, after),
                 (QStringList{
                     u"按下“同步站点”后显示“已同步 22 条 · 2026-08-28”"_qs,
                     u"新来 1 张"_qs,
                     u"  · uv\uFFFD又一版（开源增长，uv-next）：续到已有的脉络"_qs,
                     u"变化 2 张"_qs,
                     u"  · 换名（工作流与方法，product-hunt-chatcut-ai-video-editor）：栏目、标题；"
                     "核验时间没变，隐藏过它的读者看不到这次变化"_qs,
                     u"  · 新版（产品雷达，readwise-reader-update-14）：标题、核验时间"_qs,
                     u"离开 1 张"_qs,
                     leavingLine(u"：不在已退出名单里，往期会找不到它"_qs),
                     u"往期 2 天"_qs,
                     u"  · 2026-08-28：新的一天，入选 1 条，列出 22 条"_qs,
                     u"  · 2026-08-22：不再列出"_qs,
                     u"1.1.0 的程序会提示有 1.2.0"_qs,
                 }));
    }

    void tellsAnotherOrder()
    {
        QJsonArray signalList = SeedFolder::packSignals(m_seed);
        signalList.append(signalList.takeAt(0));
        const EditionFolder after = SeedFolder::withPack(m_seed, {{u"signals"_qs, signalList}});
        QCOMPARE(EditionDiff::lines(m_seed, after).last(), u"留下的卡片换了先后"_qs);
    }

private:
    static EditionDocument appVersion(const QString& version)
    {
        const QJsonObject root{{u"version"_qs, version}};
        return EditionDocument::read(u"information-app-version.json"_qs,
                                     QJsonDocument(root).toJson())
            .value();
    }

    QString leavingLine(const QString& end) const
    {
        const QJsonValue signal = SeedFolder::packSignals(m_seed).at(2);
        return u"  · %1（开源增长，github-trending-uv）"_qs.arg(
                   signal[u"title"][u"zh"].toString()) +
               end;
    }

    const EditionFolder m_seed = SeedFolder::read();
};

TEST_SUBJECT(EditionDiffTest)
#include "EditionDiffTest.moc"
