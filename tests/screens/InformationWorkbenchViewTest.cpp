// SPDX-License-Identifier: Apache-2.0

#include "Browser.h"
#include "FirstSize.h"
#include "SampleModel.h"
#include "SchemePalette.h"
#include "ScreenListener.h"
#include "SiteDocuments.h"
#include "Subject.h"
#include "WorkbenchWindow.h"

#include <QSignalSpy>
#include <QTest>
#include <QtTest/qtest_gui.h>

#include <algorithm>
#include <list>

using Surface = InformationModel::Surface;

class InformationWorkbenchViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_sample.emplace();
        m_sample->selectionDays = {{u"2026-09-01"_qs, {u"a"_qs}, 3}};
        load();
    }

    void cleanup()
    {
        const auto warnings = m_window ? m_window->warnings() : QStringList();
        m_window.reset();
        m_model.reset();
        QCOMPARE(warnings, QStringList());
    }

    void theWindow()
    {
        const auto* const window = m_window->window();
        QCOMPARE(window->title(), u"Corvanite Information"_qs);
        QCOMPARE(window->size(), QSize(1120, 780));
        QCOMPARE(window->minimumSize(), FirstSize::minimum);
        QVERIFY(window->flags().testFlag(Qt::FramelessWindowHint));
    }

    void whatIsReadFirstStandsWithTheFirstFrameAndTheRestWithTheSecond()
    {
        m_window.reset();
        m_model = m_sample->make();
        m_sample->site->requests.clear();
        QStringList frames;
        const auto look = [this, &frames](QQuickItem* content) {
            QStringList there;
            for (const auto& [name, role] : {std::pair(u"Title of a"_qs, QAccessible::ListItem),
                                             std::pair(u"Title of b"_qs, QAccessible::ListItem),
                                             std::pair(u"今日全部"_qs, QAccessible::List)}) {
                if (ScreenReader::find(content, name, role)) {
                    there.append(name);
                }
            }
            there.append(QString::number(m_sample->site->requests.size()));
            frames.append(there.join(u' '));
        };
        m_window.emplace(*m_model, QSize(1120, 780), [&look](QQmlEngine& engine) {
            connect(qobject_cast<QQmlApplicationEngine*>(&engine),
                    &QQmlApplicationEngine::objectCreated, &engine, [&look](QObject* made) {
                        const auto* const window = qobject_cast<QQuickWindow*>(made);
                        connect(window, &QQuickWindow::afterRendering, window,
                                [&look, window] { look(window->contentItem()); });
                    });
        });
        QTRY_COMPARE(m_sample->site->requests.size(), 1);
        m_window.reset();
        QCOMPARE(frames.first(2),
                 (QStringList{u"Title of a 0"_qs, u"Title of a Title of b 今日全部 0"_qs}));
    }

    void rolesAndNames_data()
    {
        QTest::addColumn<QAccessible::Role>("role");

        QTest::newRow("信息工作台") << QAccessible::Heading;
        QTest::newRow("最小化") << QAccessible::Button;
        QTest::newRow("最大化") << QAccessible::Button;
        QTest::newRow("关闭窗口") << QAccessible::Button;
        QTest::newRow("收下的内容与偏好保存在当前设备") << QAccessible::StaticText;
        QTest::newRow("站点导航") << QAccessible::Grouping;
        QTest::newRow("编辑方法") << QAccessible::Link;
        QTest::newRow("关于") << QAccessible::Link;
        QTest::newRow("管线状态") << QAccessible::Link;
        QTest::newRow("RSS") << QAccessible::Link;
    }

    void rolesAndNames()
    {
        QFETCH(const QAccessible::Role, role);
        QVERIFY(m_window->find(QString::fromUtf8(QTest::currentDataTag()), role));
    }

    void whatIsNotDueIsNotThere()
    {
        for (const auto& name : {u"关闭回执"_qs, u"获取更新"_qs}) {
            QVERIFY(!m_window->find(name, QAccessible::Button));
        }
    }

    void everyWayToASurface_data()
    {
        QTest::addColumn<QAccessible::Role>("role");
        QTest::addColumn<Surface>("surface");

        QTest::newRow("今天") << QAccessible::PageTab << Surface::Today;
        QTest::newRow("已收下") << QAccessible::PageTab << Surface::Kept;
        QTest::newRow("周报") << QAccessible::PageTab << Surface::Weekly;
        QTest::newRow("往期") << QAccessible::PageTab << Surface::Archive;
        QTest::newRow("信源") << QAccessible::PageTab << Surface::Sources;
        QTest::newRow("往期精选") << QAccessible::Link << Surface::Archive;
        QTest::newRow("周报精选") << QAccessible::Link << Surface::Weekly;
        QTest::newRow("信源清单") << QAccessible::Link << Surface::Sources;
    }

    void everyWayToASurface()
    {
        QFETCH(const QAccessible::Role, role);
        QFETCH(const Surface, surface);
        m_model->setSurface(surface == Surface::Today ? Surface::Kept : Surface::Today);
        m_window->press(QString::fromUtf8(QTest::currentDataTag()), role);
        QCOMPARE(m_model->surface(), surface);
    }

    void theKeysOfTheSurfaces_data()
    {
        QTest::addColumn<Surface>("surface");
        QTest::addColumn<QString>("title");

        QTest::newRow("1") << Surface::Today << u"今天先看 2 条"_qs;
        QTest::newRow("2") << Surface::Kept << u"已收下"_qs;
        QTest::newRow("3") << Surface::Weekly << u"周报精选"_qs;
        QTest::newRow("4") << Surface::Archive << u"回看任何一天的 Corvanite。"_qs;
        QTest::newRow("5") << Surface::Sources << u"每一张卡从哪里来，全部摊开。"_qs;
    }

    void theKeysOfTheSurfaces()
    {
        QFETCH(const Surface, surface);
        QFETCH(const QString, title);
        m_model->setSurface(surface == Surface::Today ? Surface::Kept : Surface::Today);
        m_window->find(u"添加信息"_qs, QAccessible::Button)->forceActiveFocus();

        m_window->pressKey(Qt::Key(Qt::Key_0 + QByteArray(QTest::currentDataTag()).toInt()),
                           Qt::ControlModifier);

        QCOMPARE(m_model->surface(), surface);
        QVERIFY(m_window->find(title, QAccessible::Heading));
        // The next key scrolls the surface.
        const auto* const focused = m_window->window()->activeFocusItem();
        QVERIFY(focused);
        QVERIFY(focused->property("contentY").isValid());
    }

    void aSurfaceStaysAsItWasLeft()
    {
        auto* const list = m_window->find(u"今天先看 2 条"_qs, QAccessible::LayeredPane);
        QVERIFY(list);
        m_window->resize({1120, 560});
        m_window->pressKey(Qt::Key_PageDown);
        const auto position = list->property("contentY").toReal();
        QVERIFY(position > 0);

        m_window->pressKey(Qt::Key_5, Qt::ControlModifier);
        QVERIFY(!list->isVisible());
        m_window->pressKey(Qt::Key_1, Qt::ControlModifier);
        QVERIFY(list->isVisible());
        QCOMPARE(list->property("contentY").toReal(), position);
        QCOMPARE(m_window->window()->activeFocusItem(), list);
    }

    // An icon of a card was left on the header.
    void whatIsScrolledAwayIsNotSeenOnTheFrame()
    {
        using Scheme = AppearancePortal::ColorScheme;
        m_window->resize({1120, 560});
        // Between two colour schemes everything is drawn anew at once.
        const auto frame = [this] {
            QImage drawn;
            for (const auto scheme : {Scheme::Dark, Scheme::Light}) {
                QGuiApplication::setPalette(schemePalette(scheme));
                drawn = m_window->window()->grabWindow();
            }
            return drawn.copy(1, 1, 1118, 62);
        };
        const auto before = frame();
        auto* const list = m_window->find(u"今天先看 2 条"_qs, QAccessible::LayeredPane);
        for (int y = 200; y < 700; y += 20) {
            list->setProperty("contentY", y);
            QVERIFY2(frame() == before, qPrintable(QString::number(y)));
        }
        QGuiApplication::setPalette({});
    }

    void theKeyboardGoesOnAfterACardIsGone()
    {
        m_window->awaited(u"这类少看：产品雷达"_qs, QAccessible::Button)
            ->forceActiveFocus(Qt::TabFocusReason);
        m_window->pressKey(Qt::Key_Return);
        QCOMPARE(m_model->visibleSignals().size(), 1);
        const auto left = m_model->visibleSignals().first().title;
        QVERIFY(m_window->hasFocus(left, QAccessible::ListItem));
    }

    void theFocusGoesAlongToAnArchivedDay()
    {
        m_window->pressKey(Qt::Key_3, Qt::ControlModifier);
        m_window->awaited(u"查看9月1日 星期二的完整精选"_qs, QAccessible::Link)
            ->forceActiveFocus(Qt::TabFocusReason);
        m_window->pressKey(Qt::Key_Return);
        QCOMPARE(m_model->surface(), Surface::Archive);
        QVERIFY(m_window->find(u"2026年9月1日 的精选"_qs, QAccessible::Heading));

        m_window->pressKey(Qt::Key_Left, Qt::AltModifier);
        QVERIFY(!m_model->selectedArchiveDay());
        QVERIFY(m_window->hasFocus(u"查看9月1日的完整精选"_qs, QAccessible::Button));
    }

    void theKeyOfTheSearch_data()
    {
        QTest::addColumn<Surface>("from");
        QTest::newRow("elsewhere") << Surface::Today;
        QTest::newRow("on the kept surface") << Surface::Kept;
    }

    void theKeyOfTheSearch()
    {
        QFETCH(const Surface, from);
        m_model->setSurface(from);
        m_window->pressKey(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(m_model->surface(), Surface::Kept);
        QVERIFY(m_window->hasFocus(u"搜索已收下"_qs, QAccessible::EditableText));
    }

    void theHandInSheetGivesTheFocusBack_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("opened by its button") << false;
        QTest::newRow("opened by Ctrl+N") << true;
    }

    void theHandInSheetGivesTheFocusBack()
    {
        QFETCH(const bool, byKey);
        auto* const add = m_window->find(u"添加信息"_qs, QAccessible::Button);
        add->forceActiveFocus(Qt::TabFocusReason);
        m_window->pressKey(byKey ? Qt::Key_N : Qt::Key_Return,
                           byKey ? Qt::ControlModifier : Qt::NoModifier);
        QTRY_VERIFY(m_window->hasFocus(u"链接或一句话"_qs, QAccessible::EditableText));

        m_window->pressKey(Qt::Key_Escape);
        QTRY_VERIFY(!m_window->find(u"链接或一句话"_qs, QAccessible::EditableText));
        QVERIFY(add->hasActiveFocus());
        QVERIFY(add->property("visualFocus").toBool());
    }

    void anOpenSheetKeepsTheWindowsKeysToItself()
    {
        m_window->pressKey(Qt::Key_N, Qt::ControlModifier);
        QTRY_VERIFY(m_window->hasFocus(u"链接或一句话"_qs, QAccessible::EditableText));
        m_window->pressKey(Qt::Key_3, Qt::ControlModifier);
        m_window->pressKey(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(m_model->surface(), Surface::Today);

        for (int i = 0; i < 8; ++i) {
            m_window->pressKey(Qt::Key_Tab);
            QVERIFY(
                ScreenReader::isWithin(m_window->find(u"交给 Corvanite"_qs, QAccessible::Dialog),
                                       m_window->window()->activeFocusItem()));
        }
    }

    void escapeClosesTheTopmostThingFirst()
    {
        m_model->toggleKeep(u"a"_qs);
        m_window->pressKey(Qt::Key_N, Qt::ControlModifier);
        QVERIFY(m_window->awaited(u"链接或一句话"_qs, QAccessible::EditableText));

        m_window->pressKey(Qt::Key_Escape);
        QTRY_VERIFY(!m_window->find(u"链接或一句话"_qs, QAccessible::EditableText));
        QVERIFY(m_model->hasReceipt());
        m_window->pressKey(Qt::Key_Escape);
        QVERIFY(!m_model->hasReceipt());
    }

    void theLinksOpenPagesOfTheSite_data()
    {
        QTest::addColumn<QString>("address");

        QTest::newRow("编辑方法") << u"https://corvanite.example/method"_qs;
        QTest::newRow("关于") << u"https://corvanite.example/about"_qs;
        QTest::newRow("管线状态") << u"https://corvanite.example/status"_qs;
        QTest::newRow("RSS") << u"https://corvanite.example/feed.xml"_qs;
    }

    void theLinksOpenPagesOfTheSite()
    {
        QFETCH(const QString, address);
        const Browser browser;
        m_window->press(QString::fromUtf8(QTest::currentDataTag()), QAccessible::Link);
        QCOMPARE(browser.opened, QList{QUrl(address)});
    }

    void aSyncSaysThatItRunsAndHowItWent()
    {
        m_sample->site->heldPaths = {SiteClient::packPath};
        m_window->press(u"同步站点"_qs, QAccessible::Button);
        auto* const button = m_window->awaited(u"同步中"_qs, QAccessible::Button);
        QVERIFY(button);
        QVERIFY(!button->isEnabled());

        m_sample->site->release();
        const auto result = u"同步失败，继续使用当前内容"_qs;
        QVERIFY(m_window->awaited(result, QAccessible::Notification));
        QVERIFY(button->isEnabled());
        QCOMPARE(m_window->find(u"同步站点"_qs, QAccessible::Button), button);
        QCOMPARE(ScreenReader::description(button),
                 u"从 corvanite.example 拉取最新精选内容\n"_qs + result);
    }

    void theKeysOfASync_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");

        QTest::newRow("F5") << Qt::Key_F5 << Qt::KeyboardModifiers();
        QTest::newRow("Ctrl+R") << Qt::Key_R << Qt::KeyboardModifiers(Qt::ControlModifier);
    }

    void theKeysOfASync()
    {
        QFETCH(const Qt::Key, key);
        QFETCH(const Qt::KeyboardModifiers, modifiers);
        m_sample->site->requests.clear();
        m_window->pressKey(key, modifiers);
        QCOMPARE(m_sample->site->requests.size(), 1);
    }

    void theBannerOffersANewerBuild()
    {
        const auto address = u"https://corvanite.example/download"_qs;
        m_sample->site->answers.insert(
            SiteClient::appVersionPath,
            SiteReply{.body = SiteDocuments::appVersion(u"1.2.3"_qs), .status = 200});
        load();
        QVERIFY(m_window->awaited(u"新版本 1.2.3 已发布"_qs, QAccessible::StaticText));
        auto* const button = m_window->awaited(u"获取更新"_qs, QAccessible::Button);
        QVERIFY(button);
        QCOMPARE(ScreenReader::description(button), u"获取 Corvanite Information 新版本 1.2.3"_qs);

        const Browser browser;
        m_window->press(u"获取更新"_qs, QAccessible::Button);
        QCOMPARE(browser.opened, QList{QUrl(address)});

        m_window->press(u"关闭更新提示"_qs, QAccessible::Button);
        QTRY_VERIFY(!m_window->find(u"获取更新"_qs, QAccessible::Button));
    }

    void theReceiptBarComesAndGoesWithTheReceipt()
    {
        m_model->toggleKeep(u"a"_qs);
        auto* const bar = receiptBar();
        QVERIFY(bar);
        QTRY_COMPARE(bar->opacity(), 1.0);
        QVERIFY(!bar->hasActiveFocus());
        const auto bottom = ScreenReader::place(bar).bottom();
        QCOMPARE(bottom, m_window->window()->height() - 36 - 16.0);

        m_window->press(u"关闭回执"_qs, QAccessible::Button);
        QVERIFY(!m_model->hasReceipt());
        QTRY_VERIFY(!bar->isVisible());
    }

    void theReceiptBarTakesTheActionBack()
    {
        m_model->toggleKeep(u"a"_qs);
        m_window->press(u"撤销"_qs, QAccessible::Button);
        QCOMPARE(m_model->keptItemCount(), 0);
        QTRY_VERIFY(!m_window->find(u"撤销"_qs, QAccessible::Button));
    }

    void theReceiptBarIsNeverWiderThanTheWindow()
    {
        m_model->toggleKeep(u"a"_qs);
        auto* const bar = receiptBar();
        QVERIFY(bar);
        QCOMPARE(bar->height(), 48.0);
        bar->setProperty("message", u"很长的回执。"_qs.repeated(12));
        m_window->resize({720, 560});
        QTRY_COMPARE(bar->width(), 720.0 - 48);
        QTRY_COMPARE(bar->height(), 64.0);
    }

    void theKeysOfTheWindow()
    {
        m_model->toggleKeep(u"a"_qs);
        m_window->pressKey(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(m_model->keptItemCount(), 0);
        QVERIFY(m_model->hasReceipt());
        m_window->pressKey(Qt::Key_Escape);
        QVERIFY(!m_model->hasReceipt());
    }

    void theAlertTellsUntilItIsAcknowledged_data()
    {
        QTest::addColumn<Qt::Key>("key");

        QTest::newRow("by Enter on the button") << Qt::Key_Return;
        QTest::newRow("by Escape") << Qt::Key_Escape;
    }

    void theAlertTellsUntilItIsAcknowledged()
    {
        QFETCH(const Qt::Key, key);
        m_sample->files.writeFailure = FileError::fromSystemError(ENOSPC);
        m_model->toggleKeep(u"a"_qs);
        QVERIFY(m_model->hasErrorMessage());

        auto* const alert =
            m_window->awaited(u"Corvanite 没有改动原数据"_qs, QAccessible::AlertMessage);
        QVERIFY(alert);
        QCOMPARE(ScreenReader::description(alert), m_model->errorText());
        auto* const button = m_window->awaited(u"知道了"_qs, QAccessible::Button);
        QVERIFY(button);
        QTRY_VERIFY(button->property("visualFocus").toBool());

        m_window->pressKey(key);
        QTRY_VERIFY(!m_model->hasErrorMessage());
        QTRY_VERIFY(!m_window->find(u"知道了"_qs, QAccessible::Button));
    }

    void theAlertIsThereFromTheStart()
    {
        m_sample->files.writeFailure = FileError::fromSystemError(ENOSPC);
        m_model->toggleKeep(u"a"_qs);
        m_window.reset();
        m_window.emplace(*m_model);
        QVERIFY(m_window->awaited(m_model->errorText(), QAccessible::StaticText));
    }

    void theWindowButtons()
    {
        m_window->press(u"最大化"_qs, QAccessible::Button);
        QTRY_COMPARE(m_window->window()->visibility(), QWindow::Maximized);
        m_window->press(u"还原"_qs, QAccessible::Button);
        QTRY_COMPARE(m_window->window()->visibility(), QWindow::Windowed);
        m_window->press(u"最小化"_qs, QAccessible::Button);
        QTRY_COMPARE(m_window->window()->visibility(), QWindow::Minimized);
        m_window->window()->showNormal();
        m_window->press(u"关闭窗口"_qs, QAccessible::Button);
        QTRY_VERIFY(!m_window->window()->isVisible());
    }

    void aDoubleClickOnTheHeaderMaximises()
    {
        QTest::mouseDClick(m_window->window(), Qt::LeftButton, {}, {320, 30});
        QTRY_COMPARE(m_window->window()->visibility(), QWindow::Maximized);
        QTest::mouseDClick(m_window->window(), Qt::LeftButton, {}, {320, 30});
        QTRY_COMPARE(m_window->window()->visibility(), QWindow::Windowed);
    }

    void everyReceiptIsReadOut()
    {
        ScreenListener listener(m_window->content());
        m_model->toggleKeep(u"a"_qs);
        m_window->settle();
        QCOMPARE(listener.announced(), QStringList(m_model->receiptText()));
        m_model->toggleKeep(u"b"_qs);
        m_window->settle();
        QCOMPARE(listener.announced(), QStringList(m_model->receiptText()));
        m_model->undoLastAction();
        m_window->settle();
        QCOMPARE(listener.announced(), QStringList(m_model->receiptText()));
        m_model->dismissReceipt();
        m_window->settle();
        QCOMPARE(listener.announced(), QStringList());
        m_model->toggleKeep(u"a"_qs);
        m_window->settle();
        QCOMPARE(listener.announced(), QStringList(m_model->receiptText()));
    }

    void aReceiptTellsHowToTakeTheActionBack()
    {
        m_model->toggleKeep(u"a"_qs);
        auto* const receipt = m_window->awaited(m_model->receiptText(), QAccessible::Notification);
        QCOMPARE(ScreenReader::description(receipt), u"按 Ctrl+Z 撤销"_qs);
        auto* const undo = m_window->find(u"撤销"_qs, QAccessible::Button);
        QCOMPARE(ScreenReader::description(undo), m_model->receiptText());

        m_model->undoLastAction();
        m_window->settle();
        QCOMPARE(ScreenReader::description(receipt), QString());
    }

    void theResultOfEverySyncIsReadOut()
    {
        ScreenListener listener(m_window->content());
        for (int i = 0; i < 2; ++i) {
            m_window->press(u"同步站点"_qs);
            QTRY_VERIFY(m_window->find(u"同步站点"_qs, QAccessible::Button));
            m_window->settle();
            QCOMPARE(listener.announced(), QStringList(u"同步失败，继续使用当前内容"_qs));
        }
    }

    void theSyncButtonKeepsItsRingThroughASync()
    {
        m_sample->site->heldPaths = {SiteClient::packPath};
        auto* const button = m_window->find(u"同步站点"_qs, QAccessible::Button);
        button->forceActiveFocus(Qt::TabFocusReason);
        m_window->pressKey(Qt::Key_Return);
        QVERIFY(!button->isEnabled());
        m_sample->site->release();
        QTRY_VERIFY(button->isEnabled());
        QVERIFY(button->hasActiveFocus());
        QVERIFY(button->property("visualFocus").toBool());
    }

    void theFocusGoesBackFromTheReceipt_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("byKey");

        for (const auto& button : {u"撤销"_qs, u"关闭回执"_qs}) {
            QTest::addRow("%s by key", qPrintable(button)) << button << true;
            QTest::addRow("%s by pointer", qPrintable(button)) << button << false;
        }
    }

    void theFocusGoesBackFromTheReceipt()
    {
        QFETCH(const QString, button);
        QFETCH(const bool, byKey);
        auto* const keep = m_window->awaited(u"收下并持续更新：Title of a"_qs, QAccessible::Button);
        keep->forceActiveFocus(Qt::TabFocusReason);
        m_window->pressKey(Qt::Key_Return);
        auto* const target = m_window->awaited(button, QAccessible::Button);
        if (byKey) {
            target->forceActiveFocus(Qt::TabFocusReason);
            m_window->pressKey(Qt::Key_Return);
        } else {
            ScreenReader::click(target);
            m_window->settle();
        }
        QVERIFY(keep->hasActiveFocus());
        QVERIFY(keep->property("visualFocus").toBool());
    }

    void theFocusGoesFromTheReceiptToThePaneWhereItsPlaceIsGone()
    {
        auto* const reduce = m_window->awaited(u"这类少看：产品雷达"_qs, QAccessible::Button);
        reduce->forceActiveFocus(Qt::MouseFocusReason);
        m_window->pressKey(Qt::Key_Return);
        m_window->find(u"撤销"_qs, QAccessible::Button)->forceActiveFocus(Qt::TabFocusReason);
        m_window->pressKey(Qt::Key_Return);
        QVERIFY(ScreenReader::isWithin(pane(), m_window->window()->activeFocusItem()));
    }

    void theFocusGoesBackFromTheBanner()
    {
        showBanner();
        m_window->find(u"关闭更新提示"_qs, QAccessible::Button)
            ->forceActiveFocus(Qt::TabFocusReason);
        m_window->pressKey(Qt::Key_Return);
        QVERIFY(ScreenReader::isWithin(pane(), m_window->window()->activeFocusItem()));
    }

    void theBannerHasAName()
    {
        showBanner();
        QVERIFY(m_window->find(u"新版本 1.2.3 已发布"_qs, QAccessible::Pane));
    }

    void aPressAroundThePageLeavesTheKeyboardWithIt_data()
    {
        QTest::addColumn<QAccessible::Role>("role");

        QTest::newRow("今天") << QAccessible::PageTab;
        QTest::newRow("同步站点") << QAccessible::Button;
        QTest::newRow("关闭回执") << QAccessible::Button;
        QTest::newRow("RSS") << QAccessible::Link;
        QTest::newRow("信息工作台") << QAccessible::Heading;
    }

    void aPressAroundThePageLeavesTheKeyboardWithIt()
    {
        QFETCH(const QAccessible::Role, role);
        const Browser browser;
        m_model->toggleKeep(u"a"_qs);
        m_window->resize({1120, 560});
        ScreenReader::click(m_window->awaited(QString::fromUtf8(QTest::currentDataTag()), role));
        m_window->settle();
        for (const auto& key : {Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Space}) {
            const auto before = pane()->property("contentY").toReal();
            m_window->pressKey(key);
            QVERIFY(pane()->property("contentY").toReal() != before);
        }
    }

    void aPressOnAnotherSurfaceLeavesTheKeyboardInIt()
    {
        ScreenReader::click(m_window->find(u"信源"_qs, QAccessible::PageTab));
        m_window->settle();
        auto* const sources = m_window->find(u"信源清单"_qs, QAccessible::List);
        QVERIFY(sources);
        m_window->pressKey(Qt::Key_PageDown);
        QVERIFY(sources->property("contentY").toReal() > 0);
    }

    void afterTheKeyOfASurfaceTheTabKeyLeadsIntoIt_data()
    {
        QTest::addColumn<Qt::Key>("key");
        for (int i = 1; i <= 5; ++i) {
            QTest::addRow("%d", i) << Qt::Key(Qt::Key_0 + i);
        }
    }

    void afterTheKeyOfASurfaceTheTabKeyLeadsIntoIt()
    {
        QFETCH(const Qt::Key, key);
        m_model->setSurface(Surface::Today);
        m_window->find(u"添加信息"_qs, QAccessible::Button)->forceActiveFocus(Qt::TabFocusReason);
        m_window->pressKey(key, Qt::ControlModifier);
        auto* const shown = m_window->window()->activeFocusItem();
        m_window->pressKey(Qt::Key_Tab);
        QVERIFY2(ScreenReader::isWithin(shown, m_window->window()->activeFocusItem()),
                 qPrintable(ScreenReader::name(m_window->window()->activeFocusItem())));
    }

    void aSheetGivesTheFocusToThePageWhereItsOpenerIsHidden()
    {
        m_window->awaited(u"Title of a"_qs, QAccessible::ListItem)
            ->forceActiveFocus(Qt::TabFocusReason);
        m_window->pressKey(Qt::Key_N, Qt::ControlModifier);
        QTRY_VERIFY(m_window->hasFocus(u"链接或一句话"_qs, QAccessible::EditableText));
        m_window->type("typography");
        m_window->pressKey(Qt::Key_Return);
        QTRY_VERIFY(!m_window->find(u"链接或一句话"_qs, QAccessible::EditableText));
        QCOMPARE(m_model->surface(), Surface::Kept);
        auto* const kept = m_window->find(u"已收下"_qs, QAccessible::LayeredPane);
        QTRY_VERIFY(ScreenReader::isWithin(kept, m_window->window()->activeFocusItem()));
    }

    void theFieldOfASheetHasTheRingWhenAKeyOpensIt_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("by its key") << true;
        QTest::newRow("by pointer") << false;
    }

    void theFieldOfASheetHasTheRingWhenAKeyOpensIt()
    {
        QFETCH(const bool, byKey);
        if (byKey) {
            m_window->pressKey(Qt::Key_N, Qt::ControlModifier);
        } else {
            ScreenReader::click(m_window->find(u"添加信息"_qs, QAccessible::Button));
        }
        QTRY_VERIFY(m_window->hasFocus(u"链接或一句话"_qs, QAccessible::EditableText));
        const auto* const field = m_window->find(u"链接或一句话"_qs, QAccessible::EditableText);
        QCOMPARE(field->property("visualFocus").toBool(), byKey);
    }

    void underASheetTheWindowIsStillToBeHandled()
    {
        m_window->pressKey(Qt::Key_N, Qt::ControlModifier);
        QTRY_VERIFY(m_window->hasFocus(u"链接或一句话"_qs, QAccessible::EditableText));
        m_sample->site->requests.clear();
        ScreenReader::click(m_window->find(u"同步站点"_qs, QAccessible::Button));
        ScreenReader::click(m_window->find(u"周报"_qs, QAccessible::PageTab));
        ScreenReader::click(m_window->find(u"RSS"_qs, QAccessible::Link));
        QCOMPARE(m_sample->site->requests.size(), 0);
        QCOMPARE(m_model->surface(), Surface::Today);

        for (const QPoint handle :
             {QPoint(320, 30), QPoint(2, 300), QPoint(1118, 300), QPoint(500, 778)}) {
            QCOMPARE(pressesOf(handle), 1);
        }
        ScreenReader::click(m_window->find(u"最大化"_qs, QAccessible::Button));
        QTRY_COMPARE(m_window->window()->visibility(), QWindow::Maximized);
        ScreenReader::click(m_window->find(u"还原"_qs, QAccessible::Button));
        QTRY_COMPARE(m_window->window()->visibility(), QWindow::Windowed);
        QVERIFY(m_window->hasFocus(u"链接或一句话"_qs, QAccessible::EditableText));
        ScreenReader::click(m_window->find(u"关闭窗口"_qs, QAccessible::Button));
        QTRY_VERIFY(!m_window->window()->isVisible());
    }

    void aDragOfTheHeaderIsHandedOverOnce()
    {
        auto* const mover = at({320, 30});
        QVERIFY(mover);
        const QSignalSpy letGo(mover, SIGNAL(canceled()));
        drag({320, 30}, {60, 20});
        QCOMPARE(letGo.count(), 1);
        QVERIFY(!mover->property("pressed").toBool());
    }

    // The desktop keeps the release of a drag to itself.
    void anEdgeCanBeDraggedAgain()
    {
        QCOMPARE(pressesOf({2, 300}), 1);
        QCOMPARE(pressesOf({2, 300}), 1);
    }

    void theSwitcherStandsInTheMiddleOfItsRoom()
    {
        for (const int width : {1108, 1120, 1440, 1680}) {
            m_window->resize({width, 780});
            const auto tabs =
                ScreenReader::place(m_window->find(u"今天"_qs, QAccessible::PageTab))
                    .united(ScreenReader::place(m_window->find(u"信源"_qs, QAccessible::PageTab)));
            const auto left = ScreenReader::place(
                m_window->find(u"AI 时代的信息管理工作台"_qs, QAccessible::StaticText));
            const auto right =
                ScreenReader::place(m_window->find(u"同步站点"_qs, QAccessible::Button));
            QVERIFY(std::abs(tabs.left() - left.right() - (right.left() - tabs.right())) <= 2);
        }
    }

    void aLineRunsAroundTheWindowUnlessItIsMaximised()
    {
        const auto inner = m_window->window()->grabWindow().pixelColor(1, 300);
        for (const QPoint edge :
             {QPoint(0, 300), QPoint(1119, 300), QPoint(500, 0), QPoint(500, 779)}) {
            QVERIFY(m_window->window()->grabWindow().pixelColor(edge) != inner);
        }
        m_window->window()->showMaximized();
        QTRY_COMPARE(m_window->window()->visibility(), QWindow::Maximized);
        QTRY_COMPARE(m_window->window()->grabWindow().pixelColor(0, 300), inner);
    }

    void theWeekIsWorkedOutAnewWhenTheReaderComesBack()
    {
        m_model->setSurface(Surface::Weekly);
        QVERIFY(m_window->awaited(u"本周 · 进行中"_qs, QAccessible::StaticText));
        constexpr double week = 7 * 24 * 3600;
        m_window->turnAway([this] { m_sample->now += week; });
        QTRY_VERIFY(!m_window->find(u"本周 · 进行中"_qs, QAccessible::StaticText));
    }

