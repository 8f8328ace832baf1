// SPDX-License-Identifier: Apache-2.0

#include "FourSignals.h"
#include "Subject.h"

#include <QSignalSpy>
#include <QTest>

/// What can be undone, and what is left where storing fails.
class ModelUndoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_sample = fourSignals(); }

    void aFailedSaveRestoresEverythingAndLeavesNoUndo()
    {
        const auto model = m_sample.make();
        model->toggleKeep(u"a"_qs);
        const auto before = model->workspace();
        const QByteArray fileBefore = m_sample.files.files.value(workspacePath);

        m_sample.files.writeFailure = FileError{FileError::Reason::NoSpace};
        model->toggleKeep(u"b"_qs);

        QCOMPARE(model->workspace(), before);
        QCOMPARE(m_sample.files.files.value(workspacePath), fileBefore);
        QVERIFY(!model->receipt());
        QVERIFY(!model->canUndo());
        QCOMPARE(model->errorMessage(),
                 u"没有保存这次操作："_qs + m_sample.files.writeFailure->localizedDescription());
    }

    void aFailedUndoCanBeTriedAgain()
    {
        const auto model = m_sample.make();
        model->toggleKeep(u"a"_qs);

        m_sample.files.writeFailure = FileError{FileError::Reason::ReadOnly};
        model->undoLastAction();
        QVERIFY(model->canUndo());
        QVERIFY(model->isKept(m_sample.signals[0]));

        m_sample.files.writeFailure.reset();
        model->undoLastAction();
        QVERIFY(!model->canUndo());
        QVERIFY(!model->isKept(m_sample.signals[0]));
    }

    void aLaterSuccessLeavesTheErrorMessage()
    {
        const auto model = m_sample.make();
        m_sample.files.writeFailure = FileError{FileError::Reason::NoSpace};
        model->toggleKeep(u"a"_qs);
        m_sample.files.writeFailure.reset();
        model->toggleKeep(u"a"_qs);

        QVERIFY(model->errorMessage());
        model->dismissError();
        QVERIFY(!model->errorMessage());
    }

    void undoGoesOneStepBack()
    {
        const auto model = m_sample.make();
        model->toggleKeep(u"a"_qs);
        const auto afterFirst = model->workspace();
        model->toggleKeep(u"b"_qs);

        model->undoLastAction();
        QCOMPARE(model->workspace(), afterFirst);
        model->undoLastAction();
        QCOMPARE(model->workspace(), afterFirst);
    }

    void seeingNeitherFillsNorClearsUndo()
    {
        const auto model = m_sample.make();
        model->toggleKeep(u"a"_qs);
        model->markSeen(u"b"_qs);

        QVERIFY(model->canUndo());
        QVERIFY(!model->receipt());
        QVERIFY(model->workspace().hasSeen(m_sample.signals[1]));

        model->undoLastAction();
        QVERIFY(!model->workspace().hasSeen(m_sample.signals[1]));
    }

    void seeingAgainSavesNothing()
    {
        const auto model = m_sample.make();
        model->markSeen(u"a"_qs);
        model->toggleKeep(u"b"_qs);
        QSignalSpy changes(model.get(), &InformationModel::workspaceChanged);

        model->markSeen(u"a"_qs);

        QCOMPARE(changes.count(), 0);
        QVERIFY(model->receipt());
    }

private:
    SampleModel m_sample;
};

TEST_SUBJECT(ModelUndoTest)
#include "ModelUndoTest.moc"
