// SPDX-License-Identifier: Apache-2.0

#include "RefreshSample.h"
#include "SiteDocuments.h"
#include "Subject.h"

#include <QTest>

using namespace RefreshSample;

/// What a refresh does with the list of retired signals.
class RefreshOfRetiredTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_model.reset();
        m_sample = RefreshSample::make();
        m_model = m_sample.make();
    }

    void keepsTheRetiredList_data()
    {
        QTest::addColumn<SiteClient::Answer>("answer");

        const QByteArray retired = SiteDocuments::retired({u"new"_qs});
        QTest::newRow("no answer") << SiteClient::Answer(std::unexpected(SiteError::Transport));
        QTest::newRow("too large") << SiteClient::Answer(std::unexpected(SiteError::TooLarge));
        QTest::newRow("not found") << SiteClient::Answer(SiteReply{retired, 404});
        QTest::newRow("server error") << SiteClient::Answer(SiteReply{retired, 500});
        QTest::newRow("created") << SiteClient::Answer(SiteReply{retired, 201});
        QTest::newRow("not HTTP") << SiteClient::Answer(SiteReply{retired, std::nullopt});
    }

    void keepsTheRetiredList()
    {
        QFETCH(SiteClient::Answer, answer);
        offerPack();
        m_sample.site->answers.insert(SiteClient::retiredSignalsPath, answer);

        m_model->refreshPackFromSite();

        QCOMPARE(*m_model->packSyncNote(), u"已同步 1 条 · 2026-09-03"_qs);
        QCOMPARE(idsOf(m_model->signals()), QStringList{u"a"_qs});
        QCOMPARE(m_model->retiredSignals(), m_sample.retiredSignals);
        QCOMPARE(m_sample.files.files, (QHash<QString, QByteArray>{{packFile, m_pack}}));
        QCOMPARE(m_sample.site->requests, (QList{packRequest, retiredRequest}));
    }

    void replacesTheRetiredList_data()
    {
        QTest::addColumn<QStringList>("retired");
        QTest::addColumn<QStringList>("shown");

        QTest::newRow("empty") << QStringList() << QStringList();
        QTest::newRow("others") << QStringList{u"old"_qs, u"gone"_qs}
                                << QStringList{u"old"_qs, u"gone"_qs};
        QTest::newRow("one that is live")
            << QStringList{u"a"_qs, u"old"_qs} << QStringList{u"old"_qs};
        QTest::newRow("one twice")
            << QStringList{u"old"_qs, u"gone"_qs, u"old"_qs} << QStringList{u"old"_qs, u"gone"_qs};
    }

    void replacesTheRetiredList()
    {
        QFETCH(QStringList, retired);
        const QByteArray document = SiteDocuments::retired(retired);
        offerPack();
        offerRetired(document);

        m_model->refreshPackFromSite();

        QTEST(idsOf(m_model->retiredSignals()), "shown");
        QCOMPARE(m_sample.files.files.value(retiredFile), document);
        QCOMPARE(m_model->signalById(u"a"_qs)->id, u"a"_qs);
    }

    void storesABrokenRetiredListUnseen()
    {
        offerPack();
        offerRetired("broken");

        m_model->refreshPackFromSite();

        QCOMPARE(*m_model->packSyncNote(), u"已同步 1 条 · 2026-09-03"_qs);
        QCOMPARE(m_model->retiredSignals(), m_sample.retiredSignals);
        QCOMPARE(m_sample.files.files.value(retiredFile), "broken");
    }

    void showsTheStoredRetiredListWhenTheNewOneCannotBeStored()
    {
        const QByteArray stored = SiteDocuments::retired({u"stored"_qs});
        m_sample.files.files.insert(retiredFile, stored);
        m_sample.files.writeFailures.insert(retiredFile, FileError{FileError::Reason::NoSpace});
        offerPack();
        offerRetired(SiteDocuments::retired({u"new"_qs}));

        m_model->refreshPackFromSite();

        QCOMPARE(*m_model->packSyncNote(), u"已同步 1 条 · 2026-09-03"_qs);
        QCOMPARE(idsOf(m_model->retiredSignals()), QStringList{u"stored"_qs});
        QCOMPARE(m_sample.files.files.value(retiredFile), stored);
    }

private:
    void offerPack() { m_sample.site->offer(SiteClient::packPath, m_pack); }
    void offerRetired(const QByteArray& retired)
    {
        m_sample.site->offer(SiteClient::retiredSignalsPath, retired);
    }

    const QByteArray m_pack = SiteDocuments::pack(laterAsOf, {u"a"_qs});
    SampleModel m_sample;
    std::unique_ptr<InformationModel> m_model;
};

TEST_SUBJECT(RefreshOfRetiredTest)
#include "RefreshOfRetiredTest.moc"
