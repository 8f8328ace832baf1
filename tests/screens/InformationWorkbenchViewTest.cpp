#include "AppearancePortal.h"
#include "FakeSiteClient.h"
#include "InformationModel.h"
#include "MemoryFileManager.h"
#include "ProductSite.h"

#include <QAccessible>
#include <QDBusConnection>
#include <QDesktopServices>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QUrl>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(CorvaniteInformationPlugin)

namespace {

InformationSignal signalWithId(const QString& id)
{
    InformationSignal signal{};
    signal.id = id;
    signal.title = u"标题 "_qs + id;
    return signal;
}

} // namespace

/// Stands in for the browser.
class Browser : public QObject
{
    Q_OBJECT

public:
    Browser() { QDesktopServices::setUrlHandler(u"https"_qs, this, "take"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler(u"https"_qs); }

    QList<QUrl> opened;

public Q_SLOTS:
    void take(const QUrl& url) { opened.append(url); }
};

class InformationWorkbenchViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_warnings.clear();
        m_files.emplace();
        m_site.emplace();
        makeModel();
        load();
    }

    void cleanup()
    {
        m_engine.reset();
        m_model.reset();
        QCOMPARE(m_warnings, QList<QQmlError>());
    }

    void theWindow()
    {
        QCOMPARE(m_window->title(), u"Corvanite Information"_qs);
        QCOMPARE(m_window->size(), QSize(1120, 780));
        QCOMPARE(m_window->minimumSize(), QSize(720, 560));
        QVERIFY(m_window->flags().testFlag(Qt::FramelessWindowHint));
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
        QVERIFY(find(QString::fromUtf8(QTest::currentDataTag()), role));
    }

    void whatDoesNotExistYetIsNotThere()
    {
        for (const auto& name : {u"添加信息"_qs, u"今天"_qs, u"关闭回执"_qs, u"获取更新"_qs}) {
            QVERIFY(!find(name, QAccessible::Button));
            QVERIFY(!find(name, QAccessible::PageTab));
        }
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
        press(QString::fromUtf8(QTest::currentDataTag()), QAccessible::Link);
        QCOMPARE(browser.opened, QList{QUrl(address)});
    }

    void aSyncSaysThatItRunsAndHowItWent()
    {
        m_site->heldPaths = {ProductSite::packPath};
        press(u"同步站点"_qs, QAccessible::Button);
        auto* const button = awaited(u"同步中"_qs, QAccessible::Button);
        QVERIFY(button);
        QVERIFY(!button->isEnabled());

        m_site->release();
        const auto result = u"同步失败，继续使用当前内容"_qs;
        QVERIFY(awaited(result, QAccessible::AlertMessage));
        QVERIFY(button->isEnabled());
        const auto* const accessible = QAccessible::queryAccessibleInterface(button);
        QCOMPARE(accessible->text(QAccessible::Name), u"同步站点"_qs);
        QCOMPARE(accessible->text(QAccessible::Description),
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
        m_site->requests.clear();
        QTest::keyClick(m_window, key, modifiers);
        QCOMPARE(m_site->requests.size(), 1);
    }

    void theBannerOffersANewerBuild()
    {
        const auto address = u"https://corvanite.example/builds/1.2.3"_qs;
        m_site->answers.insert(
            ProductSite::appVersionPath,
            SiteReply{.body = R"({"schemaVersion": "corvanite-information-app-version-v1",
                                  "version": "1.2.3", "sha256": "00",
                                  "downloadUrl": "https://corvanite.example/builds/1.2.3"})",
                      .status = 200});
        makeModel();
        load();
        QVERIFY(awaited(u"新版本 1.2.3 已发布"_qs, QAccessible::StaticText));
        auto* const button = awaited(u"获取更新"_qs, QAccessible::Button);
        QVERIFY(button);
        QCOMPARE(QAccessible::queryAccessibleInterface(button)->text(QAccessible::Description),
                 u"获取 Corvanite Information 新版本 1.2.3"_qs);

        const Browser browser;
        press(u"获取更新"_qs, QAccessible::Button);
        QCOMPARE(browser.opened, QList{QUrl(address)});

        press(u"关闭更新提示"_qs, QAccessible::Button);
        QTRY_VERIFY(!find(u"获取更新"_qs, QAccessible::Button));
    }

    void theReceiptBarComesAndGoesWithTheReceipt()
    {
        m_model->toggleKeep(u"a"_qs);
        auto* const bar = awaited(m_model->receiptText(), QAccessible::AlertMessage);
        QVERIFY(bar);
        QTRY_COMPARE(bar->opacity(), 1.0);
        QVERIFY(!bar->hasActiveFocus());
        const auto bottom = bar->mapRectToScene(bar->boundingRect()).bottom();
        QCOMPARE(bottom, m_window->height() - 36 - 16.0);

        press(u"关闭回执"_qs, QAccessible::Button);
        QVERIFY(!m_model->hasReceipt());
        QTRY_VERIFY(!bar->isVisible());
    }

    void theReceiptBarTakesTheActionBack()
    {
        m_model->toggleKeep(u"a"_qs);
        press(u"撤销"_qs, QAccessible::Button);
        QCOMPARE(m_model->keptItemCount(), 0);
        QTRY_VERIFY(!find(u"撤销"_qs, QAccessible::Button));
    }

    void theReceiptBarIsNeverWiderThanTheWindow()
    {
        m_model->toggleKeep(u"a"_qs);
        auto* const bar = awaited(m_model->receiptText(), QAccessible::AlertMessage);
        QVERIFY(bar);
        QCOMPARE(bar->height(), 48.0);
        bar->setProperty("message", u"很长的回执。"_qs.repeated(12));
        m_window->resize(720, 560);
        QTRY_COMPARE(bar->width(), 720.0 - 48);
        QTRY_COMPARE(bar->height(), 64.0);
    }

    void theKeysOfTheWindow()
    {
        m_model->toggleKeep(u"a"_qs);
        QTest::keyClick(m_window, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(m_model->keptItemCount(), 0);
        QVERIFY(m_model->hasReceipt());
        QTest::keyClick(m_window, Qt::Key_Escape);
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
        m_files->writeFailure = FileError::fromSystemError(ENOSPC);
        m_model->toggleKeep(u"a"_qs);
        QVERIFY(m_model->hasErrorMessage());

        auto* const alert = awaited(u"Corvanite 没有改动原数据"_qs, QAccessible::AlertMessage);
        QVERIFY(alert);
        QCOMPARE(QAccessible::queryAccessibleInterface(alert)->text(QAccessible::Description),
                 m_model->errorText());
        auto* const button = awaited(u"知道了"_qs, QAccessible::Button);
        QVERIFY(button);
        QTRY_VERIFY(button->property("visualFocus").toBool());

        QTest::keyClick(m_window, key);
        QTRY_VERIFY(!m_model->hasErrorMessage());
        QTRY_VERIFY(!find(u"知道了"_qs, QAccessible::Button));
    }

    void theAlertIsThereFromTheStart()
    {
        m_files->writeFailure = FileError::fromSystemError(ENOSPC);
        m_model->toggleKeep(u"a"_qs);
        load();
        QVERIFY(awaited(m_model->errorText(), QAccessible::StaticText));
    }

    void theWindowButtons()
    {
        press(u"最大化"_qs, QAccessible::Button);
        QTRY_COMPARE(m_window->visibility(), QWindow::Maximized);
        press(u"还原"_qs, QAccessible::Button);
        QTRY_COMPARE(m_window->visibility(), QWindow::Windowed);
        press(u"最小化"_qs, QAccessible::Button);
        QTRY_COMPARE(m_window->visibility(), QWindow::Minimized);
        m_window->showNormal();
        press(u"关闭窗口"_qs, QAccessible::Button);
        QTRY_VERIFY(!m_window->isVisible());
    }

    void aDoubleClickOnTheHeaderMaximises()
    {
        QTest::mouseDClick(m_window, Qt::LeftButton, {}, {500, 30});
        QTRY_COMPARE(m_window->visibility(), QWindow::Maximized);
        QTest::mouseDClick(m_window, Qt::LeftButton, {}, {500, 30});
        QTRY_COMPARE(m_window->visibility(), QWindow::Windowed);
    }

private:
    void makeModel()
    {
        m_engine.reset();
        m_model.emplace(InformationModel::Collaborators{.fileManager = *m_files,
                                                        .now = [] { return 0.0; },
                                                        .seedHistory = {},
                                                        .site = *m_site,
                                                        .allowedHost = u"corvanite.example"_qs,
                                                        .runningVersion = u"1.0.0"_qs},
                        InformationContent({signalWithId(u"a"_qs)}, {}, {}, {}),
                        InformationWorkspaceRepository{u"/support/workspace"_qs});
    }

    void load()
    {
        m_engine.emplace();
        connect(&*m_engine, &QQmlEngine::warnings, this,
                [this](const QList<QQmlError>& warnings) { m_warnings += warnings; });
        m_engine->addImportPath(u":/qt/qml"_qs);
        m_engine->setInitialProperties({{u"workbench"_qs, QVariant::fromValue(&*m_model)},
                                        {u"appearance"_qs, QVariant::fromValue(&m_appearance)},
                                        {u"siteOrigin"_qs, u"https://corvanite.example/"_qs}});
        m_engine->load(QUrl(u"qrc:/qt/qml/CorvaniteInformation/InformationWorkbenchView.qml"_qs));
        QCOMPARE(m_engine->rootObjects().size(), 1);
        m_window = qobject_cast<QQuickWindow*>(m_engine->rootObjects().constFirst());
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        // As when a screen reader starts: controls then say their roles anew.
        QAccessible::setActive(false);
        QAccessible::setActive(true);
    }

    void press(const QString& name, QAccessible::Role role) const
    {
        auto* const item = awaited(name, role);
        QVERIFY2(item, qPrintable(name));
        QAccessible::queryAccessibleInterface(item)->actionInterface()->doAction(
            QAccessibleActionInterface::pressAction());
    }

    /// The visible item of that name and role; null when there is none.
    QQuickItem* find(const QString& name, QAccessible::Role role) const
    {
        return findBelow(m_window->contentItem(), name, role);
    }

    /// The same, once it is there.
    QQuickItem* awaited(const QString& name, QAccessible::Role role) const
    {
        return QTest::qWaitFor([&] { return find(name, role) != nullptr; }) ? find(name, role)
                                                                            : nullptr;
    }

    static QQuickItem* findBelow(QQuickItem* item, const QString& name, QAccessible::Role role)
    {
        if (!item->isVisible()) {
            return nullptr;
        }
        auto* const accessible = QAccessible::queryAccessibleInterface(item);
        if (accessible && accessible->role() == role &&
            accessible->text(QAccessible::Name) == name) {
            return item;
        }
        for (auto* const child : item->childItems()) {
            if (auto* const found = findBelow(child, name, role)) {
                return found;
            }
        }
        return nullptr;
    }

    std::optional<MemoryFileManager> m_files;
    std::optional<FakeSiteClient> m_site;
    std::optional<InformationModel> m_model;
    AppearancePortal m_appearance{QDBusConnection(u"nowhere"_qs)};
    std::optional<QQmlApplicationEngine> m_engine;
    QQuickWindow* m_window = nullptr;
    QList<QQmlError> m_warnings;
};

QTEST_MAIN(InformationWorkbenchViewTest)
#include "InformationWorkbenchViewTest.moc"
