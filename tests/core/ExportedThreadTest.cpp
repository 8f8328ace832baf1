// SPDX-License-Identifier: Apache-2.0

#include "ExportedThread.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QTest>

namespace {

// 2026-09-01T17:00:00Z is the second of September at UTC+8.
constexpr std::chrono::sys_seconds early{std::chrono::seconds(1'788'282'000)};
constexpr std::chrono::sys_seconds late = early + std::chrono::hours(24);

InformationSignal observed(const QString& id, const QString& target, const QString& at)
{
    auto signal = sampleSignal(id, target);
    signal.observedAt = at;
    return signal;
}

const QList<InformationSignal> known{observed(u"new"_qs, u"T"_qs, u"2026-09-03"_qs),
                                     observed(u"old"_qs, u"T"_qs, u"2026-09-01"_qs),
                                     observed(u"x"_qs, u"X"_qs, u"2026-09-02"_qs)};

QStringList labels(const ExportedThread& thread)
{
    QStringList labels;
    for (const auto& detail : thread.details()) {
        labels.append(detail.label);
    }
    return labels;
}

} // namespace

class ExportedThreadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aThreadIsItsNewestSignalAndAllThatWasKeptOfIt()
    {
        InformationWorkspace workspace;
        workspace.saved = {{u"old"_qs, {early, u"why"_qs, u"note"_qs}},
                           {u"new"_qs, {late, {}, {}}}};
        workspace.following = {u"T"_qs};

        const QList<ExportedThread> expected{
            {.signal = known.first(),
             .keepings = {{u"new"_qs, {late, {}, {}}}, {u"old"_qs, {early, u"why"_qs, u"note"_qs}}},
             .targetId = u"T"_qs,
             .isFollowed = true}};
        QCOMPARE(ExportedThread::listOf(workspace, known), expected);
    }

    void nothingThatIsKeptIsLeftOut()
    {
        InformationWorkspace workspace;
        workspace.saved = {{u"gone b"_qs, {late, u"why b"_qs, {}}},
                           {u"gone a"_qs, {late, u"why a"_qs, {}}},
                           {u"x"_qs, {early, {}, {}}}};
        workspace.following = {u"T"_qs, u"unknown"_qs};

        QStringList titles;
        for (const auto& thread : ExportedThread::listOf(workspace, known)) {
            titles.append(thread.title());
        }
        QCOMPARE(titles, (QStringList{u"gone a"_qs, u"gone b"_qs, u"Title of x"_qs,
                                      u"Title of new"_qs, u"unknown"_qs}));
    }

    void tellsWhatTheSheetTells()
    {
        auto signal = known.first();
        signal.digest = u"Digest"_qs;
        signal.updateSummary = u"Change"_qs;
        signal.timeline = {{u"8月30日"_qs, u"2026-08-30"_qs, u"Event"_qs, u"Log"_qs},
                           {u"8月31日"_qs, u"2026-08-31"_qs, u"Other"_qs, {}}};
        signal.relatedSources = {{u"Related"_qs, u"https://one.example/"_qs}};
        const ExportedThread thread{.signal = signal,
                                    .keepings = {{u"new"_qs, {early, u"why"_qs, u"note"_qs}}},
                                    .targetId = u"T"_qs};

        QCOMPARE(labels(thread), (QStringList{u"收下于"_qs, u"为什么留下"_qs, u"自己的备注"_qs,
                                              u"来源"_qs, u"为什么值得看"_qs, u"最大限制"_qs,
                                              u"这次变了什么"_qs, u"页内要点"_qs, u"现在"_qs,
                                              u"8月30日"_qs, u"8月31日"_qs, u"更多原文"_qs}));
        const auto details = thread.details();
        QCOMPARE(details.first().text, u"2026-09-02"_qs);
        QCOMPARE(details.at(9).text, u"Event（Log）"_qs);
        QCOMPARE(details.at(10).text, u"Other"_qs);
        QCOMPARE(details.last().text, u"Related https://one.example/"_qs);
    }

    void saysNothingOfWhatIsEmpty()
    {
        const ExportedThread thread{
            .signal = std::nullopt, .keepings = {{u"gone"_qs, {early, {}, {}}}}, .targetId = {}};

        QCOMPARE(labels(thread), QStringList{u"收下于"_qs});
    }
};

TEST_SUBJECT(ExportedThreadTest)
#include "ExportedThreadTest.moc"
