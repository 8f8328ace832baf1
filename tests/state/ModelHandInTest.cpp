// SPDX-License-Identifier: Apache-2.0

#include "FourSignals.h"
#include "InformationIntake.h"
#include "Subject.h"

#include <QTest>

/// What the model does with what the reader hands in.
class ModelHandInTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_sample = fourSignals(); }

    void anAddressOfASignalKeepsTheSignal()
    {
        const auto model = m_sample.make();
        QVERIFY(model->addSource(u"https://origin.example/c"_qs));

        QVERIFY(model->isKept(m_sample.signals[2]));
        QVERIFY(model->workspace().customSources.isEmpty());
        QCOMPARE(model->surface(), InformationModel::Surface::Kept);
        QCOMPARE(model->receipt(), u"已收下；后续实质变化会续到同一条脉络。"_qs);

        model->setSurface(InformationModel::Surface::Today);
        QVERIFY(model->addSource(u"https://target.example/c/"_qs));
        QCOMPARE(model->surface(), InformationModel::Surface::Kept);
        QCOMPARE(model->receipt(), u"“Label of target:c”已经在已收下里。"_qs);
        QVERIFY(!model->canUndo());
    }

    void aSentenceBecomesACustomSourceOnce()
    {
        const auto model = m_sample.make();
        QVERIFY(model->addSource(u"  跟踪 本地\n模型 "_qs));
        QCOMPARE(model->workspace().customSources.size(), 1);
        QCOMPARE(model->workspace().customSources.first().input, u"跟踪 本地 模型"_qs);
        QCOMPARE(model->surface(), InformationModel::Surface::Kept);
        QCOMPARE(model->receipt(),
                 u"已收下并安全保存在本机；这个来源尚未接入更新，不会冒充已经同步。"_qs);
        QVERIFY(model->canUndo());
        QCOMPARE(m_sample.stored(), model->workspace());

        model->setSurface(InformationModel::Surface::Today);
        QVERIFY(model->addSource(u"跟踪 本地 模型"_qs));
        QCOMPARE(model->workspace().customSources.size(), 1);
        QCOMPARE(model->surface(), InformationModel::Surface::Kept);
        QCOMPARE(model->receipt(), u"这项内容已经在已收下里，没有重复添加。"_qs);
        QVERIFY(!model->canUndo());

        model->removeSource(model->workspace().customSources.first().id);
        QVERIFY(model->workspace().customSources.isEmpty());
        QCOMPARE(model->receipt(), u"已移除这条内容。"_qs);
    }

    void refusedHandIns_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("message");
        QTest::newRow("empty") << u"  \n"_qs << u"请粘贴一个链接，或写一句想持续更新的内容。"_qs;
        QTest::newRow("too long") << u"长"_qs.repeated(501)
                                  << u"请缩短到 500 个字以内；只需说清想跟踪什么。"_qs;
        QTest::newRow("not https")
            << u"http://site.example"_qs
            << u"当前只接收公开 HTTPS 网页；内网、带账号或其他协议不会接入。"_qs;
    }

    void refusedHandIns()
    {
        QFETCH(QString, input);
        QFETCH(QString, message);
        const auto model = m_sample.make();

        QVERIFY(!model->addSource(input));
        QCOMPARE(model->intakeErrorMessage(), message);
        QCOMPARE(model->surface(), InformationModel::Surface::Today);

        model->dismissIntakeError();
        QVERIFY(!model->intakeErrorMessage());
    }

    void aRefusalIsForgottenWithTheNextHandIn()
    {
        const auto model = m_sample.make();
        QVERIFY(!model->addSource({}));

        QVERIFY(model->addSource(u"一句话"_qs));
        QVERIFY(!model->intakeErrorMessage());
    }

    void theHundredthHandInIsTakenAndTheNextRefused()
    {
        const auto model = m_sample.make();
        for (int number = 1; number <= InformationIntake::maximumCustomSources; ++number) {
            QVERIFY(model->addSource(u"第 %1 项"_qs.arg(number)));
        }
        const auto receipt = model->receipt();

        QVERIFY(!model->addSource(u"再来一项"_qs));
        QCOMPARE(model->intakeErrorMessage(),
                 u"当前设备已收下 100 项自定义内容；先移除不再需要的一项再添加。"_qs);
        QCOMPARE(model->receipt(), receipt);
        QVERIFY(model->canUndo());
    }

    void aFailedHandInStaysOnItsSurface()
    {
        const auto model = m_sample.make();
        m_sample.files.writeFailure = FileError{FileError::Reason::NoSpace};

        QVERIFY(!model->addSource(u"一句话"_qs));
        QVERIFY(!model->addSource(u"https://origin.example/c"_qs));
        QCOMPARE(model->surface(), InformationModel::Surface::Today);
        QVERIFY(model->errorMessage());
    }

private:
    SampleModel m_sample;
};

TEST_SUBJECT(ModelHandInTest)
#include "ModelHandInTest.moc"
