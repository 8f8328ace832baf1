#include "Browser.h"
#include "SampleModel.h"
#include "ScreenReader.h"
#include "Subject.h"

#include <QQmlEngine>
#include <QQuickView>
#include <QtQml/qqmlextensionplugin.h>

#include <optional>

Q_IMPORT_QML_PLUGIN(CorvaniteInformationPlugin)

/// The kept, weekly, archive and sources surfaces as a reader and a screen reader meet them.
class SurfacesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_warnings.clear();
        m_sample.emplace();
        m_sample->retiredSignals = {sampleSignal(u"old"_qs)};
        m_sample->signals[1].originalURL = u"见附件"_qs;
        m_sample->selectionDays = {{u"2026-8-30"_qs, {u"a"_qs}, 1},
                                   {u"2026-08-30"_qs, {u"old"_qs, u"gone"_qs}, 12},
                                   {u"2026-09-01"_qs, {u"a"_qs}, 17},
                                   {u"2026-09-02"_qs, {u"b"_qs, u"a"_qs}, 22}};
    }

    void cleanup()
    {
        m_view.reset();
        m_model.reset();
        QCOMPARE(m_warnings, QStringList());
    }

    // Kept

    void keptIsEmptyAtFirst()
    {
        showSurface(u"KeptSurface"_qs);
        verifyThere(u"已收下 · 0 项"_qs, QAccessible::StaticText);
        verifyThere(u"已收下"_qs, QAccessible::Heading);
        verifyThere(u"重要信息、后续变化和你交给 Corvanite 的来源都在这里。"_qs,
                    QAccessible::StaticText);
        verifyThere(u"搜索已收下"_qs, QAccessible::EditableText);
        verifyThere(u"还没有收下任何内容"_qs, QAccessible::Heading);
        verifyThere(u"默认精选仍会继续工作；遇到以后还会用到的信息，直接点“收下”。"_qs,
                    QAccessible::StaticText);

        m_model->setSurface(InformationModel::Surface::Kept);
        press(u"回到今天"_qs, QAccessible::Button);
        QCOMPARE(m_model->surface(), InformationModel::Surface::Today);
    }

    void keptListsSignalsAndHandIns()
    {
        makeModel();
        m_model->toggleKeep(u"a"_qs);
        QVERIFY(m_model->addSource(u"每周看看排版工具"_qs));
        showSurface(u"KeptSurface"_qs);

        verifyThere(u"已收下 · 2 项"_qs, QAccessible::StaticText);
        verifyThere(u"Title of a"_qs, QAccessible::ListItem);
        verifyThere(u"Source of a · 后续实质变化会续到这里"_qs, QAccessible::StaticText);
        verifyThere(u"看原文"_qs, QAccessible::Link);
        verifyThere(u"看变化"_qs, QAccessible::Button);
        verifyThere(u"移除"_qs, QAccessible::Button);
        verifyThere(u"你交给 Corvanite 的内容"_qs, QAccessible::StaticText);
        verifyThere(u"每周看看排版工具"_qs, QAccessible::ListItem);
        verifyThere(u"已收下 · 这个来源尚未接入更新"_qs, QAccessible::StaticText);
        QVERIFY(!find(u"还没有收下任何内容"_qs, QAccessible::Heading));
    }

    void anOriginalThatCannotBeOpenedHasNoLink()
    {
        makeModel();
        m_model->toggleKeep(u"b"_qs);
        showSurface(u"KeptSurface"_qs);

        verifyThere(u"看变化"_qs, QAccessible::Button);
        verifyThere(u"移除"_qs, QAccessible::Button);
        QVERIFY(!find(u"看原文"_qs, QAccessible::Link));
    }

    void theLinkOfAKeptSignalOpensItsOriginal()
    {
        makeModel();
        m_model->toggleKeep(u"a"_qs);
        showSurface(u"KeptSurface"_qs);
        const Browser browser;

        press(u"看原文"_qs, QAccessible::Link);

        QCOMPARE(browser.opened, QList{QUrl(u"https://origin.example/a"_qs)});
    }

    void theSearchFollowsTheTyping()
    {
        makeModel();
        m_model->toggleKeep(u"a"_qs);
        showSurface(u"KeptSurface"_qs);
        find(u"搜索已收下"_qs, QAccessible::EditableText)->forceActiveFocus();

        type("xyz");
        QCOMPARE(m_model->search(), u"xyz"_qs);
        verifyThere(u"没有匹配的内容"_qs, QAccessible::Heading);
        verifyThere(u"换一个标题、来源或留下的原因试试。"_qs, QAccessible::StaticText);

        QTest::keyClick(&*m_view, Qt::Key_Escape);
        QCOMPARE(m_model->search(), QString());
        verifyThere(u"Title of a"_qs, QAccessible::ListItem);
    }

    void removingGivesTheFocusToTheNextRow()
    {
        makeModel();
        m_model->toggleKeep(u"a"_qs);
        QVERIFY(m_model->addSource(u"每周看看排版工具"_qs));
        showSurface(u"KeptSurface"_qs);

        press(u"移除"_qs, QAccessible::Button);
        QCOMPARE(m_model->keptItemCount(), 1);
        QTRY_VERIFY(hasFocus(u"每周看看排版工具"_qs, QAccessible::ListItem));

        press(u"移除"_qs, QAccessible::Button);
        QCOMPARE(m_model->keptItemCount(), 0);
        QTRY_VERIFY(hasFocus(u"搜索已收下"_qs, QAccessible::EditableText));
    }

    void theKeysWalkTheKeptRows()
    {
        makeModel();
        m_model->toggleKeep(u"a"_qs);
        QVERIFY(m_model->addSource(u"一"_qs));
        QVERIFY(m_model->addSource(u"二"_qs));
        showSurface(u"KeptSurface"_qs);
        awaited(u"Title of a"_qs, QAccessible::ListItem)->forceActiveFocus(Qt::TabFocusReason);

        QTest::keyClick(&*m_view, Qt::Key_Down);
        QVERIFY(hasFocus(u"一"_qs, QAccessible::ListItem));
        QTest::keyClick(&*m_view, Qt::Key_End);
        QVERIFY(hasFocus(u"二"_qs, QAccessible::ListItem));
        QTest::keyClick(&*m_view, Qt::Key_Up);
        QVERIFY(hasFocus(u"一"_qs, QAccessible::ListItem));
        QTest::keyClick(&*m_view, Qt::Key_Home);
        QVERIFY(hasFocus(u"Title of a"_qs, QAccessible::ListItem));
    }

    // Weekly

    void theWeeklyDigestWithoutHistory()
    {
        m_sample->selectionDays = {};
        showSurface(u"WeeklyDigestView"_qs);
        verifyThere(u"周报精选"_qs, QAccessible::Heading);
        verifyThere(u"每日焦点按周折叠，由记录自动生成，不是事后改写。"_qs,
                    QAccessible::StaticText);
        verifyThere(u"还没有归档的天数。同步站点后，每天的焦点会自动折进周报。"_qs,
                    QAccessible::StaticText);
    }

    void theWeeklyDigest()
    {
        showSurface(u"WeeklyDigestView"_qs);
        verifyThere(u"8月31日–9月6日"_qs, QAccessible::Heading);
        verifyThere(u"本周 · 进行中"_qs, QAccessible::StaticText);
        verifyThere(u"2 天 · 3 条焦点 · 覆盖 1 条泳道"_qs, QAccessible::StaticText);
        verifyThere(u"9月1日 星期二"_qs, QAccessible::StaticText);
        verifyThere(u"共 17 条在册"_qs, QAccessible::StaticText);
        verifyThere(u"Title of a"_qs, QAccessible::StaticText);
        verifyThere(u"产品雷达"_qs, QAccessible::StaticText);
        verifyThere(u"8月24日–8月30日"_qs, QAccessible::Heading);
        verifyThere(u"已定格"_qs, QAccessible::StaticText);
        verifyThere(u"已归档条目（gone）"_qs, QAccessible::StaticText);

        press(u"查看9月1日 星期二的完整精选"_qs, QAccessible::Link);
        QCOMPARE(m_model->surface(), InformationModel::Surface::Archive);
        QCOMPARE(m_model->selectedArchiveDay(), u"2026-09-01"_qs);
    }

    // Archive

    void theArchiveWithoutHistory()
    {
        m_sample->selectionDays = {};
        showSurface(u"ArchiveView"_qs);
        verifyThere(u"0 天记录"_qs, QAccessible::StaticText);
        QVERIFY(!find(u"精选："_qs, QAccessible::StaticText));
    }

    void theIndexOfTheArchive()
    {
        showSurface(u"ArchiveView"_qs);
        verifyThere(u"ARCHIVE · 往期精选"_qs, QAccessible::StaticText);
        verifyThere(u"回看任何一天的 Corvanite。"_qs, QAccessible::Heading);
        verifyThere(
            u"每天的焦点内容按日期归档。你可以回看当时的判断、对照后来的变化，也可以检验 Corvanite 是否真的在替你挡住噪声。"_qs,
            QAccessible::StaticText);
        verifyThere(u"4 天记录"_qs, QAccessible::StaticText);
        verifyThere(u"每日焦点 + 全部条目，不可变归档。"_qs, QAccessible::StaticText);
        verifyThere(u"9月2日"_qs, QAccessible::Heading);
        verifyThere(u"星期三"_qs, QAccessible::StaticText);
        verifyThere(u"今天"_qs, QAccessible::StaticText);
        verifyThere(u"精选："_qs, QAccessible::StaticText);
        verifyThere(u"02"_qs, QAccessible::StaticText);
        verifyThere(u"Title of a · 产品雷达"_qs, QAccessible::StaticText);
        verifyThere(u"当日共 22 条 · 先看 2 条 · 查看这一天 →"_qs, QAccessible::StaticText);
        verifyThere(u"查看9月2日的完整精选"_qs, QAccessible::Button);
        verifyThere(u"查看2026-8-30的完整精选"_qs, QAccessible::Button);
    }

    void theArchiveLeadsToTheWeeklyDigest_data()
    {
        QTest::addColumn<QAccessible::Role>("role");
        QTest::newRow("切到周报精选") << QAccessible::Button;
        QTest::newRow("按周折叠的视角见周报精选 →") << QAccessible::Link;
    }

    void theArchiveLeadsToTheWeeklyDigest()
    {
        QFETCH(const QAccessible::Role, role);
        showSurface(u"ArchiveView"_qs);
        press(QString::fromUtf8(QTest::currentDataTag()), role);
        QCOMPARE(m_model->surface(), InformationModel::Surface::Weekly);
    }

    void anArchivedDay()
    {
        showSurface(u"ArchiveView"_qs);
        press(u"查看9月2日的完整精选"_qs, QAccessible::Button);

        verifyThere(u"ARCHIVE · 每日精选"_qs, QAccessible::StaticText);
        verifyThere(u"2026年9月2日 的精选"_qs, QAccessible::Heading);
        verifyThere(
            u"这一天 Corvanite 在册 22 条信号，先看 2 条焦点。本页是不可变归档：记录当时的选择，方便对照后来的变化。"_qs,
            QAccessible::StaticText);
        verifyThere(u"在周报里看 8月31日–9月6日 这一周"_qs, QAccessible::Link);
        verifyThere(u"本周周报 →"_qs, QAccessible::Link);
        verifyThere(u"01"_qs, QAccessible::StaticText);
        verifyThere(u"产品雷达 · Source of b"_qs, QAccessible::StaticText);
        verifyThere(u"Title of b"_qs, QAccessible::Heading);
        verifyThere(u"为什么入选：Why b"_qs, QAccessible::StaticText);
        verifyThere(u"保留意见：Caveat of b"_qs, QAccessible::StaticText);
        verifyThere(u"判断依据：Source of b"_qs, QAccessible::StaticText);
        verifyThere(u"看原文：Source of a"_qs, QAccessible::Link);
        verifyThere(u"看原文"_qs, QAccessible::Link);
        verifyThere(u"当日共 22 条在册信号"_qs, QAccessible::StaticText);
        verifyThere(u"前一天 · 9月1日"_qs, QAccessible::Button);
        QVERIFY(!find(u"4 天记录"_qs, QAccessible::StaticText));

        press(u"前一天 · 9月1日"_qs, QAccessible::Button);
        verifyThere(u"后一天 · 9月2日"_qs, QAccessible::Button);
        press(u"回今日工作台"_qs, QAccessible::Button);
        QCOMPARE(m_model->surface(), InformationModel::Surface::Today);
        QCOMPARE(m_model->selectedArchiveDay(), u"2026-09-01"_qs);
        press(u"回往期索引"_qs, QAccessible::Button);
        QVERIFY(!m_model->selectedArchiveDay());
        verifyThere(u"4 天记录"_qs, QAccessible::StaticText);
    }

    void altLeftLeadsBackToTheDayInTheIndex()
    {
        showSurface(u"ArchiveView"_qs);
        awaited(u"查看9月1日的完整精选"_qs, QAccessible::Button)
            ->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(&*m_view, Qt::Key_Return);
        QCOMPARE(m_model->selectedArchiveDay(), u"2026-09-01"_qs);

        QTest::keyClick(&*m_view, Qt::Key_Left, Qt::AltModifier);

        QVERIFY(!m_model->selectedArchiveDay());
        QVERIFY(hasFocus(u"查看9月1日的完整精选"_qs, QAccessible::Button));
    }

    void theKeysWalkALongArchive()
    {
        m_sample->selectionDays.clear();
        for (int i = 0; i < 400; ++i) {
            m_sample->selectionDays.append(
                {QDate(2026, 9, 2).addDays(-i).toString(Qt::ISODate), {u"a"_qs}, i});
        }
        showSurface(u"ArchiveView"_qs);
        awaited(u"查看9月2日的完整精选"_qs, QAccessible::Button)
            ->forceActiveFocus(Qt::TabFocusReason);

        QTest::keyClick(&*m_view, Qt::Key_End);
        QVERIFY(hasFocus(u"查看7月30日的完整精选"_qs, QAccessible::Button));
        QTest::keyClick(&*m_view, Qt::Key_Up);
        QVERIFY(hasFocus(u"查看7月31日的完整精选"_qs, QAccessible::Button));
        QTest::keyClick(&*m_view, Qt::Key_Home);
        QVERIFY(hasFocus(u"查看9月2日的完整精选"_qs, QAccessible::Button));
    }

    // Sources

    void theSources()
    {
        showComponent(u"SourcesView"_qs, {{u"siteOrigin"_qs, u"https://corvanite.example/"_qs}});
        verifyThere(u"SOURCES · 信源透明"_qs, QAccessible::StaticText);
        verifyThere(u"每一张卡从哪里来，全部摊开。"_qs, QAccessible::Heading);
        verifyThere(u"15 路订阅源，经人工评审后注册。"_qs, QAccessible::Heading);
        verifyThere(u"15"_qs, QAccessible::StaticText);
        verifyThere(u"Product Hunt"_qs, QAccessible::StaticText);
        verifyThere(u"产品发布榜 · 英文，新产品首发与社区热度信号。"_qs, QAccessible::StaticText);
        verifyThere(u"打开信源主页"_qs, QAccessible::Link);
        verifyThere(u"结构化数据直接采集，社区信号单独观察。"_qs, QAccessible::Heading);
        verifyThere(u"官方页面"_qs, QAccessible::StaticText);
        verifyThere(u"聚合器只是线索，canonical 永远是原作者。"_qs, QAccessible::Heading);
        verifyThere(u"原文优先"_qs, QAccessible::StaticText);
        verifyThere(u"加源要过评审，退源留得下痕迹。"_qs, QAccessible::StaticText);

        const Browser browser;
        press(u"网页版"_qs, QAccessible::Link);
        QCOMPARE(browser.opened, QList{QUrl(u"https://corvanite.example/sources"_qs)});
    }

    // The hand-in sheet

    void theSheetTakesWhatIsHandedIn()
    {
        showSheet();
        verifyThere(u"添加信息"_qs, QAccessible::StaticText);
        verifyThere(u"交给 Corvanite"_qs, QAccessible::Heading);
        verifyThere(
            u"粘贴一个网页，或直接说想持续更新什么。系统自动选择合适方式，不让你配置工作流。"_qs,
            QAccessible::StaticText);
        verifyThere(
            u"已核验的公开来源会直接接入；其他输入先安全保存在本机，未接入时不会假装已经抓取。"_qs,
            QAccessible::StaticText);
        QTRY_VERIFY(hasFocus(u"链接或一句话"_qs, QAccessible::EditableText));

        type("typography");
        QTest::keyClick(&*m_view, Qt::Key_Return, Qt::ControlModifier);

        QCOMPARE(m_model->keptCustomSources().first().input, u"typography"_qs);
        QTRY_VERIFY(!find(u"添加信息"_qs, QAccessible::StaticText));
    }

    void theSheetSaysWhyItRefuses()
    {
        showSheet();
        const QString refusal = u"请粘贴一个链接，或写一句想持续更新的内容。"_qs;
        press(u"交给 Corvanite"_qs, QAccessible::Button);
        verifyThere(refusal, QAccessible::AlertMessage);
        auto* const field = find(u"链接或一句话"_qs, QAccessible::EditableText);
        QCOMPARE(ScreenReader::description(field), refusal);

        field->forceActiveFocus();
        type("x");
        QVERIFY(!find(refusal, QAccessible::AlertMessage));
        QVERIFY(!m_model->intakeErrorMessage());

        press(u"取消"_qs, QAccessible::Button);
        QTRY_VERIFY(!find(u"添加信息"_qs, QAccessible::StaticText));
        QVERIFY(m_model->keptCustomSources().isEmpty());
    }

    void enterInACompositionHandsNothingIn()
    {
        showSheet();
        auto* const field = find(u"链接或一句话"_qs, QAccessible::EditableText);
        QInputMethodEvent composing(u"paiban"_qs, {});
        QCoreApplication::sendEvent(field, &composing);
        QVERIFY(field->property("inputMethodComposing").toBool());

        QTest::keyClick(&*m_view, Qt::Key_Return);

        verifyThere(u"添加信息"_qs, QAccessible::StaticText);
        QVERIFY(!m_model->intakeErrorMessage());
        QVERIFY(m_model->keptCustomSources().isEmpty());
    }

