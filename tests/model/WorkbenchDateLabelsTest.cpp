#include "WorkbenchDateLabels.h"

#include <QTest>

class WorkbenchDateLabelsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void labels_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("label");

        QTest::newRow("stamp") << u"2026-08-27T04:01:03.784Z"_qs << u"8月27日"_qs;
        QTest::newRow("evening stamp is the next day at UTC+8")
            << u"2026-08-27T16:00:00Z"_qs << u"8月28日"_qs;
        QTest::newRow("day") << u"2026-08-05"_qs << u"8月5日"_qs;
        QTest::newRow("past the month's end") << u"2025-02-31"_qs << u"2025-02-31"_qs;
        QTest::newRow("no such month") << u"2026-13-01"_qs << u"2026-13-01"_qs;
        QTest::newRow("half a stamp") << u"2026-08-27T"_qs << u"2026-08-27T"_qs;
        QTest::newRow("empty") << QString() << QString();
    }

    void labels()
    {
        QFETCH(QString, value);
        QFETCH(QString, label);

        QCOMPARE(WorkbenchDateLabels::label(value), label);
    }
};

QTEST_APPLESS_MAIN(WorkbenchDateLabelsTest)
#include "WorkbenchDateLabelsTest.moc"
