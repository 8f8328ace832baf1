// SPDX-License-Identifier: Apache-2.0

#include "Browser.h"
#include "Composition.h"
#include "SchemePalette.h"
#include "ScreenTour.h"
#include "SiteDocuments.h"
#include "Subject.h"

#include <QGuiApplication>
#include <QPainter>
#include <QQmlProperty>
#include <QTest>
#include <QtTest/qtest_gui.h>

/// The sheet with a signal's whole thread.
class InformationThreadViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u".?"_qs));
        m_visit.emplace(ScreenTour::Stop{.name = u"today"_qs}, QSize(1120, 780));
    }

    void cleanup() { m_visit.reset(); }

    void everyWayToCloseIt_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("by its button") << false;
        QTest::newRow("by Escape") << true;
    }

    void everyWayToCloseIt()
    {
        QFETCH(const bool, byKey);
        auto* const card = window().find(u"Title of a"_qs, QAccessible::ListItem);
        card->forceActiveFocus(Qt::TabFocusReason);
        window().pressKey(Qt::Key_Return);
        QTRY_VERIFY(window().hasFocus(u"关闭"_qs, QAccessible::Button));

        window().pressKey(byKey ? Qt::Key_Escape : Qt::Key_Return);

        QTRY_VERIFY(!window().find(u"Title of a"_qs, QAccessible::Dialog));
        QVERIFY(!model().hasOpenThread());
        QVERIFY(card->hasActiveFocus());
        QVERIFY(card->property("visualFocus").toBool());
    }

    void itShowsWhatTheModelHasOpen()
    {
        for (const auto& [id, title] :
             {std::pair(u"a"_qs, u"Title of a"_qs), std::pair(u"b"_qs, u"Title of b"_qs)}) {
            model().openThread(id);
            QVERIFY(window().awaited(title, QAccessible::Dialog));
            model().closeThread();
            QTRY_VERIFY(!window().find(title, QAccessible::Dialog));
        }
    }

    // It waited for the sheet to have come up.
    void theSignalIsSeenAtOnce()
    {
        window().window()->setProperty("reducedMotion", false);
        const auto signal = model().signals().first();
        model().openThread(signal.id);
        QVERIFY(model().workspace().hasSeen(signal));
    }

    void itFollowsASync()
    {
        open(u"a"_qs);
        m_visit->sample().site->answers.insert(
            SiteClient::packPath,
            SiteReply{.body = SiteDocuments::pack(u"2026-09-03T00:00:00.000Z"_qs, {u"a"_qs}),
                      .status = 200});
        QVERIFY(window().find(u"页内要点"_qs, QAccessible::Heading));
        model().refreshPackFromSite();
        QTRY_VERIFY(!window().find(u"页内要点"_qs, QAccessible::Heading));
    }

    // It looked like a field with a fault.
    void theNoteHasTheRingForTheKeyboardAlone_data()
    {
        QTest::addColumn<Qt::FocusReason>("reason");
        QTest::addColumn<bool>("ring");
        QTest::newRow("by Tab") << Qt::TabFocusReason << true;
        QTest::newRow("by pointer") << Qt::MouseFocusReason << false;
    }

    void theNoteHasTheRingForTheKeyboardAlone()
    {
        QFETCH(const Qt::FocusReason, reason);
        QFETCH(const bool, ring);
        model().toggleKeep(u"a"_qs);
        open(u"a"_qs);
        note()->forceActiveFocus(reason);
        auto* const ground = note()->property("background").value<QQuickItem*>();
        QCOMPARE(QQmlProperty::read(ground, u"border.width"_qs).toInt(), 1);
        auto* const shown = ScreenReader::findIf(ground, [](QQuickItem* item) {
            return item->metaObject()->indexOfProperty("controlRadius") >= 0 && item->isVisible();
        });
        QCOMPARE(shown != nullptr, ring);
    }

    void closingByPointerLeavesACompositionToTheNote()
    {
        openKept();
        QTest::mousePress(
            window().window(), Qt::LeftButton, {},
            ScreenReader::place(window().find(u"关闭"_qs, QAccessible::Button)).center().toPoint());
        QVERIFY(note()->hasActiveFocus());
    }

    // Its raw letters were stored.
    void closingByPointerDropsAComposition()
    {
        openKept();
        window().type("x");
        const Composition composition(note(), u"paiban"_qs);
        ScreenReader::click(window().find(u"关闭"_qs, QAccessible::Button));
        QTRY_VERIFY(!window().find(u"Title of a"_qs, QAccessible::Dialog));
        QCOMPARE(stored(), u"x"_qs);
    }

    void itsLinksOpenWhatCanBeOpened()
    {
        open(u"a"_qs);
        const Browser browser;
        window().press(u"看最新原文"_qs);
        window().press(u"Related one"_qs, QAccessible::Link);
        QCOMPARE(browser.opened,
                 (QList{QUrl(u"https://origin.example/a"_qs), QUrl(u"https://one.example/"_qs)}));
        QVERIFY(window().find(u"Related two"_qs, QAccessible::StaticText));
        QVERIFY(!window().find(u"Related two"_qs, QAccessible::Link));
    }

    void anOriginalThatCannotBeOpenedIsNotOffered()
    {
        open(u"d"_qs);
        QVERIFY(!window().find(u"看最新原文"_qs, QAccessible::Button));
    }

    void onlyAKeptSignalHasANote()
    {
        open(u"a"_qs);
        QVERIFY(!note());
        window().pressKey(Qt::Key_Escape);
        model().toggleKeep(u"b"_qs);
        open(u"b"_qs);
        QVERIFY(note());
        QVERIFY(window().find(u"Why b"_qs, QAccessible::Paragraph));
    }

    void everyEditOfTheNoteIsStored()
    {
        openKept();
        window().type("one");
        QCOMPARE(stored(), u"one"_qs);
        window().pressKey(Qt::Key_Return);
        window().type("two");
        QCOMPARE(stored(), u"one\ntwo"_qs);
    }

    void theTabKeyLeavesTheNote()
    {
        openKept();
        window().pressKey(Qt::Key_Tab);
        QVERIFY(!note()->hasActiveFocus());
        window().pressKey(Qt::Key_Backtab);
        QVERIFY(note()->hasActiveFocus());
        QCOMPARE(stored(), QString());
    }

    void inTheNoteUndoIsTheFieldsOwn()
    {
        openKept();
        model().toggleKeep(u"b"_qs);
        QVERIFY(model().canUndo());
        note()->forceActiveFocus();
        window().type("x");
        window().pressKey(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(stored(), QString());
        QVERIFY(model().isKept(model().signalById(u"b"_qs).value()));
    }

    void anUndoOfTheKeepingTakesTheNoteAway()
    {
        model().toggleKeep(u"a"_qs);
        open(u"a"_qs);
        QVERIFY(note());
        model().undoLastAction();
        window().settle();
        QVERIFY(!note());
    }

    void theCursorOfALongNoteStaysInSight()
    {
        openKept();
        for (int line = 0; line < 40; ++line) {
            window().pressKey(Qt::Key_Return);
        }
        const auto cursor = note()->property("cursorRectangle").toRectF();
        const auto inScene = note()->mapRectToScene(cursor);
        const auto* const sheet = window().find(u"Title of a"_qs, QAccessible::Dialog);
        QVERIFY(ScreenReader::place(sheet).contains(inScene));
    }

    void theNoteStaysAsItIsWhileTheThreadChanges()
    {
        openKept();
        window().type("ac");
        window().pressKey(Qt::Key_Left);
        const auto* const editor = note();
        const auto title = u"页内要点"_qs;
        QVERIFY(window().find(title, QAccessible::Heading));

        m_visit->sample().site->answers.insert(
            SiteClient::packPath,
            SiteReply{.body = SiteDocuments::pack(u"2026-09-03T00:00:00.000Z"_qs, {u"a"_qs}),
                      .status = 200});
        model().refreshPackFromSite();
        QTRY_VERIFY(!window().find(title, QAccessible::Heading));

        QCOMPARE(note(), editor);
        QVERIFY(note()->hasActiveFocus());
        window().type("b");
        QCOMPARE(stored(), u"abc"_qs);
    }

    void theNoteStaysAsItIsWhileSomethingElseStores()
    {
        openKept();
        window().type("ac");
        window().pressKey(Qt::Key_Left);
        const auto* const editor = note();
        m_visit->sample().make()->toggleKeep(u"b"_qs);
        m_visit->sample().make()->updateNote(u"a"_qs, u"elsewhere"_qs);

        model().catchUpWithStorage();
        window().settle();

        QCOMPARE(model().keptSignals().size(), 2);
        QCOMPARE(note(), editor);
        QVERIFY(note()->hasActiveFocus());
        window().type("b");
        QCOMPARE(stored(), u"abc"_qs);
    }

    void theNoteOfALongThreadStaysWhereItIsLeft()
    {
        visitLongThread();
        openKept();
        window().type("ac");
        window().pressKey(Qt::Key_Left);
        auto* const editor = note();

        auto* const body = ScreenReader::paneAround(editor->parentItem());
        QMetaObject::invokeMethod(body, "positionViewAtBeginning");
        window().settle();
        QVERIFY(present());
        window().type("b");

        QCOMPARE(stored(), u"abc"_qs);
        QCOMPARE(note(), editor);
        QVERIFY(ScreenReader::place(body).intersects(ScreenReader::place(editor)));
    }

    // With the focus on the sheet's button they did nothing.
    void theKeysThatTurnPagesTurnIt()
    {
        visitLongThread();
        open(u"a"_qs);
        QTRY_VERIFY(window().hasFocus(u"关闭"_qs, QAccessible::Button));
        auto* const body = ScreenReader::paneAround(present()->parentItem());
        const auto top = body->property("contentY").toReal();

        window().pressKey(Qt::Key_PageDown);
        QVERIFY(body->property("contentY").toReal() > top);
        window().pressKey(Qt::Key_Home);
        QCOMPARE(body->property("contentY").toReal(), top);
    }

    void whatIsScrolledAwayIsNotSeenAroundTheBody()
    {
        using Scheme = AppearancePortal::ColorScheme;
        visitLongThread();
        open(u"a"_qs);
        window().settle();
        auto* const body = ScreenReader::paneAround(present()->parentItem());
        // Between two colour schemes everything is drawn anew at once.
        const auto around = [this, body] {
            QImage drawn;
            for (const auto scheme : {Scheme::Dark, Scheme::Light}) {
                QGuiApplication::setPalette(schemePalette(scheme));
                drawn = window().window()->grabWindow();
            }
            QPainter(&drawn).fillRect(ScreenReader::place(body), Qt::black);
            return drawn;
        };
        body->setProperty("contentY", 600);
        const auto before = around();
        QMetaObject::invokeMethod(body, "positionViewAtEnd");
        const auto end = body->property("contentY").toReal();
        for (int y = 0; y < 400; y += 20) {
            body->setProperty("contentY", end - y);
            QVERIFY2(around() == before, qPrintable(QString::number(y)));
        }
        QGuiApplication::setPalette({});
    }

private:
    /// With a timeline and sources that go on far beyond the sheet.
    void visitLongThread()
    {
        auto signal = m_visit->sample().signals.first();
        for (int i = 0; i < 1000; ++i) {
            signal.timeline.append({u"day"_qs, {}, u"Event %1"_qs.arg(i), {}});
        }
        for (int i = 0; i < 100; ++i) {
            signal.relatedSources.append(
                {u"Source %1"_qs.arg(i), u"https://origin.example/%1"_qs.arg(i)});
        }
        m_visit.emplace(
            ScreenTour::Stop{
                .name = {},
                .prepare = [signal](SampleModel& sample) { sample.signals.first() = signal; }},
            QSize(1120, 780));
    }

    QQuickItem* present()
    {
        return window().find(u"现在：Summary of a"_qs, QAccessible::Paragraph);
    }

    WorkbenchWindow& window() { return m_visit->window(); }
    InformationModel& model() { return m_visit->model(); }

    void open(const QString& id)
    {
        window().press(u"打开脉络：Title of "_qs + id);
        QVERIFY(window().awaited(u"Title of "_qs + id, QAccessible::Dialog));
    }

    void openKept()
    {
        model().toggleKeep(u"a"_qs);
        model().updateNote(u"a"_qs, QString());
        open(u"a"_qs);
        note()->forceActiveFocus();
    }

    QQuickItem* note()
    {
        return window().find(u"自己的备注（可选）"_qs, QAccessible::EditableText);
    }

    QString stored() { return model().workspace().saved.at(u"a"_qs).note; }

    std::optional<ScreenTour::Visit> m_visit;
};

TEST_SUBJECT(InformationThreadViewTest)
#include "InformationThreadViewTest.moc"