private:
    void showBanner()
    {
        m_sample->site->answers.insert(
            SiteClient::appVersionPath,
            SiteReply{.body = SiteDocuments::appVersion(u"1.2.3"_qs), .status = 200});
        load();
        QVERIFY(m_window->awaited(u"关闭更新提示"_qs, QAccessible::Button));
    }

    QQuickItem* receiptBar() const
    {
        auto* const close = m_window->awaited(u"关闭回执"_qs, QAccessible::Button);
        return close ? close->parentItem()->parentItem() : nullptr;
    }

    QQuickItem* pane() const
    {
        return ScreenReader::findIf(m_window->content(), [](QQuickItem* item) {
            return ScreenReader::role(item) == QAccessible::LayeredPane;
        });
    }

    /// The mouse area that is pressed at the point; null for none.
    QQuickItem* at(QPoint point) const
    {
        QTest::mousePress(m_window->window(), Qt::LeftButton, {}, point);
        auto* const area = ScreenReader::findIf(m_window->content(), [](QQuickItem* item) {
            return item->inherits("QQuickMouseArea") && item->property("pressed").toBool();
        });
        QTest::mouseRelease(m_window->window(), Qt::LeftButton, {}, point);
        return area;
    }

    void drag(QPoint from, QPoint by) const
    {
        QTest::mousePress(m_window->window(), Qt::LeftButton, {}, from);
        QTest::mouseMove(m_window->window(), from + by / 20);
        QTest::mouseMove(m_window->window(), from + by);
        QTest::mouseMove(m_window->window(), from + by);
        QTest::mouseRelease(m_window->window(), Qt::LeftButton, {}, from);
        m_window->settle();
    }

    static void listenToAreas(const QQuickItem* item, std::list<QSignalSpy>& spies)
    {
        const auto children = item->childItems();
        for (auto* const child : children) {
            if (child->inherits("QQuickMouseArea")) {
                spies.emplace_back(child, SIGNAL(pressedChanged()));
            }
            listenToAreas(child, spies);
        }
    }

    /// How many mouse areas take a press there that is never released.
    int pressesOf(QPoint point) const
    {
        std::list<QSignalSpy> spies;
        listenToAreas(m_window->content(), spies);
        QTest::mousePress(m_window->window(), Qt::LeftButton, {}, point);
        QTest::mouseMove(m_window->window(), point + QPoint(4, 4));
        m_window->settle();
        return static_cast<int>(
            std::ranges::count_if(spies, [](const QSignalSpy& spy) { return !spy.isEmpty(); }));
    }

    void load()
    {
        m_window.reset();
        m_model = m_sample->make();
        m_window.emplace(*m_model);
    }

    std::optional<SampleModel> m_sample;
    std::unique_ptr<InformationModel> m_model;
    std::optional<WorkbenchWindow> m_window;
};

TEST_SUBJECT(InformationWorkbenchViewTest)
#include "InformationWorkbenchViewTest.moc"
