// SPDX-License-Identifier: Apache-2.0

#include "RailLineRow.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QTest>

class RailLineRowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersFromOneInTwoDigits_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<QString>("number");

        QTest::newRow("first") << 0 << u"01"_qs;
        QTest::newRow("tenth") << 9 << u"10"_qs;
        QTest::newRow("beyond two digits") << 699 << u"700"_qs;
    }

    void numbersFromOneInTwoDigits()
    {
        QFETCH(int, position);

        const auto row = RailLineRow::from(sampleSignal(u"a"_qs), false, position);

        QTEST(row.number(), "number");
        QTEST(row.position, "position");
    }

    void tellsWhetherTheSignalIsNew()
    {
        const auto signal = sampleSignal(u"a"_qs);

        QCOMPARE(RailLineRow::from(signal, false, 0).badge(), u"新"_qs);
        QCOMPARE(RailLineRow::from(signal, true, 0).badge(), u"已看过"_qs);
        QVERIFY(RailLineRow::from(signal, true, 0).seen);
    }

    void breaksNoLatinWordAtItsHyphen_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("shown");

        QTest::newRow("in a word") << u"浏览器 K-Meleon 复测"_qs << u"浏览器 K\u2011Meleon 复测"_qs;
        QTest::newRow("several") << u"end-to-end"_qs << u"end\u2011to\u2011end"_qs;
        QTest::newRow("of two letters") << u"X-Y"_qs << u"X\u2011Y"_qs;
        QTest::newRow("beside a digit") << u"GPT-4"_qs << u"GPT-4"_qs;
        QTest::newRow("beside Chinese") << u"中-a"_qs << u"中-a"_qs;
        QTest::newRow("at the ends") << u"-a-"_qs << u"-a-"_qs;
    }

    void breaksNoLatinWordAtItsHyphen()
    {
        QFETCH(const QString, title);
        auto signal = sampleSignal(u"a"_qs);
        signal.title = title;

        const auto row = RailLineRow::from(signal, false, 0);

        QTEST(row.title(), "shown");
        QCOMPARE(row.name(), u"打开脉络："_qs + title);
    }

    void namesWhatItOpens()
    {
        const auto row = RailLineRow::from(sampleSignal(u"a"_qs), false, 0);

        QCOMPARE(row.signalId, u"a"_qs);
        QCOMPARE(row.title(), u"Title of a"_qs);
        QCOMPARE(row.name(), u"打开脉络：Title of a"_qs);
    }
};

TEST_SUBJECT(RailLineRowTest)
#include "RailLineRowTest.moc"
