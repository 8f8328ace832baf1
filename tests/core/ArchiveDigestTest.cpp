// SPDX-License-Identifier: Apache-2.0

#include "ArchiveDigest.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QTest>

class ArchiveDigestTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void daysNewestFirst_data()
    {
        QTest::addColumn<QStringList>("dates");
        QTest::addColumn<QStringList>("expected");

        QTest::newRow("none") << QStringList() << QStringList();
        QTest::newRow("three") << QStringList{u"2025-01-02"_qs, u"2025-01-05"_qs, u"2025-01-03"_qs}
                               << QStringList{u"2025-01-05"_qs, u"2025-01-03"_qs, u"2025-01-02"_qs};
        QTest::newRow("as text, unread dates included")
            << QStringList{u"2025-1-5"_qs, u"bad"_qs, u""_qs, u"2025-12-31"_qs}
            << QStringList{u"bad"_qs, u"2025-12-31"_qs, u"2025-1-5"_qs, u""_qs};
        QTest::newRow("by code point") << QStringList{u"\uE000"_qs, u"\U0001F600"_qs}
                                       << QStringList{u"\U0001F600"_qs, u"\uE000"_qs};
    }

    void daysNewestFirst()
    {
        QFETCH(QStringList, dates);
        QFETCH(QStringList, expected);

        QList<SelectionDay> days;
        for (const QString& date : dates) {
            days.append({date, {}, 0});
        }
        QStringList sorted;
        for (const SelectionDay& day : ArchiveDigest::daysNewestFirst(days)) {
            sorted.append(day.date);
        }
        QCOMPARE(sorted, expected);
    }

    void equalDatesKeepTheirOrder()
    {
        const SelectionDay first{u"2025-01-02"_qs, {u"a"_qs}, 1};
        const SelectionDay newer{u"2025-01-03"_qs, {}, 2};
        const SelectionDay second{u"2025-01-02"_qs, {u"b"_qs}, 3};

        QCOMPARE(ArchiveDigest::daysNewestFirst({first, newer, second}),
                 (QList{newer, first, second}));
    }

    void focusSignals_data()
    {
        QTest::addColumn<QStringList>("ids");
        QTest::addColumn<QStringList>("expected");

        QTest::newRow("none") << QStringList() << QStringList();
        QTest::newRow("in stored order")
            << QStringList{u"c"_qs, u"a"_qs} << QStringList{u"c"_qs, u"a"_qs};
        QTest::newRow("unknown ids skipped")
            << QStringList{u"gone"_qs, u"b"_qs, u"B"_qs} << QStringList{u"b"_qs};
        QTest::newRow("all have left") << QStringList{u"gone"_qs, u"gone2"_qs} << QStringList();
        QTest::newRow("named twice")
            << QStringList{u"a"_qs, u"b"_qs, u"a"_qs} << QStringList{u"a"_qs, u"b"_qs, u"a"_qs};
    }

    void focusSignals()
    {
        QFETCH(QStringList, ids);
        QFETCH(QStringList, expected);

        const QList<InformationSignal> signals{sampleSignal(u"a"_qs), sampleSignal(u"b"_qs),
                                               sampleSignal(u"c"_qs)};
        QHash<QString, InformationSignal> index;
        for (const InformationSignal& signal : signals) {
            index.insert(signal.id, signal);
        }
        const SelectionDay day{u"2025-01-02"_qs, ids, 9};

        QCOMPARE(idsOf(ArchiveDigest::focusSignals(day, signals)), expected);
        QCOMPARE(idsOf(ArchiveDigest::focusSignals(day, index)), expected);
    }
};

TEST_SUBJECT(ArchiveDigestTest)
#include "ArchiveDigestTest.moc"
