// SPDX-License-Identifier: Apache-2.0

#include "SampleModel.h"
#include "Subject.h"

#include <QSignalSpy>
#include <QTest>

// What something else stores while the program runs.
class ForeignChangeTest : public QObject
{
    Q_OBJECT

    SampleModel m_sample;
    std::unique_ptr<InformationModel> m_model;

    const InformationSignal& card(qsizetype index) const { return m_sample.signals.at(index); }

    void keepElsewhere(qsizetype index) { m_sample.make()->toggleKeep(card(index)); }

private Q_SLOTS:
    void init()
    {
        m_model.reset();
        m_sample = SampleModel();
        m_model = m_sample.make();
    }

    void isShown()
    {
        m_model->toggleKeep(card(0));
        keepElsewhere(1);
        const QSignalSpy changes(m_model.get(), &InformationModel::workspaceChanged);

        m_model->catchUpWithStorage();

        QCOMPARE(changes.size(), 1);
        QVERIFY(m_model->isKept(card(0)) && m_model->isKept(card(1)));
    }

    void ownSavesAreNone()
    {
        m_model->toggleKeep(card(0));
        const QSignalSpy changes(m_model.get(), &InformationModel::workspaceChanged);

        m_model->catchUpWithStorage();

        QVERIFY(changes.isEmpty());
        QVERIFY(m_model->canUndo());
    }

    void isNeverUndone()
    {
        m_model->toggleKeep(card(0));
        keepElsewhere(1);
        const QSignalSpy undo(m_model.get(), &InformationModel::canUndoChanged);

        m_model->catchUpWithStorage();

        QVERIFY(!m_model->canUndo());
        QCOMPARE(undo.size(), 1);
    }

    void changesNothingWhereItDoesNotRead()
    {
        m_model->toggleKeep(card(0));
        m_sample.files.files.insert(workspacePath, R"({"version": 4})");
        const auto shown = m_model->workspace();

        m_model->catchUpWithStorage();

        QVERIFY(!m_model->hasErrorMessage());
        QCOMPARE(m_model->workspace(), shown);
        m_model->toggleKeep(card(1));
        QCOMPARE(m_model->errorText(), u"没有保存这次操作：信息资料库版本 4 暂不受支持。"_qs);
        QCOMPARE(m_model->workspace(), shown);
        QCOMPARE(m_sample.files.files.value(workspacePath), QByteArray(R"({"version": 4})"));
    }

    void thatComesInRightBeforeASaveIsKeptAndShown()
    {
        m_model->toggleKeep(card(0));
        m_sample.files.beforeReplacing = [this] { keepElsewhere(1); };
        qsizetype shown = 0;
        connect(m_model.get(), &InformationModel::workspaceChanged, this,
                [&] { shown = m_model->keptSignals().size(); });

        m_model->addSource(u"一句想跟踪的话"_qs);

        QCOMPARE(shown, 2);
        QCOMPARE(m_sample.make()->workspace(), m_model->workspace());
        QCOMPARE(m_model->workspace().customSources.size(), 1);
        QVERIFY(m_model->canUndo());
        m_model->undoLastAction();
        QVERIFY(m_model->isKept(card(1)));
    }

    void thatComesInRightBeforeAnUndoStays()
    {
        m_model->toggleKeep(card(0));
        m_sample.files.beforeReplacing = [this] { keepElsewhere(1); };
        const QSignalSpy undo(m_model.get(), &InformationModel::canUndoChanged);

        m_model->undoLastAction();

        QVERIFY(m_model->errorText().startsWith(u"没有撤销："));
        QVERIFY(m_model->isKept(card(0)) && m_model->isKept(card(1)));
        QVERIFY(!m_model->canUndo());
        QCOMPARE(undo.size(), 1);
    }

    void thatMakesTheFileReadAgainIsShown()
    {
        m_sample.files.files.insert(workspacePath, "{");
        m_model = m_sample.make();
        m_model->toggleKeep(card(0));
        QCOMPARE(m_model->errorText(), u"没有可用的本机存储；这次操作没有保存。"_qs);
        m_sample.files.files.remove(workspacePath);
        keepElsewhere(1);

        m_model->catchUpWithStorage();
        m_model->toggleKeep(card(0));

        QVERIFY(m_model->isKept(card(0)) && m_model->isKept(card(1)));
        QCOMPARE(m_sample.make()->workspace(), m_model->workspace());
    }
};

TEST_SUBJECT(ForeignChangeTest)
#include "ForeignChangeTest.moc"
