#include "SampleModel.h"
#include "SiteDocuments.h"
#include "Subject.h"

#include <QSignalSpy>
#include <QTest>

namespace {

const QString packFile = u"/support/Corvanite/Information/information-pack.json"_qs;
const QString retiredFile = u"/support/Corvanite/Information/retired-signals.json"_qs;
const QString shownAsOf = u"2026-09-02T04:00:00Z"_qs;
const QString laterAsOf = u"2026-09-03T04:00:00Z"_qs;
const QString failedNote = u"同步失败，继续使用当前内容"_qs;

const FakeSiteClient::Request packRequest{u"/information-pack.json"_qs, 1'500'000};
const FakeSiteClient::Request retiredRequest{u"/retired-signals.json"_qs, 16 * 1024 * 1024};

const SiteClient::Answer noAnswer = std::unexpected(SiteError::Transport);

InformationContent shownContent()
{
    return {{sampleSignal(u"old"_qs)},
            {sampleSignal(u"gone"_qs)},
            {{u"2026-09-01"_qs, {u"old"_qs}, 3}},
            shownAsOf};
}

} // namespace

Q_DECLARE_METATYPE(SiteClient::Answer)

class RefreshTest : public QObject
{
    Q_OBJECT

private:
    std::optional<SampleModel> m_sample;
    std::unique_ptr<InformationModel> m_model;

    void setAnswer(QLatin1StringView path, const SiteClient::Answer& answer)
    {
        m_sample->site->answers.insert(path, answer);
    }

    void offerPack(const QByteArray& pack)
    {
        setAnswer(SiteClient::packPath, SiteReply{pack, 200});
    }

    void verifyContentUnchanged() const
    {
        QCOMPARE(m_model->signals(), shownContent().signals());
        QCOMPARE(m_model->retiredSignals(), shownContent().retiredSignals());
        QCOMPARE(m_model->selectionDays(), shownContent().selectionDays());
        QCOMPARE(m_model->packAsOf(), shownAsOf);
    }

private Q_SLOTS:
    void init()
    {
        m_model.reset();
        m_sample.emplace();
        m_model = m_sample->make(shownContent(), *m_sample->site, m_sample->files);
    }

    void cleanup()
    {
        m_model.reset();
        m_sample->site.reset();
    }

    void showsAndStoresANewerPack();
    void showsTheNewContentAfterARestart();
    void failsWithoutAChange_data();
    void failsWithoutAChange();
    void failsWithoutAChangeWhenThePackCannotBeStored();
    void leavesContentThatIsNotOlder_data();
    void leavesContentThatIsNotOlder();
    void takesThePackOfTheGreatestLength();
    void takesAnAnswerThatIsNotHttp();
    void countsTheSignalsOfThePack();
    void keepsTheHistoryWhenThePackHasNone();
    void showsThePackForThisRunWithoutADirectory();
    void keepsTheRetiredList_data();
    void keepsTheRetiredList();
    void replacesTheRetiredList_data();
    void replacesTheRetiredList();
    void storesABrokenRetiredListUnseen();
    void showsTheStoredRetiredListWhenTheNewOneCannotBeStored();
    void runsOnceAtATime();
    void clearsTheNoteWhileItRuns();
    void announcesWhatItReplacedTogether();
    void announcesNoContentWhenNothingWasReplaced();
    void letsDerivedListsFollow();
    void keepsTheOpenArchiveDay();
    void leavesTheWorkspaceAlone();
    void endsQuietlyWhenTheModelGoes_data();
    void endsQuietlyWhenTheModelGoes();
    void endsQuietlyWhenTheSiteGoesAfterTheModel();
};

void RefreshTest::showsAndStoresANewerPack()
{
    const QByteArray pack =
        SiteDocuments::pack(laterAsOf, {u"a"_qs, u"b"_qs}, {u"2026-09-02"_qs, u"2026-09-03"_qs});
    const QByteArray retired = SiteDocuments::retired({u"old"_qs});
    offerPack(pack);
    setAnswer(SiteClient::retiredSignalsPath, SiteReply{retired, 200});

    m_model->refreshPackFromSite();

    QCOMPARE(*m_model->packSyncNote(), u"已同步 2 条 · 2026-09-03"_qs);
    QVERIFY(!m_model->packSyncFailed());
    QVERIFY(!m_model->isSyncingPack());
    QCOMPARE(idsOf(m_model->signals()), (QStringList{u"a"_qs, u"b"_qs}));
    QCOMPARE(idsOf(m_model->retiredSignals()), QStringList{u"old"_qs});
    QCOMPARE(m_model->selectionDays().size(), 2);
    QCOMPARE(m_model->packAsOf(), laterAsOf);
    QCOMPARE(m_sample->files.files,
             (QHash<QString, QByteArray>{{packFile, pack}, {retiredFile, retired}}));
    QCOMPARE(m_sample->site->requests, (QList{packRequest, retiredRequest}));
}

