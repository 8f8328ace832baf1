// SPDX-License-Identifier: Apache-2.0

#include "RowListModel.h"
#include "Subject.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

namespace {

struct Row
{
    QString name;
    int value = 0;

    QString key() const { return name; }
    friend bool operator==(const Row&, const Row&) = default;
};

// "ab1c" is three rows: a, b with the value 1, and c.
QList<Row> rowsFrom(const QString& text)
{
    QList<Row> rows;
    for (const QChar c : text) {
        if (c.isDigit()) {
            rows.last().value = c.digitValue();
        } else {
            rows.append({c, 0});
        }
    }
    return rows;
}

} // namespace

class RowListModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesEachRowUnderItsRole()
    {
        RowListModel<Row> model;
        model.setRows(rowsFrom(QStringLiteral("ab7")));

        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(model.rowCount(model.index(0)), 0);
        QCOMPARE(model.roleNames().value(RowListModel<Row>::rowRole), "row");
        QCOMPARE(model.data(model.index(1), RowListModel<Row>::rowRole).value<Row>().value, 7);
        QVERIFY(!model.data(model.index(1), Qt::DisplayRole).isValid());
    }

    void reachesTheWantedRows_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");

        QTest::newRow("first fill") << QString() << QStringLiteral("abc");
        QTest::newRow("emptied") << QStringLiteral("abc") << QString();
        QTest::newRow("nothing in common") << QStringLiteral("abc") << QStringLiteral("xyz");
        QTest::newRow("removed in the middle") << QStringLiteral("abcde") << QStringLiteral("ae");
        QTest::newRow("inserted everywhere") << QStringLiteral("ace") << QStringLiteral("xabcdey");
        QTest::newRow("reversed") << QStringLiteral("abcdef") << QStringLiteral("fedcba");
        QTest::newRow("to the end") << QStringLiteral("abcd") << QStringLiteral("bcda");
        QTest::newRow("all at once") << QStringLiteral("ab1cde") << QStringLiteral("exb2ya");
        QTest::newRow("repeated keys") << QStringLiteral("aab") << QStringLiteral("baaa");
        QTest::newRow("fewer repeated keys") << QStringLiteral("a1ba2") << QStringLiteral("ba");
    }

    void reachesTheWantedRows()
    {
        QFETCH(QString, before);
        QFETCH(QString, after);
        RowListModel<Row> model;
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);

        model.setRows(rowsFrom(before));
        QCOMPARE(model.rows(), rowsFrom(before));
        model.setRows(rowsFrom(after));
        QCOMPARE(model.rows(), rowsFrom(after));
    }

    void touchesOnlyWhatChanged_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::addColumn<int>("insertions");
        QTest::addColumn<int>("removals");
        QTest::addColumn<int>("moves");
        QTest::addColumn<int>("changes");

        const QString abcd = QStringLiteral("abcd");
        QTest::newRow("the same") << abcd << abcd << 0 << 0 << 0 << 0;
        QTest::newRow("first fill") << QString() << abcd << 1 << 0 << 0 << 0;
        QTest::newRow("one value") << abcd << QStringLiteral("ab5cd") << 0 << 0 << 0 << 1;
        QTest::newRow("one left out") << abcd << QStringLiteral("acd") << 0 << 1 << 0 << 0;
        QTest::newRow("a run left out") << abcd << QStringLiteral("ad") << 0 << 1 << 0 << 0;
        QTest::newRow("a run put in") << QStringLiteral("ad") << abcd << 1 << 0 << 0 << 0;
        QTest::newRow("last first") << abcd << QStringLiteral("dabc") << 0 << 0 << 1 << 0;
    }

    void touchesOnlyWhatChanged()
    {
        QFETCH(QString, before);
        QFETCH(QString, after);
        RowListModel<Row> model;
        model.setRows(rowsFrom(before));
        const QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
        const QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
        const QSignalSpy moved(&model, &QAbstractItemModel::rowsMoved);
        const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

        model.setRows(rowsFrom(after));

        QTEST(static_cast<int>(inserted.size()), "insertions");
        QTEST(static_cast<int>(removed.size()), "removals");
        QTEST(static_cast<int>(moved.size()), "moves");
        QTEST(static_cast<int>(changed.size()), "changes");
    }

    void keepsIndexesOfRowsThatStay()
    {
        RowListModel<Row> model;
        model.setRows(rowsFrom(QStringLiteral("abcd")));
        const QPersistentModelIndex c = model.index(2);

        model.setRows(rowsFrom(QStringLiteral("xdc3a")));

        QVERIFY(c.isValid());
        QCOMPARE(c.row(), 2);
        QCOMPARE(c.data(RowListModel<Row>::rowRole).value<Row>(), (Row{QStringLiteral("c"), 3}));
    }
};

TEST_SUBJECT(RowListModelTest)
#include "RowListModelTest.moc"
