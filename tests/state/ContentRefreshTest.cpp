// SPDX-License-Identifier: Apache-2.0

#include "ContentRefresh.h"

#include "FakeSiteClient.h"
#include "MemoryFileManager.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QCoroTask>
#include <QTest>

using ContentRefresh::Outcome;

/// Of a refresh alone; what the model makes of it is RefreshTest's.
class ContentRefreshTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysHowItEnded_data()
    {
        QTest::addColumn<Outcome>("outcome");
        QTest::addColumn<QString>("note");

        QTest::newRow("failed") << Outcome{} << u"同步失败，继续使用当前内容"_qs;
        QTest::newRow("up to date") << Outcome{Outcome::Kind::UpToDate, 22, u"2026-09-02"_qs}
                                    << u"已是最新（22 条，2026-09-02）"_qs;
        QTest::newRow("synced") << Outcome{Outcome::Kind::Synced, 3, u"2026-09-03"_qs}
                                << u"已同步 3 条 · 2026-09-03"_qs;
        QTest::newRow("a day with the sign of a place")
            << Outcome{Outcome::Kind::Synced, 3, u"%1"_qs} << u"已同步 3 条 · %1"_qs;
    }

    void saysHowItEnded()
    {
        QFETCH(Outcome, outcome);

        QTEST(outcome.note(), "note");
    }

    void doesNothingMoreOnceTheAskerIsGone()
    {
        const MemoryFileManager files;
        FakeSiteClient site;
        site.heldPaths = {SiteClient::packPath};
        auto asker = std::make_unique<QObject>();
        const auto task = ContentRefresh::run(asker.get(), site, files, {{}, {}, {}, {}});

        asker.reset();
        site.release();

        QVERIFY(task.isReady());
        QCOMPARE(site.requests.size(), 1);
        QVERIFY(files.files.isEmpty());
    }
};

TEST_SUBJECT(ContentRefreshTest)
#include "ContentRefreshTest.moc"