void RefreshTest::showsTheNewContentAfterARestart()
{
    offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs}, {u"2026-09-03"_qs}));
    setAnswer(SiteClient::retiredSignalsPath, SiteReply{SiteDocuments::retired({u"old"_qs}), 200});

    m_model->refreshPackFromSite();

    const auto content = InformationContent::atStart(m_sample->files);
    QCOMPARE(content.signals(), m_model->signals());
    QCOMPARE(content.retiredSignals(), m_model->retiredSignals());
    QCOMPARE(content.selectionDays(), m_model->selectionDays());
    QCOMPARE(content.packAsOf(), laterAsOf);
}

void RefreshTest::failsWithoutAChange_data()
{
    QTest::addColumn<SiteClient::Answer>("answer");

    const QByteArray pack = SiteDocuments::pack(laterAsOf, {u"a"_qs});
    const auto row = [](const char* name, const QByteArray& body, int status) {
        QTest::newRow(name) << SiteClient::Answer(SiteReply{body, status});
    };
    QTest::newRow("no answer") << noAnswer;
    QTest::newRow("too large to load") << SiteClient::Answer(std::unexpected(SiteError::TooLarge));
    row("created", pack, 201);
    row("partial content", pack, 206);
    row("redirect", pack, 302);
    row("not modified", {}, 304);
    row("not found", pack, 404);
    row("server error", pack, 500);
    row("empty", {}, 200);
    row("not JSON", "<html></html>", 200);
    row("cut short", pack.first(pack.size() / 2), 200);
    row("one byte too long", pack.leftJustified(InformationPackSync::maximumPackBytes + 1), 200);
    row("other schema", QByteArray(pack).replace("-v6", "-v5"), 200);
    row("no signals", SiteDocuments::pack(laterAsOf, {}), 200);
    QTest::newRow("not JSON and not HTTP") << SiteClient::Answer(SiteReply{"x", std::nullopt});
}

void RefreshTest::failsWithoutAChange()
{
    QFETCH(SiteClient::Answer, answer);
    setAnswer(SiteClient::packPath, answer);

    m_model->refreshPackFromSite();

    QCOMPARE(*m_model->packSyncNote(), failedNote);
    QVERIFY(m_model->packSyncFailed());
    QVERIFY(!m_model->isSyncingPack());
    verifyContentUnchanged();
    QVERIFY(m_sample->files.files.isEmpty());
    QCOMPARE(m_sample->site->requests, QList{packRequest});
}

void RefreshTest::failsWithoutAChangeWhenThePackCannotBeStored()
{
    offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs}));
    m_sample->files.files.insert(packFile, "the pack before");
    m_sample->files.writeFailures.insert(packFile, FileError{FileError::Reason::NoSpace});

    m_model->refreshPackFromSite();

    QCOMPARE(*m_model->packSyncNote(), failedNote);
    verifyContentUnchanged();
    QCOMPARE(m_sample->files.files, (QHash<QString, QByteArray>{{packFile, "the pack before"}}));
    QCOMPARE(m_sample->site->requests, QList{packRequest});
}

void RefreshTest::leavesContentThatIsNotOlder_data()
{
    QTest::addColumn<QString>("asOf");
    QTest::addColumn<QString>("note");

    QTest::newRow("same") << shownAsOf << u"已是最新（2 条，2026-09-02）"_qs;
    QTest::newRow("older") << u"2026-09-01T04:00:00Z"_qs << u"已是最新（2 条，2026-09-01）"_qs;
    QTest::newRow("same with a fraction")
        << u"2026-09-02T04:00:00.000Z"_qs << u"已是最新（2 条，2026-09-02）"_qs;
    QTest::newRow("shorter than a day") << u"2026"_qs << u"已是最新（2 条，2026）"_qs;
    QTest::newRow("empty") << QString() << u"已是最新（2 条，）"_qs;
}

void RefreshTest::leavesContentThatIsNotOlder()
{
    QFETCH(QString, asOf);
    offerPack(SiteDocuments::pack(asOf, {u"a"_qs, u"b"_qs}));

    m_model->refreshPackFromSite();

    QTEST(*m_model->packSyncNote(), "note");
    QVERIFY(!m_model->packSyncFailed());
    verifyContentUnchanged();
    QVERIFY(m_sample->files.files.isEmpty());
    QCOMPARE(m_sample->site->requests, QList{packRequest});
}

