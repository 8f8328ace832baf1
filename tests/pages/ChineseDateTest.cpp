// SPDX-License-Identifier: Apache-2.0

#include "ChineseDate.h"
#include "Subject.h"

#include <QTest>

using namespace std::chrono;

class ChineseDateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formats_data()
    {
        QTest::addColumn<sys_days>("day");
        QTest::addColumn<QString>("monthDay");
        QTest::addColumn<QString>("yearMonthDay");
        QTest::addColumn<QString>("weekday");

        const auto row = [](sys_days day, const QString& monthDay, const QString& yearMonthDay,
                            const QString& weekday) {
            QTest::newRow(qPrintable(yearMonthDay)) << day << monthDay << yearMonthDay << weekday;
        };
        row(2026y / August / 24, u"8月24日"_qs, u"2026年8月24日"_qs, u"星期一"_qs);
        row(2026y / August / 25, u"8月25日"_qs, u"2026年8月25日"_qs, u"星期二"_qs);
        row(2026y / August / 26, u"8月26日"_qs, u"2026年8月26日"_qs, u"星期三"_qs);
        row(2026y / August / 27, u"8月27日"_qs, u"2026年8月27日"_qs, u"星期四"_qs);
        row(2026y / August / 28, u"8月28日"_qs, u"2026年8月28日"_qs, u"星期五"_qs);
        row(2026y / August / 29, u"8月29日"_qs, u"2026年8月29日"_qs, u"星期六"_qs);
        row(2026y / August / 30, u"8月30日"_qs, u"2026年8月30日"_qs, u"星期日"_qs);
        row(2027y / January / 1, u"1月1日"_qs, u"2027年1月1日"_qs, u"星期五"_qs);
        row(1969y / December / 31, u"12月31日"_qs, u"1969年12月31日"_qs, u"星期三"_qs);
        row(7y / March / 4, u"3月4日"_qs, u"0007年3月4日"_qs, u"星期日"_qs);
    }

    void formats()
    {
        QFETCH(sys_days, day);

        QTEST(ChineseDate::monthDay(day), "monthDay");
        QTEST(ChineseDate::yearMonthDay(day), "yearMonthDay");
        QTEST(ChineseDate::weekday(day), "weekday");
    }
};

TEST_SUBJECT(ChineseDateTest)
#include "ChineseDateTest.moc"