private:
    void makeModel() { m_model = m_sample->make(); }

    void showSurface(const QString& component)
    {
        if (!m_model) {
            makeModel();
        }
        showComponent(component, {{u"workbench"_qs, QVariant::fromValue(m_model.get())}});
    }

    void showSheet()
    {
        makeModel();
        prepareView();
        auto* const component = new QQmlComponent(m_view->engine(), &*m_view);
        component->setData("import QtQuick\nimport CorvaniteInformation\n"
                           "Item { id: ground; required property InformationModel workbench\n"
                           "AddSourceView { workbench: ground.workbench; visible: true } }",
                           QUrl(u"qrc:/SheetGround.qml"_qs));
        auto* const ground = component->createWithInitialProperties(
            {{u"workbench"_qs, QVariant::fromValue(m_model.get())}});
        QVERIFY2(ground, qPrintable(component->errorString()));
        m_view->setContent({}, component, ground);
        expose();
        QVERIFY(awaited(u"添加信息"_qs, QAccessible::StaticText));
    }

    void showComponent(const QString& component, const QVariantMap& properties)
    {
        prepareView();
        m_view->setInitialProperties(properties);
        m_view->setSource(QUrl(u"qrc:/qt/qml/CorvaniteInformation/%1.qml"_qs.arg(component)));
        QCOMPARE(m_view->status(), QQuickView::Ready);
        expose();
    }

    void prepareView()
    {
        m_view.emplace();
        m_view->resize(1120, 2400);
        m_view->setResizeMode(QQuickView::SizeRootObjectToView);
        m_view->engine()->addImportPath(u":/qt/qml"_qs);
        connect(m_view->engine(), &QQmlEngine::warnings, this,
                [this](const QList<QQmlError>& warnings) {
                    for (const auto& warning : warnings) {
                        m_warnings.append(warning.toString());
                    }
                });
    }

    void expose()
    {
        m_view->show();
        m_view->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&*m_view));
        ScreenReader::start();
    }

    void verifyThere(const QString& name, QAccessible::Role role) const
    {
        QVERIFY2(awaited(name, role), qPrintable(name));
    }

    void press(const QString& name, QAccessible::Role role) const
    {
        auto* const item = awaited(name, role);
        QVERIFY2(item, qPrintable(name));
        ScreenReader::press(item);
    }

    void type(const QByteArray& text)
    {
        for (const char character : text) {
            QTest::keyClick(&*m_view, character);
        }
    }

    bool hasFocus(const QString& name, QAccessible::Role role) const
    {
        const auto* const item = find(name, role);
        return item && item->hasActiveFocus();
    }

    /// The first visible item of that name and role; null when there is none.
    QQuickItem* find(const QString& name, QAccessible::Role role) const
    {
        return ScreenReader::find(m_view->contentItem(), name, role);
    }

    /// The same, once it is there.
    QQuickItem* awaited(const QString& name, QAccessible::Role role) const
    {
        return ScreenReader::awaited(m_view->contentItem(), name, role);
    }

    std::optional<SampleModel> m_sample;
    std::unique_ptr<InformationModel> m_model;
    std::optional<QQuickView> m_view;
    QStringList m_warnings;
};

TEST_SUBJECT(SurfacesTest)
#include "SurfacesTest.moc"