void RefreshTest::takesThePackOfTheGreatestLength()
{
    offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs})
                  .leftJustified(InformationPackSync::maximumPackBytes));

    m_model->refreshPackFromSite();

    QCOMPARE(*m_model->packSyncNote(), u"已同步 1 条 · 2026-09-03"_qs);
    QCOMPARE(m_sample->files.files.value(packFile).size(), 1'500'000);
}

void RefreshTest::takesAnAnswerThatIsNotHttp()
{
    setAnswer(SiteClient::packPath,
              SiteReply{SiteDocuments::pack(laterAsOf, {u"a"_qs}), std::nullopt});

    m_model->refreshPackFromSite();

    QCOMPARE(*m_model->packSyncNote(), u"已同步 1 条 · 2026-09-03"_qs);
    QCOMPARE(idsOf(m_model->signals()), QStringList{u"a"_qs});
}

void RefreshTest::countsTheSignalsOfThePack()
{
    offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs, u"b"_qs, u"a"_qs}));

    m_model->refreshPackFromSite();

    QCOMPARE(*m_model->packSyncNote(), u"已同步 3 条 · 2026-09-03"_qs);
    QCOMPARE(idsOf(m_model->signals()), (QStringList{u"a"_qs, u"b"_qs}));
}

void RefreshTest::keepsTheHistoryWhenThePackHasNone()
{
    offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs}, {}));

    m_model->refreshPackFromSite();

    QCOMPARE(idsOf(m_model->signals()), QStringList{u"a"_qs});
    QCOMPARE(m_model->selectionDays(), shownContent().selectionDays());
}

void RefreshTest::showsThePackForThisRunWithoutADirectory()
{
    m_sample->files.supportDirectory.reset();
    offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs}));

    m_model->refreshPackFromSite();

    QCOMPARE(*m_model->packSyncNote(), u"已同步 1 条 · 2026-09-03"_qs);
    QCOMPARE(idsOf(m_model->signals()), QStringList{u"a"_qs});
    QCOMPARE(m_model->retiredSignals(), shownContent().retiredSignals());
    QVERIFY(m_sample->files.files.isEmpty());
    QCOMPARE(m_sample->site->requests, QList{packRequest});
}

void RefreshTest::keepsTheRetiredList_data()
{
    QTest::addColumn<SiteClient::Answer>("answer");

    const QByteArray retired = SiteDocuments::retired({u"new"_qs});
    QTest::newRow("no answer") << noAnswer;
    QTest::newRow("too large") << SiteClient::Answer(std::unexpected(SiteError::TooLarge));
    QTest::newRow("not found") << SiteClient::Answer(SiteReply{retired, 404});
    QTest::newRow("server error") << SiteClient::Answer(SiteReply{retired, 500});
    QTest::newRow("created") << SiteClient::Answer(SiteReply{retired, 201});
    QTest::newRow("not HTTP") << SiteClient::Answer(SiteReply{retired, std::nullopt});
}

void RefreshTest::keepsTheRetiredList()
{
    QFETCH(SiteClient::Answer, answer);
    const QByteArray pack = SiteDocuments::pack(laterAsOf, {u"a"_qs});
    offerPack(pack);
    setAnswer(SiteClient::retiredSignalsPath, answer);

    m_model->refreshPackFromSite();

    QCOMPARE(*m_model->packSyncNote(), u"已同步 1 条 · 2026-09-03"_qs);
    QCOMPARE(idsOf(m_model->signals()), QStringList{u"a"_qs});
    QCOMPARE(m_model->retiredSignals(), shownContent().retiredSignals());
    QCOMPARE(m_sample->files.files, (QHash<QString, QByteArray>{{packFile, pack}}));
    QCOMPARE(m_sample->site->requests, (QList{packRequest, retiredRequest}));
}

void RefreshTest::replacesTheRetiredList_data()
{
    QTest::addColumn<QStringList>("retired");
    QTest::addColumn<QStringList>("shown");

    QTest::newRow("empty") << QStringList() << QStringList();
    QTest::newRow("others") << QStringList{u"old"_qs, u"gone"_qs}
                            << QStringList{u"old"_qs, u"gone"_qs};
    QTest::newRow("one that is live") << QStringList{u"a"_qs, u"old"_qs} << QStringList{u"old"_qs};
    QTest::newRow("one twice") << QStringList{u"old"_qs, u"gone"_qs, u"old"_qs}
                               << QStringList{u"old"_qs, u"gone"_qs};
}

