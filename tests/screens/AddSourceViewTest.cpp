// SPDX-License-Identifier: Apache-2.0

#include "Composition.h"
#include "ScreenListener.h"
#include "ScreenTour.h"
#include "Subject.h"
#include "WorkbenchTexts.h"

#include <QTest>
#include <QtTest/qtest_gui.h>

/// The sheet that something is handed in with.
class AddSourceViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u".?"_qs));
        m_visit.emplace(ScreenTour::Stop{.name = {}, .open = [](const WorkbenchWindow& window) {
                                             window.press(u"添加信息"_qs);
                                         }});
        QTRY_VERIFY(field() && field()->hasActiveFocus());
    }

    void cleanup() { m_visit.reset(); }

    void itTakesWhatIsHandedIn()
    {
        window().type("typography");
        window().pressKey(Qt::Key_Return, Qt::ControlModifier);

        QCOMPARE(model().keptCustomSources().first().input, u"typography"_qs);
        QTRY_VERIFY(!field());
    }

    void itSaysWhyItRefusesUntilTheNextEdit()
    {
        window().press(u"交给 Corvanite"_qs);
        const auto refusal = WorkbenchTexts::intakeMessage(InformationIntakeFailure::Empty);
        QVERIFY(window().awaited(refusal, QAccessible::Notification));
        QCOMPARE(ScreenReader::description(field()), refusal);

        field()->forceActiveFocus();
        window().type("x");
        QVERIFY(!window().find(refusal, QAccessible::Notification));
        QVERIFY(!model().intakeErrorMessage());
    }

    void everyRefusalIsReadOut()
    {
        ScreenListener listener(window().content());
        for (int i = 0; i < 2; ++i) {
            window().press(u"交给 Corvanite"_qs);
            QCOMPARE(listener.announced(),
                     QStringList(WorkbenchTexts::intakeMessage(InformationIntakeFailure::Empty)));
        }
    }

    void ctrlEnterHandsInWhereverTheFocusIs()
    {
        window().type("typography");
        window().find(u"取消"_qs, QAccessible::Button)->forceActiveFocus(Qt::TabFocusReason);
        window().pressKey(Qt::Key_Return, Qt::ControlModifier);
        QTRY_VERIFY(!field());
        QCOMPARE(model().keptCustomSources().size(), 1);
    }

    void aHeldEnterHandsInOnce_data()
    {
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::newRow("Enter") << Qt::KeyboardModifiers();
        QTest::newRow("Ctrl+Enter") << Qt::KeyboardModifiers(Qt::ControlModifier);
    }

    void aHeldEnterHandsInOnce()
    {
        QFETCH(const Qt::KeyboardModifiers, modifiers);
        ScreenListener listener(window().content());
        for (const bool repeated : {false, true, true}) {
            QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, modifiers, {}, repeated);
            QCoreApplication::sendEvent(window().window(), &enter);
        }
        window().settle();
        QCOMPARE(listener.announced().size(), 1);
    }

    void aClosedSheetIsDropped()
    {
        const QPointer<QQuickItem> dropped = field();
        window().pressKey(Qt::Key_Escape);
        QTRY_VERIFY(!dropped);
    }

    // A press took the focus from the field, whose raw letters were then handed in.
    void aPressLeavesACompositionToTheField()
    {
        QTest::mousePress(
            window().window(), Qt::LeftButton, {},
            ScreenReader::place(window().find(u"交给 Corvanite"_qs, QAccessible::Button))
                .center()
                .toPoint());
        QVERIFY(field()->hasActiveFocus());
    }

    void aPressEndsACompositionAndDropsIt()
    {
        const Composition composition(field(), u"paiban"_qs);
        QVERIFY(field()->property("inputMethodComposing").toBool());
        ScreenReader::click(window().find(u"交给 Corvanite"_qs, QAccessible::Button));
        QVERIFY(!field()->property("inputMethodComposing").toBool());
        QCOMPARE(model().intakeErrorMessage(),
                 WorkbenchTexts::intakeMessage(InformationIntakeFailure::Empty));
        QCOMPARE(field()->property("text").toString(), QString());
    }

    void cancellingHandsNothingIn()
    {
        window().type("x");
        window().press(u"取消"_qs);
        QTRY_VERIFY(!field());
        QVERIFY(model().keptCustomSources().isEmpty());
    }

    void enterInACompositionHandsNothingIn()
    {
        QInputMethodEvent composing(u"paiban"_qs, {});
        QCoreApplication::sendEvent(field(), &composing);
        QVERIFY(field()->property("inputMethodComposing").toBool());

        window().pressKey(Qt::Key_Return);

        QVERIFY(field());
        QVERIFY(!model().intakeErrorMessage());
        QVERIFY(model().keptCustomSources().isEmpty());
    }

private:
    WorkbenchWindow& window() { return m_visit->window(); }
    InformationModel& model() { return m_visit->model(); }

    QQuickItem* field() { return window().find(u"链接或一句话"_qs, QAccessible::EditableText); }

    std::optional<ScreenTour::Visit> m_visit;
};

TEST_SUBJECT(AddSourceViewTest)
#include "AddSourceViewTest.moc"
