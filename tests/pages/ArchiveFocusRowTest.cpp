// SPDX-License-Identifier: Apache-2.0

#include "ArchiveFocusRow.h"
#include "LaneColor.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QTest>

class ArchiveFocusRowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhyTheSignalWasChosen()
    {
        auto signal = sampleSignal(u"a"_qs);
        signal.lane = InformationLane::FounderStory;

        const auto row = ArchiveFocusRow::from(signal, 1);

        QCOMPARE(row.rank, u"01"_qs);
        QCOMPARE(row.laneColor, laneColor(InformationLane::FounderStory));
        QCOMPARE(row.laneAndSource, u"创业复盘 · Source of a"_qs);
        QCOMPARE(row.title, u"Title of a"_qs);
        QCOMPARE(row.why, u"Why a"_qs);
        QCOMPARE(row.caveat, u"Caveat of a"_qs);
        QCOMPARE(row.sourceLine, u"看原文：Source of a"_qs);
        QCOMPARE(row.address, u"https://origin.example/a"_qs);
    }

    void anOriginalThatCannotBeOpenedIsOnlyNamed()
    {
        auto signal = sampleSignal(u"a"_qs);
        signal.originalURL = u"javascript:alert(1)"_qs;

        const auto row = ArchiveFocusRow::from(signal, 1);

        QCOMPARE(row.sourceLine, u"判断依据：Source of a"_qs);
        QCOMPARE(row.address, QString());
    }

    void ranksHaveAtLeastTwoDigits_data()
    {
        QTest::addColumn<qsizetype>("rank");
        QTest::addColumn<QString>("shown");

        QTest::newRow("one digit") << qsizetype(9) << u"09"_qs;
        QTest::newRow("two digits") << qsizetype(10) << u"10"_qs;
        QTest::newRow("three digits") << qsizetype(100) << u"100"_qs;
    }

    void ranksHaveAtLeastTwoDigits()
    {
        QFETCH(qsizetype, rank);

        QTEST(ArchiveFocusRow::from(sampleSignal(u"a"_qs), rank).rank, "shown");
    }
};

TEST_SUBJECT(ArchiveFocusRowTest)
#include "ArchiveFocusRowTest.moc"