void RefreshTest::replacesTheRetiredList()
{
    QFETCH(QStringList, retired);
    const QByteArray document = SiteDocuments::retired(retired);
    offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs}));
    setAnswer(SiteClient::retiredSignalsPath, SiteReply{document, 200});

    m_model->refreshPackFromSite();

    QTEST(idsOf(m_model->retiredSignals()), "shown");
    QCOMPARE(m_sample->files.files.value(retiredFile), document);
    QCOMPARE(m_model->signalById(u"a"_qs)->id, u"a"_qs);
}

void RefreshTest::storesABrokenRetiredListUnseen()
{
    offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs}));
    setAnswer(SiteClient::retiredSignalsPath, SiteReply{"broken", 200});

    m_model->refreshPackFromSite();

    QCOMPARE(*m_model->packSyncNote(), u"已同步 1 条 · 2026-09-03"_qs);
    QCOMPARE(m_model->retiredSignals(), shownContent().retiredSignals());
    QCOMPARE(m_sample->files.files.value(retiredFile), "broken");
}

void RefreshTest::showsTheStoredRetiredListWhenTheNewOneCannotBeStored()
{
    const QByteArray stored = SiteDocuments::retired({u"stored"_qs});
    m_sample->files.files.insert(retiredFile, stored);
    m_sample->files.writeFailures.insert(retiredFile, FileError{FileError::Reason::NoSpace});
    offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs}));
    setAnswer(SiteClient::retiredSignalsPath, SiteReply{SiteDocuments::retired({u"new"_qs}), 200});

    m_model->refreshPackFromSite();

    QCOMPARE(*m_model->packSyncNote(), u"已同步 1 条 · 2026-09-03"_qs);
    QCOMPARE(idsOf(m_model->retiredSignals()), QStringList{u"stored"_qs});
    QCOMPARE(m_sample->files.files.value(retiredFile), stored);
}

void RefreshTest::runsOnceAtATime()
{
    offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs}));
    m_sample->site->heldPaths = {SiteClient::packPath};

    m_model->refreshPackFromSite();
    m_model->refreshPackFromSite();
    QVERIFY(m_model->isSyncingPack());
    QCOMPARE(m_sample->site->requests, QList{packRequest});

    m_sample->site->release();
    QVERIFY(!m_model->isSyncingPack());
    QCOMPARE(m_sample->site->requests, (QList{packRequest, retiredRequest}));

    m_model->refreshPackFromSite();
    QCOMPARE(*m_model->packSyncNote(), u"已是最新（1 条，2026-09-03）"_qs);
}

void RefreshTest::clearsTheNoteWhileItRuns()
{
    m_model->refreshPackFromSite();
    QCOMPARE(*m_model->packSyncNote(), failedNote);

    m_sample->site->heldPaths = {SiteClient::packPath};
    m_model->refreshPackFromSite();
    QVERIFY(!m_model->packSyncNote());
    QVERIFY(!m_model->packSyncFailed());

    m_sample->site->release();
    QCOMPARE(*m_model->packSyncNote(), failedNote);
}

void RefreshTest::announcesWhatItReplacedTogether()
{
    offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs}, {u"2026-09-03"_qs}));
    setAnswer(SiteClient::retiredSignalsPath, SiteReply{SiteDocuments::retired({}), 200});
    QStringList events;
    const auto tell = [this, &events](const QString& event) {
        events.append(QStringList{event, m_model->isSyncingPack() ? u"syncing"_qs : u"still"_qs,
                                  m_model->packSyncNote().value_or(u"-"_qs),
                                  idsOf(m_model->signals()).join(u','),
                                  idsOf(m_model->retiredSignals()).join(u','),
                                  m_model->selectionDays().constFirst().date, m_model->packAsOf()}
                          .join(u'|'));
    };
    connect(m_model.get(), &InformationModel::contentChanged, this, [&] { tell(u"content"_qs); });
    connect(m_model.get(), &InformationModel::packSyncNoteChanged, this, [&] { tell(u"note"_qs); });
    connect(m_model.get(), &InformationModel::isSyncingPackChanged, this,
            [&] { tell(u"syncing"_qs); });

    m_model->refreshPackFromSite();

    const QString after = u"|已同步 1 条 · 2026-09-03|a||2026-09-03|2026-09-03T04:00:00Z"_qs;
    QCOMPARE(events, (QStringList{u"syncing|syncing|-|old|gone|2026-09-01|2026-09-02T04:00:00Z"_qs,
                                  QString(u"content|syncing"_qs + after),
                                  QString(u"note|syncing"_qs + after),
                                  QString(u"syncing|still"_qs + after)}));
}

