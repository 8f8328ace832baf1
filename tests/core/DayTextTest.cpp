// SPDX-License-Identifier: Apache-2.0

#include "DayText.h"
#include "Subject.h"

#include <QTest>

using namespace std::chrono;

class DayTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writes_data()
    {
        QTest::addColumn<sys_days>("day");
        QTest::addColumn<QString>("text");

        QTest::newRow("padded") << sys_days(2025y / March / 4) << u"2025-03-04"_qs;
        QTest::newRow("early year") << sys_days(7y / December / 31) << u"0007-12-31"_qs;
        QTest::newRow("five digits") << sys_days(10000y / January / 2) << u"10000-01-02"_qs;
        QTest::newRow("before year 0") << sys_days(year(-1) / December / 31) << u"-001-12-31"_qs;
    }

    void writes()
    {
        QFETCH(sys_days, day);
        QFETCH(QString, text);

        QCOMPARE(DayText::of(day), text);
    }

    void reads_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<std::optional<sys_days>>("expected");

        const auto row = [](const QString& text, std::optional<sys_days> expected) {
            QTest::newRow(text.toUtf8().constData()) << text << expected;
        };
        row(u"1970-01-01"_qs, sys_days{});
        row(u"1969-12-31"_qs, sys_days{days{-1}});
        row(u"2025-01-02"_qs, 2025y / January / 2);
        row(u"2024-02-29"_qs, 2024y / February / 29);
        row(u"9999-12-31"_qs, 9999y / December / 31);
        row(u"0001-01-01"_qs, 1y / January / 1);
        // Past the month's end.
        row(u"2025-02-31"_qs, 2025y / March / 3);
        row(u"2024-02-30"_qs, 2024y / March / 1);
        row(u"2025-04-31"_qs, 2025y / May / 1);
        // Empty pieces are dropped.
        row(u"2025-01-02-"_qs, 2025y / January / 2);
        row(u"--2025--01--02--"_qs, 2025y / January / 2);
        for (const QString& unread : {u""_qs,
                                      u"-"_qs,
                                      u"bad"_qs,
                                      u"2025-1-5"_qs,
                                      u"2025-01-5"_qs,
                                      u"2025-13-01"_qs,
                                      u"2025-00-01"_qs,
                                      u"2025-01-00"_qs,
                                      u"2025-01-32"_qs,
                                      u"2025-01"_qs,
                                      u"2025-01-02-03"_qs,
                                      u"02025-01-02"_qs,
                                      u"2025/01/02"_qs,
                                      u"20250102"_qs,
                                      u"2025-01-02T00:00:00Z"_qs,
                                      u" 2025-01-02"_qs,
                                      u"2025-01-02 "_qs,
                                      u"2025-01- 2"_qs,
                                      u"2025-ab-01"_qs,
                                      u"2025-01-0x"_qs,
                                      u"+025-01-02"_qs,
                                      u"2025-+1-02"_qs,
                                      u"2025-01-+2"_qs,
                                      u"２０２５-０１-０２"_qs,
                                      u"2025-０１-02"_qs,
                                      u"2025–01–02"_qs,
                                      u"0x1f-01-02"_qs}) {
            row(unread, std::nullopt);
        }
    }

    void reads()
    {
        QFETCH(QString, text);
        QFETCH(std::optional<sys_days>, expected);

        QVERIFY(DayText::read(text) == expected);
    }

    void piecesStandBetweenHyphens_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("pieces");

        QTest::newRow("day") << u"2025-01-02"_qs << QStringList{u"2025"_qs, u"01"_qs, u"02"_qs};
        QTest::newRow("any texts") << u"a-b1-一"_qs << QStringList{u"a"_qs, u"b1"_qs, u"一"_qs};
        QTest::newRow("superfluous") << u"-1--2-3--"_qs << QStringList{u"1"_qs, u"2"_qs, u"3"_qs};
        QTest::newRow("two") << u"2025-01"_qs << QStringList();
        QTest::newRow("four") << u"1-2-3-4"_qs << QStringList();
        QTest::newRow("none") << u""_qs << QStringList();
    }

    void piecesStandBetweenHyphens()
    {
        QFETCH(QString, text);

        QStringList found;
        if (const auto pieces = DayText::pieces(text)) {
            for (const QStringView piece : *pieces) {
                found.append(piece.toString());
            }
        }
        QTEST(found, "pieces");
    }
};

TEST_SUBJECT(DayTextTest)
#include "DayTextTest.moc"
