// SPDX-License-Identifier: Apache-2.0

#include "FramePage.h"

#include "SampleModel.h"
#include "SiteDocuments.h"
#include "Subject.h"

#include <QSignalSpy>
#include <QTest>

class FramePageTest : public QObject
{
    Q_OBJECT

    SampleModel m_sample;
    std::unique_ptr<InformationModel> m_model;
    std::unique_ptr<FramePage> m_page;

private Q_SLOTS:
    void init()
    {
        m_sample = SampleModel();
        m_model = m_sample.make();
        m_page = std::make_unique<FramePage>();
        m_page->setWorkbench(m_model.get());
    }

    void saysWhatASyncDoes()
    {
        QCOMPARE(m_page->syncHelp(), u"从 corvanite.example 拉取最新精选内容"_qs);
        QCOMPARE(m_page->syncNote(), QString());
        QVERIFY(!m_page->syncFailed());
        QVERIFY(!m_page->hasUpdate());
    }

    void saysHowASyncEnded()
    {
        const QSignalSpy changed(m_page.get(), &FramePage::textsChanged);

        m_model->refreshPackFromSite();

        QCOMPARE(m_page->syncNote(), u"同步失败，继续使用当前内容"_qs);
        QCOMPARE(m_page->syncHelp(),
                 u"从 corvanite.example 拉取最新精选内容\n同步失败，继续使用当前内容"_qs);
        QVERIFY(m_page->syncFailed());
        QCOMPARE(changed.size(), 1);
    }

    void offersANewerBuildUntilItIsWavedAway()
    {
        m_sample.site->offer(SiteClient::appVersionPath, SiteDocuments::appVersion(u"1.3.0"_qs));

        m_model->probeAppUpdateOnce();
        QVERIFY(m_page->hasUpdate());
        QCOMPARE(m_page->updateText(), u"新版本 1.3.0 已发布"_qs);
        QCOMPARE(m_page->updateHelp(), u"获取 Corvanite Information 新版本 1.3.0"_qs);
        QCOMPARE(m_page->updateAddress(), u"https://corvanite.example/download"_qs);

        m_model->dismissUpdate();
        QVERIFY(!m_page->hasUpdate());
    }

    // There was a button, and it did nothing.
    void offersNoButtonForAnAddressThatIsNotOpened()
    {
        m_sample.site->offer(
            SiteClient::appVersionPath,
            SiteDocuments::appVersion(
                u"1.3.0"_qs, {{u"downloadUrl"_qs, u"https://reader@corvanite.example/a"_qs}}));

        m_model->probeAppUpdateOnce();

        QCOMPARE(m_page->updateText(), u"新版本 1.3.0 已发布"_qs);
        QCOMPARE(m_page->updateAddress(), QString());
    }
};

TEST_SUBJECT(FramePageTest)
#include "FramePageTest.moc"
