// SPDX-License-Identifier: Apache-2.0

#include "ArchiveDateLabels.h"
#include "Subject.h"

#include <QTest>

class ArchiveDateLabelsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void labels_data()
    {
        QTest::addColumn<QString>("day");
        QTest::addColumn<QString>("monthDay");
        QTest::addColumn<QString>("weekday");
        QTest::addColumn<QString>("longLabel");

        const auto row = [](const QString& day, const QString& monthDay, const QString& weekday,
                            const QString& longLabel) {
            QTest::newRow(qPrintable(day)) << day << monthDay << weekday << longLabel;
        };
        row(u"2026-08-27"_qs, u"8月27日"_qs, u"星期四"_qs, u"2026年8月27日"_qs);
        row(u"2026-01-01"_qs, u"1月1日"_qs, u"星期四"_qs, u"2026年1月1日"_qs);
        row(u"2025-01-05"_qs, u"1月5日"_qs, u"星期日"_qs, u"2025年1月5日"_qs);
        // Past the month's end: 3 March.
        row(u"2025-02-31"_qs, u"3月3日"_qs, u"星期一"_qs, u"2025年3月3日"_qs);
        for (const QString& unread : {u""_qs, u"bad"_qs, u"2026-8-7"_qs, u"2026-13-01"_qs}) {
            row(unread, unread, unread, unread);
        }
    }

    void labels()
    {
        QFETCH(QString, day);

        QTEST(ArchiveDateLabels::archiveMonthDayLabel(day), "monthDay");
        QTEST(ArchiveDateLabels::archiveWeekdayLabel(day), "weekday");
        QTEST(ArchiveDateLabels::archiveLongLabel(day), "longLabel");
    }
};

TEST_SUBJECT(ArchiveDateLabelsTest)
#include "ArchiveDateLabelsTest.moc"
