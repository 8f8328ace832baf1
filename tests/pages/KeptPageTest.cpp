// SPDX-License-Identifier: Apache-2.0

#include "KeptPage.h"
#include "ShownPage.h"
#include "Subject.h"

#include <QSignalSpy>
#include <QTest>

namespace {

QStringList titlesOf(KeptPage& page)
{
    QStringList titles;
    for (const auto& row : page.rows()->rows()) {
        titles.append(row.title);
    }
    return titles;
}

} // namespace

class KeptPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewWorkspaceHasNothing()
    {
        ShownPage<KeptPage> page;

        QCOMPARE(page->eyebrow(), u"已收下 · 0 项"_qs);
        QVERIFY(page->empty());
        QCOMPARE(page->emptyTitle(), u"还没有收下任何内容"_qs);
        QCOMPARE(page->emptyMessage(),
                 u"默认精选仍会继续工作；遇到以后还会用到的信息，直接点“收下”。"_qs);
    }

    void listsSignalsBeforeHandIns()
    {
        ShownPage<KeptPage> page;

        QVERIFY(page.model->addSource(u"每周看看排版工具"_qs));
        page.model->toggleKeep(u"a"_qs);

        QCOMPARE(page->eyebrow(), u"已收下 · 2 项"_qs);
        QVERIFY(!page->empty());
        QCOMPARE(titlesOf(*page), QStringList({u"Title of a"_qs, u"每周看看排版工具"_qs}));
    }

    void countsEverythingKeptWhateverIsSearched()
    {
        ShownPage<KeptPage> page;
        page.model->toggleKeep(u"a"_qs);
        page.model->toggleKeep(u"b"_qs);

        page.model->setSearch(u"title of A"_qs);

        QCOMPARE(titlesOf(*page), QStringList(u"Title of a"_qs));
        QCOMPARE(page->eyebrow(), u"已收下 · 2 项"_qs);
    }

    void findsNothing()
    {
        ShownPage<KeptPage> page;
        page.model->toggleKeep(u"a"_qs);

        page.model->setSearch(u"农历"_qs);

        QVERIFY(page->empty());
        QCOMPARE(page->emptyTitle(), u"没有匹配的内容"_qs);
        QCOMPARE(page->emptyMessage(), u"换一个标题、来源或留下的原因试试。"_qs);
    }

    void takesRowsOut()
    {
        ShownPage<KeptPage> page;
        page.model->toggleKeep(u"a"_qs);
        QVERIFY(page.model->addSource(u"每周看看排版工具"_qs));

        page->remove(page->rows()->rows().first());
        QCOMPARE(titlesOf(*page), QStringList(u"每周看看排版工具"_qs));
        QCOMPARE(page.model->receipt(), u"已从工作台移除，并停止继续更新。"_qs);

        page->remove(page->rows()->rows().first());
        QCOMPARE(titlesOf(*page), QStringList());
        QCOMPARE(page.model->receipt(), u"已移除这条内容。"_qs);
    }

    void keepsTheRowsThatStay()
    {
        SampleModel sample;
        const auto model = sample.make();
        model->toggleKeep(u"a"_qs);
        model->toggleKeep(u"b"_qs);
        KeptPage page;
        page.setWorkbench(model.get());
        const QSignalSpy reset(page.rows(), &QAbstractItemModel::modelReset);
        const QSignalSpy removed(page.rows(), &QAbstractItemModel::rowsRemoved);

        model->setSearch(u"title of b"_qs);

        QCOMPARE(removed.size(), 1);
        QCOMPARE(reset.size(), 0);
    }

    void followsASync()
    {
        ShownPage<KeptPage> page;
        page.model->toggleKeep(u"a"_qs);
        const auto before = page->rows()->rows();

        page.sync({u"a"_qs});

        QVERIFY(page->rows()->rows() != before);
        QCOMPARE(page->rows()->rows(), QList{KeptRow::from(page.model->signals().first())});
    }

    void followsAnotherModel()
    {
        SampleModel sample;
        SampleModel otherSample;
        const auto model = sample.make();
        const auto other = otherSample.make();
        other->toggleKeep(u"b"_qs);
        KeptPage page;
        page.setWorkbench(model.get());

        page.setWorkbench(other.get());
        QCOMPARE(titlesOf(page), QStringList(u"Title of b"_qs));

        model->toggleKeep(u"a"_qs);
        QCOMPARE(titlesOf(page), QStringList(u"Title of b"_qs));
    }
};

TEST_SUBJECT(KeptPageTest)
#include "KeptPageTest.moc"
