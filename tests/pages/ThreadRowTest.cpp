// SPDX-License-Identifier: Apache-2.0

#include "ThreadRow.h"
#include "SampleSignal.h"
#include "Subject.h"
#include "Words.h"

#include <QTest>

namespace {

/// One word a row: its kind and how many it holds; a "+" says that others of its kind precede it.
QStringList wordsOf(const QList<ThreadRow>& column)
{
    QStringList words;
    for (const auto& row : column) {
        const auto count = row.isTimeline() ? row.timeline.size() : row.sources.size();
        const QString kind = row.isTimeline()   ? u"timeline"_qs
                             : row.isOriginal() ? u"original"_qs
                                                : u"sources"_qs;
        words.append((row.first ? QString() : u"+"_qs) + kind + QString::number(count));
    }
    return words;
}

InformationSignal signalWith(int events, int sources)
{
    auto signal = sampleSignal(u"a"_qs);
    for (int i = 0; i < events; ++i) {
        signal.timeline.append({QString(), QString(), u"event %1"_qs.arg(i), QString()});
    }
    for (int i = 0; i < sources; ++i) {
        signal.relatedSources.append({u"source %1"_qs.arg(i), u"https://one.example/"_qs});
    }
    return signal;
}

} // namespace

class ThreadRowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leadsFromTheTimelineToTheSources()
    {
        QCOMPARE(wordsOf(ThreadRow::columnOf(signalWith(0, 0))), words("timeline1 original0"));
        QCOMPARE(wordsOf(ThreadRow::columnOf(signalWith(2, 3))),
                 words("timeline3 original0 sources3"));
    }

    void hasNoWayToAnOriginalThatCannotBeOpened()
    {
        auto signal = signalWith(0, 1);
        signal.originalURL = u"file:///etc/passwd"_qs;
        QCOMPARE(wordsOf(ThreadRow::columnOf(signal)), words("timeline1 sources1"));
    }

    void dealsOutWhatIsLong()
    {
        const auto column = ThreadRow::columnOf(signalWith(24, 25));
        QCOMPARE(wordsOf(column), words("timeline12 +timeline12 +timeline1 original0 sources12 "
                                        "+sources12 +sources1"));
        QVERIFY(column.at(0).timeline.first().isNow);
        QCOMPARE(column.at(1).timeline.first().summary, u"event 11"_qs);
        QVERIFY(!column.at(1).timeline.last().isLast);
        QVERIFY(column.at(2).timeline.last().isLast);
        QCOMPARE(column.at(5).sources.first().label, u"source 12"_qs);
    }
};

TEST_SUBJECT(ThreadRowTest)
#include "ThreadRowTest.moc"