void RefreshTest::announcesNoContentWhenNothingWasReplaced()
{
    const QSignalSpy content(m_model.get(), &InformationModel::contentChanged);

    m_model->refreshPackFromSite();
    offerPack(SiteDocuments::pack(shownAsOf, {u"a"_qs}));
    m_model->refreshPackFromSite();

    QCOMPARE(content.count(), 0);
}

void RefreshTest::letsDerivedListsFollow()
{
    QCOMPARE(idsOf(m_model->visibleSignals()), QStringList{u"old"_qs});
    QCOMPARE(m_model->archiveDays().size(), 1);
    QCOMPARE(m_model->weeklyWeeks().size(), 1);
    QVERIFY(m_model->signalById(u"gone"_qs));
    offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs, u"b"_qs},
                                  {u"2026-08-24"_qs, u"2026-09-02"_qs, u"2026-09-03"_qs}));
    setAnswer(SiteClient::retiredSignalsPath, SiteReply{SiteDocuments::retired({u"old"_qs}), 200});

    m_model->refreshPackFromSite();

    QCOMPARE(idsOf(m_model->visibleSignals()), (QStringList{u"a"_qs, u"b"_qs}));
    QCOMPARE(m_model->laneAllCount(), 2);
    QCOMPARE(m_model->archiveDays().size(), 3);
    QCOMPARE(m_model->weeklyWeeks().size(), 2);
    QVERIFY(m_model->signalById(u"old"_qs));
    QVERIFY(!m_model->signalById(u"gone"_qs));
}

void RefreshTest::keepsTheOpenArchiveDay()
{
    m_model->openArchiveDay(u"2026-09-01"_qs);
    offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs}, {u"2026-09-03"_qs}));

    m_model->refreshPackFromSite();

    QCOMPARE(*m_model->selectedArchiveDay(), u"2026-09-01"_qs);
    QCOMPARE(m_model->surface(), InformationModel::Surface::Archive);
}

void RefreshTest::leavesTheWorkspaceAlone()
{
    m_model->toggleKeep(u"old"_qs);
    const auto workspace = m_model->workspace();
    const auto receipt = m_model->receipt();
    const auto files = m_sample->files.files;
    offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs}));
    setAnswer(SiteClient::retiredSignalsPath, SiteReply{SiteDocuments::retired({u"old"_qs}), 200});

    m_model->refreshPackFromSite();

    QCOMPARE(m_model->workspace(), workspace);
    QCOMPARE(m_model->receipt(), receipt);
    QVERIFY(m_model->canUndo());
    QVERIFY(m_model->signalById(u"old"_qs));
    for (auto file = files.begin(); file != files.end(); ++file) {
        QCOMPARE(m_sample->files.files.value(file.key()), file.value());
    }
}

void RefreshTest::endsQuietlyWhenTheModelGoes_data()
{
    QTest::addColumn<bool>("packHasCome");

    QTest::newRow("waiting for the pack") << false;
    QTest::newRow("waiting for the retired list") << true;
}

void RefreshTest::endsQuietlyWhenTheModelGoes()
{
    QFETCH(bool, packHasCome);
    offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs}));
    setAnswer(SiteClient::retiredSignalsPath, SiteReply{SiteDocuments::retired({u"old"_qs}), 200});
    m_sample->site->heldPaths = {packHasCome ? SiteClient::retiredSignalsPath
                                             : SiteClient::packPath};
    m_model->refreshPackFromSite();
    QVERIFY(m_model->isSyncingPack());

    m_model.reset();
    m_sample->site->release();

    QCOMPARE(m_sample->site->requests.size(), packHasCome ? 2 : 1);
    QCOMPARE(m_sample->files.files.contains(packFile), packHasCome);
    QVERIFY(!m_sample->files.files.contains(retiredFile));
}

void RefreshTest::endsQuietlyWhenTheSiteGoesAfterTheModel()
{
    m_sample->site->heldPaths = {SiteClient::packPath, SiteClient::appVersionPath};
    m_model->refreshPackFromSite();
    m_model->probeAppUpdateOnce();

    m_model.reset();
    m_sample->site.reset();

    QVERIFY(m_sample->files.files.isEmpty());
}

TEST_SUBJECT(RefreshTest)
#include "RefreshTest.moc"
