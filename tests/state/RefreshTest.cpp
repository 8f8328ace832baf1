// SPDX-License-Identifier: Apache-2.0

#include "RefreshSample.h"
#include "SiteDocuments.h"
#include "Subject.h"

#include <QTest>

using namespace RefreshSample;

/// What a refresh does with the pack.
class RefreshTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_model.reset();
        m_sample = RefreshSample::make();
        m_model = m_sample.make();
    }

    void showsAndStoresANewerPack()
    {
        const QByteArray pack = SiteDocuments::pack(laterAsOf, {u"a"_qs, u"b"_qs},
                                                    {u"2026-09-02"_qs, u"2026-09-03"_qs});
        const QByteArray retired = SiteDocuments::retired({u"old"_qs});
        offerPack(pack);
        m_sample.site->offer(SiteClient::retiredSignalsPath, retired);

        m_model->refreshPackFromSite();

        QCOMPARE(*m_model->packSyncNote(), u"已同步 2 条 · 2026-09-03"_qs);
        QVERIFY(!m_model->packSyncFailed());
        QVERIFY(!m_model->isSyncingPack());
        QCOMPARE(idsOf(m_model->signals()), (QStringList{u"a"_qs, u"b"_qs}));
        QCOMPARE(idsOf(m_model->retiredSignals()), QStringList{u"old"_qs});
        QCOMPARE(m_model->selectionDays().size(), 2);
        QCOMPARE(m_model->packAsOf(), laterAsOf);
        QCOMPARE(m_sample.files.files,
                 (QHash<QString, QByteArray>{{packFile, pack}, {retiredFile, retired}}));
        QCOMPARE(m_sample.site->requests, (QList{packRequest, retiredRequest}));
    }

    void showsTheNewContentAfterARestart()
    {
        offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs}, {u"2026-09-03"_qs}));
        offerRetired({u"old"_qs});

        m_model->refreshPackFromSite();

        const auto content = InformationContent::atStart(m_sample.files);
        QCOMPARE(content.signals(), m_model->signals());
        QCOMPARE(content.retiredSignals(), m_model->retiredSignals());
        QCOMPARE(content.selectionDays(), m_model->selectionDays());
        QCOMPARE(content.packAsOf(), laterAsOf);
    }

    void failsWithoutAChange_data()
    {
        QTest::addColumn<SiteClient::Answer>("answer");

        const QByteArray pack = SiteDocuments::pack(laterAsOf, {u"a"_qs});
        const auto row = [](const char* name, const QByteArray& body, int status) {
            QTest::newRow(name) << SiteClient::Answer(SiteReply{body, status});
        };
        QTest::newRow("no answer") << SiteClient::Answer(std::unexpected(SiteError::Transport));
        QTest::newRow("too large to load")
            << SiteClient::Answer(std::unexpected(SiteError::TooLarge));
        row("created", pack, 201);
        row("partial content", pack, 206);
        row("redirect", pack, 302);
        row("not modified", {}, 304);
        row("not found", pack, 404);
        row("server error", pack, 500);
        row("empty", {}, 200);
        row("not JSON", "<html></html>", 200);
        row("cut short", pack.first(pack.size() / 2), 200);
        row("one byte too long", pack.leftJustified(InformationPackSync::maximumPackBytes + 1),
            200);
        row("other schema", QByteArray(pack).replace("-v6", "-v5"), 200);
        row("no signals", SiteDocuments::pack(laterAsOf, {}), 200);
        QTest::newRow("not JSON and not HTTP") << SiteClient::Answer(SiteReply{"x", std::nullopt});
    }

    void failsWithoutAChange()
    {
        QFETCH(SiteClient::Answer, answer);
        m_sample.site->answers.insert(SiteClient::packPath, answer);

        m_model->refreshPackFromSite();

        QCOMPARE(*m_model->packSyncNote(), failedNote);
        QVERIFY(m_model->packSyncFailed());
        QVERIFY(!m_model->isSyncingPack());
        QCOMPARE(shownBy(*m_model), m_sample.shown());
        QVERIFY(m_sample.files.files.isEmpty());
        QCOMPARE(m_sample.site->requests, QList{packRequest});
    }

    void failsWithoutAChangeWhenThePackCannotBeStored()
    {
        offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs}));
        m_sample.files.files.insert(packFile, "the pack before");
        m_sample.files.writeFailures.insert(packFile, FileError{FileError::Reason::NoSpace});

        m_model->refreshPackFromSite();

        QCOMPARE(*m_model->packSyncNote(), failedNote);
        QCOMPARE(shownBy(*m_model), m_sample.shown());
        QCOMPARE(m_sample.files.files, (QHash<QString, QByteArray>{{packFile, "the pack before"}}));
        QCOMPARE(m_sample.site->requests, QList{packRequest});
    }

    void leavesContentThatIsNotOlder_data()
    {
        QTest::addColumn<QString>("asOf");
        QTest::addColumn<QString>("note");

        QTest::newRow("same") << shownAsOf << u"已是最新（2 条，2026-09-02）"_qs;
        QTest::newRow("older") << u"2026-09-01T04:00:00Z"_qs << u"已是最新（2 条，2026-09-01）"_qs;
        QTest::newRow("same with a fraction")
            << u"2026-09-02T04:00:00.000Z"_qs << u"已是最新（2 条，2026-09-02）"_qs;
        QTest::newRow("shorter than a day") << u"2026"_qs << u"已是最新（2 条，2026）"_qs;
        QTest::newRow("a character of two units")
            << u"2026-08-2😀T"_qs << u"已是最新（2 条，2026-08-2😀）"_qs;
        QTest::newRow("empty") << QString() << u"已是最新（2 条，）"_qs;
    }

    void leavesContentThatIsNotOlder()
    {
        QFETCH(QString, asOf);
        offerPack(SiteDocuments::pack(asOf, {u"a"_qs, u"b"_qs}));

        m_model->refreshPackFromSite();

        QTEST(*m_model->packSyncNote(), "note");
        QVERIFY(!m_model->packSyncFailed());
        QCOMPARE(shownBy(*m_model), m_sample.shown());
        QVERIFY(m_sample.files.files.isEmpty());
        QCOMPARE(m_sample.site->requests, QList{packRequest});
    }

    void takesThePackOfTheGreatestLength()
    {
        offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs})
                      .leftJustified(InformationPackSync::maximumPackBytes));

        m_model->refreshPackFromSite();

        QCOMPARE(*m_model->packSyncNote(), u"已同步 1 条 · 2026-09-03"_qs);
        QCOMPARE(m_sample.files.files.value(packFile).size(), 1'500'000);
    }

    void takesAnAnswerThatIsNotHttp()
    {
        m_sample.site->answers.insert(
            SiteClient::packPath,
            SiteReply{SiteDocuments::pack(laterAsOf, {u"a"_qs}), std::nullopt});

        m_model->refreshPackFromSite();

        QCOMPARE(*m_model->packSyncNote(), u"已同步 1 条 · 2026-09-03"_qs);
        QCOMPARE(idsOf(m_model->signals()), QStringList{u"a"_qs});
    }

    void countsTheSignalsOfThePack()
    {
        offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs, u"b"_qs, u"a"_qs}));

        m_model->refreshPackFromSite();

        QCOMPARE(*m_model->packSyncNote(), u"已同步 3 条 · 2026-09-03"_qs);
        QCOMPARE(idsOf(m_model->signals()), (QStringList{u"a"_qs, u"b"_qs}));
    }

    void keepsTheHistoryWhenThePackHasNone()
    {
        offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs}, {}));

        m_model->refreshPackFromSite();

        QCOMPARE(idsOf(m_model->signals()), QStringList{u"a"_qs});
        QCOMPARE(m_model->selectionDays(), m_sample.selectionDays);
    }

    void showsThePackForThisRunWithoutADirectory()
    {
        m_sample.files.supportDirectory.reset();
        offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs}));

        m_model->refreshPackFromSite();

        QCOMPARE(*m_model->packSyncNote(), u"已同步 1 条 · 2026-09-03"_qs);
        QCOMPARE(idsOf(m_model->signals()), QStringList{u"a"_qs});
        QCOMPARE(m_model->retiredSignals(), m_sample.retiredSignals);
        QVERIFY(m_sample.files.files.isEmpty());
        QCOMPARE(m_sample.site->requests, QList{packRequest});
    }

    void letsDerivedListsFollow()
    {
        QCOMPARE(idsOf(m_model->visibleSignals()), QStringList{u"old"_qs});
        QCOMPARE(m_model->archiveDays().size(), 1);
        QCOMPARE(m_model->weeklyWeeks().size(), 1);
        QVERIFY(m_model->signalById(u"gone"_qs));
        offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs, u"b"_qs},
                                      {u"2026-08-24"_qs, u"2026-09-02"_qs, u"2026-09-03"_qs}));
        offerRetired({u"old"_qs});

        m_model->refreshPackFromSite();

        QCOMPARE(idsOf(m_model->visibleSignals()), (QStringList{u"a"_qs, u"b"_qs}));
        QCOMPARE(m_model->laneAllCount(), 2);
        QCOMPARE(m_model->archiveDays().size(), 3);
        QCOMPARE(m_model->weeklyWeeks().size(), 2);
        QVERIFY(m_model->signalById(u"old"_qs));
        QVERIFY(!m_model->signalById(u"gone"_qs));
    }

    void keepsTheOpenArchiveDay()
    {
        m_model->openArchiveDay(u"2026-09-01"_qs);
        offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs}, {u"2026-09-03"_qs}));

        m_model->refreshPackFromSite();

        QCOMPARE(*m_model->selectedArchiveDay(), u"2026-09-01"_qs);
        QCOMPARE(m_model->surface(), InformationModel::Surface::Archive);
    }

    void leavesTheWorkspaceAlone()
    {
        m_model->toggleKeep(u"old"_qs);
        const auto workspace = m_model->workspace();
        const auto receipt = m_model->receipt();
        const auto files = m_sample.files.files;
        offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs}));
        offerRetired({u"old"_qs});

        m_model->refreshPackFromSite();

        QCOMPARE(m_model->workspace(), workspace);
        QCOMPARE(m_model->receipt(), receipt);
        QVERIFY(m_model->canUndo());
        QVERIFY(m_model->signalById(u"old"_qs));
        for (auto file = files.begin(); file != files.end(); ++file) {
            QCOMPARE(m_sample.files.files.value(file.key()), file.value());
        }
    }

private:
    void offerPack(const QByteArray& pack) { m_sample.site->offer(SiteClient::packPath, pack); }
    void offerRetired(const QStringList& ids)
    {
        m_sample.site->offer(SiteClient::retiredSignalsPath, SiteDocuments::retired(ids));
    }

    SampleModel m_sample;
    std::unique_ptr<InformationModel> m_model;
};

TEST_SUBJECT(RefreshTest)
#include "RefreshTest.moc"
