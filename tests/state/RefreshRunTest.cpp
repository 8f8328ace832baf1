// SPDX-License-Identifier: Apache-2.0

#include "RefreshSample.h"
#include "SiteDocuments.h"
#include "Subject.h"

#include <QSignalSpy>
#include <QTest>

using namespace RefreshSample;

/// When a refresh runs, what it tells meanwhile, and how it ends.
class RefreshRunTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_model.reset();
        m_sample = RefreshSample::make();
        m_model = m_sample.make();
    }

    void runsOnceAtATime()
    {
        offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs}));
        m_sample.site->heldPaths = {SiteClient::packPath};

        m_model->refreshPackFromSite();
        m_model->refreshPackFromSite();
        QVERIFY(m_model->isSyncingPack());
        QCOMPARE(m_sample.site->requests, QList{packRequest});

        m_sample.site->release();
        QVERIFY(!m_model->isSyncingPack());
        QCOMPARE(m_sample.site->requests, (QList{packRequest, retiredRequest}));

        m_model->refreshPackFromSite();
        QCOMPARE(*m_model->packSyncNote(), u"已是最新（1 条，2026-09-03）"_qs);
    }

    void clearsTheNoteWhileItRuns()
    {
        m_model->refreshPackFromSite();
        QCOMPARE(*m_model->packSyncNote(), failedNote);

        const QSignalSpy note(m_model.get(), &InformationModel::packSyncNoteChanged);
        m_sample.site->heldPaths = {SiteClient::packPath};
        m_model->refreshPackFromSite();
        QVERIFY(!m_model->packSyncNote());
        QVERIFY(!m_model->packSyncFailed());
        QCOMPARE(note.count(), 1);

        m_sample.site->release();
        QCOMPARE(*m_model->packSyncNote(), failedNote);
    }

    void announcesWhatItReplacedTogether()
    {
        offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs}, {u"2026-09-03"_qs}));
        offerRetired({});
        QStringList events;
        const auto tell = [this, &events](const QString& event) {
            events.append(QStringList{
                event, m_model->isSyncingPack() ? u"syncing"_qs : u"still"_qs,
                m_model->packSyncNote().value_or(u"-"_qs), idsOf(m_model->signals()).join(u','),
                idsOf(m_model->retiredSignals()).join(u','),
                m_model->selectionDays().constFirst().date, m_model->packAsOf()}
                              .join(u'|'));
        };
        connect(m_model.get(), &InformationModel::contentChanged, this,
                [&] { tell(u"content"_qs); });
        connect(m_model.get(), &InformationModel::packSyncNoteChanged, this,
                [&] { tell(u"note"_qs); });
        connect(m_model.get(), &InformationModel::isSyncingPackChanged, this,
                [&] { tell(u"syncing"_qs); });

        m_model->refreshPackFromSite();

        const QString after = u"|已同步 1 条 · 2026-09-03|a||2026-09-03|2026-09-03T04:00:00Z"_qs;
        QCOMPARE(events,
                 (QStringList{u"syncing|syncing|-|old|gone|2026-09-01|2026-09-02T04:00:00Z"_qs,
                              QString(u"content|syncing"_qs + after),
                              QString(u"note|syncing"_qs + after),
                              QString(u"syncing|still"_qs + after)}));
    }

    void announcesNoContentWhenNothingWasReplaced()
    {
        const QSignalSpy content(m_model.get(), &InformationModel::contentChanged);

        m_model->refreshPackFromSite();
        offerPack(SiteDocuments::pack(shownAsOf, {u"a"_qs}));
        m_model->refreshPackFromSite();

        QCOMPARE(content.count(), 0);
    }

    void endsQuietlyWhenTheModelGoes_data()
    {
        QTest::addColumn<bool>("packHasCome");

        QTest::newRow("waiting for the pack") << false;
        QTest::newRow("waiting for the retired list") << true;
    }

    void endsQuietlyWhenTheModelGoes()
    {
        QFETCH(bool, packHasCome);
        offerPack(SiteDocuments::pack(laterAsOf, {u"a"_qs}));
        offerRetired({u"old"_qs});
        m_sample.site->heldPaths = {packHasCome ? SiteClient::retiredSignalsPath
                                                : SiteClient::packPath};
        m_model->refreshPackFromSite();
        QVERIFY(m_model->isSyncingPack());

        m_model.reset();
        m_sample.site->release();

        QCOMPARE(m_sample.site->requests.size(), packHasCome ? 2 : 1);
        QCOMPARE(m_sample.files.files.contains(packFile), packHasCome);
        QVERIFY(!m_sample.files.files.contains(retiredFile));
    }

    void endsQuietlyWhenTheSiteGoesAfterTheModel()
    {
        m_sample.site->heldPaths = {SiteClient::packPath, SiteClient::appVersionPath};
        m_model->refreshPackFromSite();
        m_model->probeAppUpdateOnce();

        m_model.reset();
        m_sample.site.reset();

        QVERIFY(m_sample.files.files.isEmpty());
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

TEST_SUBJECT(RefreshRunTest)
#include "RefreshRunTest.moc"
