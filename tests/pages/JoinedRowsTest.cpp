// SPDX-License-Identifier: Apache-2.0

#include "JoinedRows.h"
#include "RowListModel.h"
#include "Subject.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

struct Letter
{
    Q_GADGET
public:
    QChar letter;
    int version = 0;

    QString key() const { return letter; }

    friend bool operator==(const Letter&, const Letter&) = default;
};

namespace {

QList<Letter> letters(const QString& text)
{
    QList<Letter> letters;
    for (const QChar letter : text) {
        letters.append({letter, 0});
    }
    return letters;
}

QString textOf(const JoinedRows& joined)
{
    QString text;
    for (int row = 0; row < joined.rowCount(); ++row) {
        text += joined.data(joined.index(row), JoinedRows::rowRole).value<Letter>().letter;
    }
    return text;
}

} // namespace

class JoinedRowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_first.setRows(letters(u"abc"_qs));
        m_second.setRows(letters(u"xyz"_qs));
        m_joined.setFirst(&m_first);
        m_joined.setSecond(&m_second);
        QCOMPARE(textOf(m_joined), u"abcxyz"_qs);
    }

    void followsEveryChangeOfEither_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::newRow("a row comes") << u"abdc"_qs << u"xyzw"_qs;
        QTest::newRow("a row goes") << u"ac"_qs << u"yz"_qs;
        QTest::newRow("rows move") << u"cab"_qs << u"zxy"_qs;
        QTest::newRow("all go") << QString() << QString();
        QTest::newRow("all are others") << u"de"_qs << u"uvw"_qs;
    }

    void followsEveryChangeOfEither()
    {
        QFETCH(const QString, first);
        QFETCH(const QString, second);
        m_second.setRows(letters(second));
        QCOMPARE(textOf(m_joined), u"abc"_qs + second);
        m_first.setRows(letters(first));
        QCOMPARE(textOf(m_joined), first + second);
        m_second.setRows(letters(u"xyz"_qs));
        QCOMPARE(textOf(m_joined), first + u"xyz"_qs);
    }

    void aChangedRowIsToldWhereItStands()
    {
        const QSignalSpy changed(&m_joined, &JoinedRows::dataChanged);
        m_first.setRows({{u'a'}, {u'b', 1}, {u'c'}});
        m_second.setRows({{u'x'}, {u'y'}, {u'z', 1}});
        QCOMPARE(changed.size(), 2);
        QCOMPARE(changed.at(0).at(0).toModelIndex().row(), 1);
        QCOMPARE(changed.at(0).at(1).toModelIndex().row(), 1);
        QCOMPARE(changed.at(1).at(0).toModelIndex().row(), 5);
        QCOMPARE(changed.at(1).at(1).toModelIndex().row(), 5);
    }

    void aMovedRowIsToldWhereItStands()
    {
        const QSignalSpy moved(&m_joined, &JoinedRows::rowsMoved);
        m_second.setRows(letters(u"xzy"_qs));
        QCOMPARE(moved.size(), 1);
        QCOMPARE(moved.first().at(1).toInt(), 5);
        QCOMPARE(moved.first().at(2).toInt(), 5);
        QCOMPARE(moved.first().at(4).toInt(), 4);
    }

    void rowsHaveNoRowsOfTheirOwn() { QCOMPARE(m_joined.rowCount(m_joined.index(0)), 0); }

    void anotherListIsTold()
    {
        const QSignalSpy first(&m_joined, &JoinedRows::firstChanged);
        const QSignalSpy second(&m_joined, &JoinedRows::secondChanged);
        m_joined.setFirst(nullptr);
        m_joined.setFirst(nullptr);
        QCOMPARE(first.size(), 1);
        QCOMPARE(second.size(), 0);
        m_joined.setSecond(nullptr);
        QCOMPARE(second.size(), 1);
    }

    void aListComesAndGoesAsRows()
    {
        const QSignalSpy resets(&m_joined, &JoinedRows::modelReset);
        const QSignalSpy inserted(&m_joined, &JoinedRows::rowsInserted);
        const QSignalSpy removed(&m_joined, &JoinedRows::rowsRemoved);
        m_joined.setSecond(nullptr);
        QCOMPARE(textOf(m_joined), u"abc"_qs);
        m_second.setRows({});
        m_joined.setSecond(&m_second);
        m_second.setRows(letters(u"w"_qs));
        QCOMPARE(textOf(m_joined), u"abcw"_qs);
        QCOMPARE(inserted.size(), 1);
        m_joined.setSecond(nullptr);
        QCOMPARE(removed.size(), 2);
        QVERIFY(resets.isEmpty());
    }

    void aListOfOneRowComesAsARow()
    {
        m_joined.setSecond(nullptr);
        m_second.setRows(letters(u"w"_qs));
        const QSignalSpy inserted(&m_joined, &JoinedRows::rowsInserted);
        m_joined.setSecond(&m_second);
        QCOMPARE(inserted.size(), 1);
    }

    void aListThatWasLeftIsNotFollowed()
    {
        m_joined.setSecond(nullptr);
        m_second.setRows(letters(u"w"_qs));
        QCOMPARE(m_joined.rowCount(), 3);
    }

private:
    RowListModel<Letter> m_first;
    RowListModel<Letter> m_second;
    JoinedRows m_joined;
    const QAbstractItemModelTester m_tester{&m_joined,
                                            QAbstractItemModelTester::FailureReportingMode::QtTest};
};

TEST_SUBJECT(JoinedRowsTest)
#include "JoinedRowsTest.moc"
