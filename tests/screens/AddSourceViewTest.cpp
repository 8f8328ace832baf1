#include "ScreenTour.h"
#include "Subject.h"
#include "WorkbenchTexts.h"

#include <QTest>

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
        QVERIFY(window().awaited(refusal, QAccessible::AlertMessage));
        QCOMPARE(ScreenReader::description(field()), refusal);

        field()->forceActiveFocus();
        window().type("x");
        QVERIFY(!window().find(refusal, QAccessible::AlertMessage));
        QVERIFY(!model().intakeErrorMessage());
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
