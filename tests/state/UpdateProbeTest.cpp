// SPDX-License-Identifier: Apache-2.0

#include "SampleModel.h"
#include "SiteDocuments.h"
#include "Subject.h"

#include <QSignalSpy>
#include <QTest>

namespace {

const FakeSiteClient::Request versionRequest{u"/information-app-version.json"_qs, 256 * 1024};

} // namespace

class UpdateProbeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_model.reset();
        m_sample = SampleModel();
        makeModel(u"1.2.3"_qs);
    }

    void offersANewerBuild()
    {
        offer(SiteDocuments::appVersion(u"1.3.0"_qs));
        const QSignalSpy changed(m_model.get(), &InformationModel::availableUpdateChanged);
        QVERIFY(!m_model->availableUpdate());

        m_model->probeAppUpdateOnce();

        QVERIFY(m_model->availableUpdate());
        QCOMPARE(m_model->availableUpdate()->version, u"1.3.0"_qs);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(m_sample.site->requests, QList{versionRequest});
        QVERIFY(m_sample.files.files.isEmpty());
    }

    void comparesVersions_data()
    {
        QTest::addColumn<QString>("offered");
        QTest::addColumn<QString>("running");
        QTest::addColumn<bool>("isOffered");

        QTest::newRow("same") << u"1.2.3"_qs << u"1.2.3"_qs << false;
        QTest::newRow("older") << u"1.2.2"_qs << u"1.2.3"_qs << false;
        QTest::newRow("newer") << u"1.2.4"_qs << u"1.2.3"_qs << true;
        QTest::newRow("by number") << u"1.10.0"_qs << u"1.9.9"_qs << true;
        QTest::newRow("another build") << u"1.2.3+7"_qs << u"1.2.3"_qs << false;
        QTest::newRow("before its release") << u"1.3.0-beta"_qs << u"1.2.3"_qs << false;
        QTest::newRow("two parts") << u"1.3"_qs << u"1.2.3"_qs << false;
        QTest::newRow("running one of two parts") << u"1.2.3"_qs << u"1.2"_qs << false;
    }

    void comparesVersions()
    {
        QFETCH(QString, offered);
        QFETCH(QString, running);
        makeModel(running);
        offer(SiteDocuments::appVersion(offered));

        m_model->probeAppUpdateOnce();

        QTEST(m_model->availableUpdate().has_value(), "isOffered");
        QCOMPARE(m_sample.site->requests, QList{versionRequest});
    }

    void staysSilent_data()
    {
        QTest::addColumn<SiteClient::Answer>("answer");

        const QByteArray document = SiteDocuments::appVersion(u"1.3.0"_qs);
        const auto row = [](const char* name, const QByteArray& body, int status = 200) {
            QTest::newRow(name) << SiteClient::Answer(SiteReply{body, status});
        };
        const auto changed = [](const QString& key, const QJsonValue& value) {
            return SiteDocuments::appVersion(u"1.3.0"_qs, {{key, value}});
        };
        QTest::newRow("no answer") << SiteClient::Answer(std::unexpected(SiteError::Transport));
        QTest::newRow("too large") << SiteClient::Answer(std::unexpected(SiteError::TooLarge));
        row("created", document, 201);
        row("not found", document, 404);
        row("server error", document, 500);
        row("not JSON", "1.3.0");
        row("cut short", document.chopped(5));
        row("another schema", changed(u"schemaVersion"_qs, u"another"_qs));
        row("no schema", changed(u"schemaVersion"_qs, QJsonValue::Null));
        row("no version", changed(u"version"_qs, QJsonValue::Null));
        row("version of another type", changed(u"version"_qs, 2));
        row("no download", changed(u"downloadUrl"_qs, QJsonValue::Null));
        row("insecure download", changed(u"downloadUrl"_qs, u"http://corvanite.example/a"_qs));
        row("download from elsewhere", changed(u"downloadUrl"_qs, u"https://a.example/a"_qs));
        row("no checksum", changed(u"sha256"_qs, QJsonValue::Null));
    }

    void staysSilent()
    {
        QFETCH(SiteClient::Answer, answer);
        m_sample.site->answers.insert(SiteClient::appVersionPath, answer);

        m_model->probeAppUpdateOnce();

        QVERIFY(!m_model->availableUpdate());
        QVERIFY(!m_model->hasErrorMessage());
        QVERIFY(!m_model->hasReceipt());
        QVERIFY(!m_model->packSyncNote());
        QCOMPARE(m_sample.site->requests, QList{versionRequest});
    }

    void takesAnAnswerThatIsNotHttp()
    {
        m_sample.site->answers.insert(
            SiteClient::appVersionPath,
            SiteReply{SiteDocuments::appVersion(u"1.3.0"_qs), std::nullopt});

        m_model->probeAppUpdateOnce();

        QVERIFY(m_model->availableUpdate());
    }

    void asksOnce()
    {
        m_model->probeAppUpdateOnce();
        offer(SiteDocuments::appVersion(u"1.3.0"_qs));
        m_model->probeAppUpdateOnce();

        QVERIFY(!m_model->availableUpdate());
        QCOMPARE(m_sample.site->requests, QList{versionRequest});
    }

    void asksNothingWithoutAVersionOfItsOwn()
    {
        makeModel({});
        offer(SiteDocuments::appVersion(u"1.3.0"_qs));

        m_model->probeAppUpdateOnce();

        QVERIFY(!m_model->availableUpdate());
        QVERIFY(m_sample.site->requests.isEmpty());
    }

    void staysAwayOnceDismissed()
    {
        offer(SiteDocuments::appVersion(u"1.3.0"_qs));
        m_model->probeAppUpdateOnce();

        m_model->dismissUpdate();
        m_model->probeAppUpdateOnce();

        QVERIFY(!m_model->availableUpdate());
        QCOMPARE(m_sample.site->requests, QList{versionRequest});
    }

    void endsQuietlyWhenTheModelGoes()
    {
        offer(SiteDocuments::appVersion(u"1.3.0"_qs));
        m_sample.site->heldPaths = {SiteClient::appVersionPath};
        m_model->probeAppUpdateOnce();

        m_model.reset();
        m_sample.site->release();

        QCOMPARE(m_sample.site->requests, QList{versionRequest});
    }

private:
    void makeModel(const QString& runningVersion)
    {
        m_sample.runningVersion = runningVersion;
        m_model = m_sample.make();
    }

    void offer(const QByteArray& document)
    {
        m_sample.site->offer(SiteClient::appVersionPath, document);
    }

    SampleModel m_sample;
    std::unique_ptr<InformationModel> m_model;
};

TEST_SUBJECT(UpdateProbeTest)
#include "UpdateProbeTest.moc"
