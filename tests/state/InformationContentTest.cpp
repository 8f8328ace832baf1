// SPDX-License-Identifier: Apache-2.0

#include "InformationContent.h"
#include "InformationSeed.h"
#include "MemoryFileManager.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QTest>

class InformationContentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstOfRepeatedIdsStays()
    {
        auto second = sampleSignal(u"a"_qs);
        second.title = u"另一个标题"_qs;
        const InformationContent content({sampleSignal(u"a"_qs), second, sampleSignal(u"b"_qs)}, {},
                                         {}, {});

        QCOMPARE(content.signals(), (QList{sampleSignal(u"a"_qs), sampleSignal(u"b"_qs)}));
    }

    void aRetiredSignalWhoseIdIsLiveIsDropped()
    {
        const InformationContent content(
            {sampleSignal(u"a"_qs)},
            {sampleSignal(u"a"_qs), sampleSignal(u"r"_qs), sampleSignal(u"r"_qs)}, {}, {});

        QCOMPARE(content.retiredSignals(), QList{sampleSignal(u"r"_qs)});
    }

    void startsOnTheCompiledInEdition()
    {
        MemoryFileManager files;
        QCOMPARE(InformationContent::atStart(files), InformationContent::seed());
        QCOMPARE(InformationContent::seed().packAsOf(), InformationSeed::asOf());

        files.supportDirectory.reset();
        QCOMPARE(InformationContent::atStart(files), InformationContent::seed());
    }

    void aNewerPackKeepsTheDaysAndRetiredSignalsItDoesNotBring()
    {
        const QList<SelectionDay> days{{u"2026-09-01"_qs, {}, 1}};
        const InformationContent content({sampleSignal(u"a"_qs)}, {sampleSignal(u"r"_qs)}, days,
                                         u"2026-09-01T00:00:00Z"_qs);
        const InformationPackSync::Snapshot snapshot{
            .schemaVersion = {},
            .asOf = u"2026-09-02T00:00:00Z"_qs,
            .checkedEntryCount = 1,
            .signals = {sampleSignal(u"b"_qs), sampleSignal(u"r"_qs)},
            .selectionDays = {},
        };

        const auto replaced = content.replacedBy(snapshot, std::nullopt);
        QCOMPARE(replaced.signals(), snapshot.signals);
        QVERIFY(replaced.retiredSignals().isEmpty());
        QCOMPARE(replaced.selectionDays(), days);
        QCOMPARE(replaced.packAsOf(), snapshot.asOf);

        const QList<InformationSignal> retired{sampleSignal(u"x"_qs)};
        QCOMPARE(content.replacedBy(snapshot, retired).retiredSignals(), retired);
    }

    // It was lost with the card that took its place, and the reader's kept card with it.
    void aRetiredSignalComesBackOnceItsIdIsNoLongerLive()
    {
        const InformationContent content({sampleSignal(u"a"_qs)}, {sampleSignal(u"r"_qs)}, {}, {});
        const InformationPackSync::Snapshot withItsId{
            .schemaVersion = {},
            .asOf = u"2026-09-02T00:00:00Z"_qs,
            .checkedEntryCount = 1,
            .signals = {sampleSignal(u"r"_qs)},
            .selectionDays = {},
        };
        auto withoutIt = withItsId;
        withoutIt.signals = {sampleSignal(u"b"_qs)};

        const auto later =
            content.replacedBy(withItsId, std::nullopt).replacedBy(withoutIt, std::nullopt);

        QCOMPARE(later.retiredSignals(), QList{sampleSignal(u"r"_qs)});
    }
};

TEST_SUBJECT(InformationContentTest)
#include "InformationContentTest.moc"
