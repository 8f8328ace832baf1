// SPDX-License-Identifier: Apache-2.0

#include "ErrorLeads.h"
#include "FaultedRun.h"
#include "NextStart.h"
#include "SiteDocuments.h"
#include "StoredWorkspace.h"
#include "Subject.h"

#include <QTest>

using Moment = FaultedRun::Moment;

// What a scenario does where nothing fails.
struct Course
{
    QStringList calls;
    Moment before;
    Moment after;

    /// The call by its number.
    const QString& made(qsizetype call) const { return calls.at(call - 1); }
    bool isOfTheAction(qsizetype call) const { return call > before.calls && call <= after.calls; }

    /// Whether the call is one that the program gets over: with it the action is done all the same.
    bool isForgiven(const PlannedFault& planned) const
    {
        const auto& [call, fault] = planned;
        return fault.kind == Verdict::Kind::MadeByHalf || !isOfTheAction(call) ||
               isRepeated(call, fault) || isOfAReadFile(call) || isForTheWayBack(call) ||
               isAfterTheRename(call);
    }

private:
    bool isRepeated(qsizetype call, const Verdict& fault) const
    {
        static const QStringList repeated{u"read"_qs, u"write"_qs, u"fsync"_qs, u"close"_qs};
        return fault.error == EINTR && repeated.contains(made(call).section(u' ', 0, 0));
    }
    // A file that was read is closed; a folder whose lock is not had is not waited for.
    bool isOfAReadFile(qsizetype call) const
    {
        return made(call) == u"close workspace-v1.json" || made(call) == u"close kept.json" ||
               made(call).startsWith(u"flock ");
    }
    bool isForTheWayBack(qsizetype call) const
    {
        const qsizetype begin = numberOf(u"stat workspace-v1.previous.json"_qs);
        return begin > 0 && call >= begin &&
               call < calls.indexOf(u"mkdir Information"_qs, begin) + 1;
    }
    bool isAfterTheRename(qsizetype call) const
    {
        const auto isBefore = [&](const QString& rename) {
            return numberOf(rename) > 0 && numberOf(rename) < call;
        };
        return isBefore(u"renameat workspace-v1.json"_qs) || isBefore(u"renameat kept.json"_qs);
    }
    // Of the first such call of the action; 0 for none.
    qsizetype numberOf(const QString& call) const { return calls.indexOf(call, before.calls) + 1; }
};

namespace {

const QString syncFailed = u"同步失败，继续使用当前内容"_qs;
const QString storeElsewhere = u"store elsewhere"_qs;

const QString storedAsOf = u"2090-01-01T00:00:00.000Z"_qs;
const QString publishedAsOf = u"2090-01-02T00:00:00.000Z"_qs;
const QStringList storedRetired{u"gone-1"_qs};
const QStringList publishedRetired{u"gone-1"_qs, u"gone-2"_qs};

constexpr qsizetype leastFaults = 3000;

// What the data folder holds before the program starts.
enum class Stored { Nothing, Files, FilesOfTheDay, LinkedWorkspace, FilesAndLeftover };

struct Scenario
{
    Stored stored;
    /// Done before, in the same run.
    QStringList before;
    QString action;
    bool isStartSwept = false;

    bool isRefresh() const { return action == u"refresh"; }
    bool isSave() const { return !isRefresh() && action != u"catch up"; }
    bool isWithElsewhere() const { return before.contains(storeElsewhere); }
    /// The moments before and after the action, by their place in the run.
    qsizetype momentBefore() const { return before.size(); }
    qsizetype momentAfter() const { return before.size() + 1; }
};

const QMap<QString, Scenario> scenarios{
    {u"the first action of all"_qs, {Stored::Nothing, {}, u"keep"_qs, true}},
    {u"keep"_qs, {Stored::Files, {}, u"keep"_qs}},
    {u"keep, later that day"_qs, {Stored::FilesOfTheDay, {}, u"keep"_qs}},
    {u"keep in a linked file"_qs, {Stored::LinkedWorkspace, {}, u"keep"_qs}},
    {u"keep after something else stored"_qs, {Stored::Files, {storeElsewhere}, u"keep"_qs}},
    {u"catch up with something else"_qs, {Stored::Files, {storeElsewhere}, u"catch up"_qs}},
    {u"remove"_qs, {Stored::Files, {u"keep"_qs}, u"remove"_qs}},
    {u"note"_qs, {Stored::Files, {}, u"note"_qs}},
    {u"see"_qs, {Stored::Files, {}, u"see"_qs}},
    {u"reduce"_qs, {Stored::Files, {}, u"reduce"_qs}},
    {u"add"_qs, {Stored::Files, {}, u"add"_qs}},
    {u"remove source"_qs, {Stored::Files, {}, u"remove source"_qs}},
    {u"reset"_qs, {Stored::Files, {}, u"reset"_qs, true}},
    {u"reset beside a leftover"_qs, {Stored::FilesAndLeftover, {}, u"reset"_qs, true}},
    {u"undo"_qs, {Stored::Files, {u"keep"_qs}, u"undo"_qs}},
    {u"refresh"_qs, {Stored::Files, {}, u"refresh"_qs}},
    {u"the first refresh"_qs, {Stored::Nothing, {}, u"refresh"_qs}},
};

QString describe(const FaultPlan& plan, const Course& course)
{
    QStringList words;
    for (const PlannedFault& planned : plan) {
        words.append(u"%1 at %2"_qs.arg(planned.description()).arg(planned.call));
    }
    return course.made(plan.first().call) + u", "_qs + words.join(u", "_qs);
}

QList<FaultPlan> plansFor(const Scenario& scenario, const Course& course)
{
    QList<FaultPlan> plans;
    const qsizetype first = scenario.isStartSwept ? 0 : course.before.calls;
    for (qsizetype call = first + 1; call <= course.after.calls; ++call) {
        const QString& made = course.made(call);
        for (const Verdict& fault : FaultPlans::faultsOf(made)) {
            plans.append({{call, fault}});
        }
        if (call > course.before.calls &&
            (made.endsWith(u" temporary") || made.startsWith(u"renameat "))) {
            plans.append(FaultPlans::plansAfterAFailure(call, made));
        }
    }
    return plans;
}

} // namespace

class FaultSweepTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void noSaveLosesAnything_data();
    void noSaveLosesAnything();
    void theSweepWasWide();

private:
    void fill(const DataFolder& folder, Stored stored) const;
    FaultedRun run(const DataFolder& folder, const Scenario& scenario, const FaultPlan& plan) const;
    FaultedRun::Step step(const DataFolder& folder, const QString& name) const;
    Course course(const Scenario& scenario) const;

    void count(const FaultedRun& run, const FaultPlan& plan);
    void verifyKill(const FaultedRun& run, const FaultPlan& plan, const StoredFiles& files,
                    const Course& course) const;
    void verifyAction(const FaultedRun& run, const FaultPlan& plan, const Scenario& scenario,
                      const Course& course) const;
    void verifyDone(const Moment& before, const Moment& after, const Course& course) const;
    void verifyRefused(const Moment& before, const Moment& after, const Course& course) const;
    void verifyFiles(const StoredFiles& files, const StoredFiles& expected,
                     const Course& course) const;
    void verifyRefresh(const Moment& moment, const Course& course) const;
    void verifyNextAction(const FaultedRun& run, const Scenario& scenario,
                          const Course& course) const;

    QByteArray m_workspace;
    QByteArray m_workspaceOfElsewhere;
    QMap<QString, Course> m_courses;
    qsizetype m_faults = 0;
    qsizetype m_runs = 0;
    QSet<QString> m_failedCalls;
};

void FaultSweepTest::initTestCase()
{
    m_workspace = storedWorkspace(1);
    auto workspace = InformationWorkspaceCoding::decode(m_workspace).value();
    workspace.following.append(u"followed elsewhere"_qs);
    m_workspaceOfElsewhere = InformationWorkspaceCoding::encode(workspace);
}

// Prepare

void FaultSweepTest::fill(const DataFolder& folder, Stored stored) const
{
    if (stored == Stored::Nothing) {
        return;
    }
    folder.store(DataFolder::pack,
                 SiteDocuments::pack(storedAsOf, {u"card"_qs, u"old-1"_qs, u"old-2"_qs}));
    folder.store(DataFolder::retired, SiteDocuments::retired(storedRetired));
    if (stored == Stored::LinkedWorkspace) {
        folder.store(DataFolder::linked, m_workspace);
        QVERIFY(QFile::link(folder.path(DataFolder::linked), folder.path(DataFolder::workspace)));
        return;
    }
    folder.store(DataFolder::workspace, m_workspace);
    if (stored == Stored::FilesOfTheDay) {
        folder.store(DataFolder::previous, "{}");
        folder.setWrittenAt(DataFolder::previous, ProgramStart::now);
    } else if (stored == Stored::FilesAndLeftover) {
        folder.store(DataFolder::storage + u'/' + DataFolder::leftover, "half a fi");
    }
}

FaultedRun::Step FaultSweepTest::step(const DataFolder& folder, const QString& name) const
{
    if (name == storeElsewhere) {
        return [this, &folder](ProgramStart&) {
            FileCalls::unasked(
                [&] { folder.store(DataFolder::workspace, m_workspaceOfElsewhere); });
        };
    }
    return
        [act = ReaderActions::all().value(name)](ProgramStart& program) { act(program.model()); };
}

FaultedRun FaultSweepTest::run(const DataFolder& folder, const Scenario& scenario,
                               const FaultPlan& plan) const
{
    fill(folder, scenario.stored);
    QStringList names = scenario.before;
    names += {scenario.action, u"dismiss the error"_qs, u"add another"_qs};
    if (scenario.isRefresh()) {
        names.append(scenario.action);
    }
    QList<FaultedRun::Step> steps;
    for (const QString& name : names) {
        steps.append(step(folder, name));
    }
    return FaultedRun::of(folder, plan, steps, [](FakeSiteClient& site) {
        site.answers = {
            {SiteClient::packPath,
             SiteReply{SiteDocuments::pack(publishedAsOf, {u"card"_qs, u"new-1"_qs}), 200}},
            {SiteClient::retiredSignalsPath,
             SiteReply{SiteDocuments::retired(publishedRetired), 200}}};
    });
}

Course FaultSweepTest::course(const Scenario& scenario) const
{
    const DataFolder folder;
    const auto run = this->run(folder, scenario, {});
    const Course course{run.calls, run.moments.at(scenario.momentBefore()),
                        run.moments.at(scenario.momentAfter())};
    if (!run.ended || course.before.seen == course.after.seen) {
        qFatal("%s changes nothing", qUtf8Printable(scenario.action));
    }
    return course;
}

void FaultSweepTest::noSaveLosesAnything_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<FaultPlan>("plan");

    for (auto scenario = scenarios.begin(); scenario != scenarios.end(); ++scenario) {
        const Course& course = *m_courses.insert(scenario.key(), this->course(*scenario));
        for (const FaultPlan& plan : plansFor(*scenario, course)) {
            QTest::newRow(qUtf8Printable(scenario.key() + u": "_qs + describe(plan, course)))
                << scenario.key() << plan;
        }
    }
}

// Act

void FaultSweepTest::noSaveLosesAnything()
{
    QFETCH(QString, name);
    QFETCH(FaultPlan, plan);
    const Scenario& scenario = *scenarios.constFind(name);
    const Course& course = *m_courses.constFind(name);
    const DataFolder folder;

    const auto run = this->run(folder, scenario, plan);

    count(run, plan);
    if (FaultPlans::endsInAKill(plan)) {
        verifyKill(run, plan, StoredFiles::in(folder), course);
    } else {
        verifyAction(run, plan, scenario, course);
        verifyNextAction(run, scenario, course);
    }
    verifyNextStart(folder);
    QCOMPARE(QFileInfo(folder.path(DataFolder::workspace)).isSymLink(),
             scenario.stored == Stored::LinkedWorkspace);
}

// Verify

void FaultSweepTest::count(const FaultedRun& run, const FaultPlan& plan)
{
    QCOMPARE(run.calls.filter(u" !"_qs).size(), plan.size());
    for (const PlannedFault& planned : plan) {
        const QString& made = run.calls.at(planned.call - 1);
        QVERIFY(made.endsWith(u" !"_qs));
        m_failedCalls.insert(made.section(u' ', 0, 0));
    }
    m_faults += plan.size();
    ++m_runs;
}

// A file is new if its rename was made, else old.
void FaultSweepTest::verifyKill(const FaultedRun& run, const FaultPlan& plan,
                                const StoredFiles& files, const Course& course) const
{
    QVERIFY(run.wasKilled);
    const auto made = run.calls.sliced(std::min(course.before.calls, run.calls.size()));
    const bool isLastMade = plan.last().fault.kind == Verdict::Kind::KilledAfter;
    const auto isNew = [&](const QString& name) {
        const QString rename = u"renameat "_qs + name;
        return made.contains(rename) || (isLastMade && run.calls.last() == rename + u" !"_qs);
    };
    const auto& [before, after] = std::pair(course.before.files, course.after.files);
    const bool isSaved = isNew(u"workspace-v1.json"_qs) || isNew(u"kept.json"_qs);
    QCOMPARE(files.workspace, isSaved ? after.workspace : before.workspace);
    QCOMPARE(files.previous,
             isNew(u"workspace-v1.previous.json"_qs) ? after.previous : before.previous);
    QCOMPARE(files.pack, isNew(u"information-pack.json"_qs) ? after.pack : before.pack);
    QCOMPARE(files.retired, isNew(u"retired-signals.json"_qs) ? after.retired : before.retired);
}

void FaultSweepTest::verifyAction(const FaultedRun& run, const FaultPlan& plan,
                                  const Scenario& scenario, const Course& course) const
{
    QVERIFY(run.ended);
    const QString& atTheStart = run.moments.first().text(u"error"_qs);
    QVERIFY(atTheStart.isEmpty() || atTheStart.startsWith(notRead));
    const Moment& before = run.moments.at(scenario.momentBefore());
    const Moment& after = run.moments.at(scenario.momentAfter());
    if (scenario.isRefresh()) {
        verifyRefresh(after, course);
    } else if (course.isForgiven(plan.first())) {
        verifyDone(before, after, course);
    } else {
        verifyRefused(before, after, course);
        QCOMPARE(after.text(u"error"_qs).startsWith(notSaved), scenario.isSave());
    }
    if (run.calls.filter(u"unlinkat temporary !"_qs).isEmpty()) {
        QStringList own = after.leftovers;
        own.removeAll(DataFolder::leftover);
        QCOMPARE(own, QStringList());
    }
}

void FaultSweepTest::verifyDone(const Moment& before, const Moment& after,
                                const Course& course) const
{
    verifyFiles(after.files, course.after.files, course);
    QCOMPARE(StoredFiles::withoutIds(after.text(u"workspace"_qs).toUtf8()), after.files.workspace);
    QCOMPARE(after.text(u"receipt"_qs), course.after.text(u"receipt"_qs));
    QCOMPARE(after.text(u"error"_qs), before.text(u"error"_qs));
}

// What is shown is what was shown, or what something else has stored.
void FaultSweepTest::verifyRefused(const Moment& before, const Moment& after,
                                   const Course& course) const
{
    verifyFiles(after.files, course.before.files, course);
    const QString shown = StoredFiles::withoutIds(after.text(u"workspace"_qs).toUtf8());
    QVERIFY(after.text(u"workspace"_qs) == before.text(u"workspace"_qs) ||
            shown == after.files.workspace);
    QCOMPARE(after.text(u"receipt"_qs), QString());
}

// The file of the day before is there for going back: it may be the older one.
void FaultSweepTest::verifyFiles(const StoredFiles& files, const StoredFiles& expected,
                                 const Course& course) const
{
    QCOMPARE(files.workspace, expected.workspace);
    QCOMPARE(files.pack, expected.pack);
    QCOMPARE(files.retired, expected.retired);
    QVERIFY(files.previous == course.before.files.previous ||
            files.previous == course.after.files.previous);
}

void FaultSweepTest::verifyRefresh(const Moment& moment, const Course& course) const
{
    const auto& [files, before, after] =
        std::tuple(moment.files, course.before.files, course.after.files);
    const QStringList retired = moment.seen.value(u"retired"_qs).toVariant().toStringList();
    QCOMPARE(files.workspace, before.workspace);
    if (moment.text(u"syncNote"_qs) == syncFailed) {
        QCOMPARE(files, before);
        QVERIFY(moment.text(u"packAsOf"_qs) != publishedAsOf);
        QVERIFY(retired != publishedRetired);
        return;
    }
    QCOMPARE(files.pack, after.pack);
    QCOMPARE(moment.text(u"packAsOf"_qs), publishedAsOf);
    QVERIFY(files.retired == before.retired || files.retired == after.retired);
    QVERIFY(retired != publishedRetired || files.retired == after.retired);
}

void FaultSweepTest::verifyNextAction(const FaultedRun& run, const Scenario& scenario,
                                      const Course& course) const
{
    const Moment& next = run.moments.at(scenario.momentAfter() + 2);
    QCOMPARE(next.text(u"error"_qs), QString());
    QCOMPARE(StoredFiles::withoutIds(next.text(u"workspace"_qs).toUtf8()), next.files.workspace);
    QVERIFY(next.files.workspace.contains(u"另一句想跟踪的话"));
    QCOMPARE(next.files.workspace.contains(u"followed elsewhere"), scenario.isWithElsewhere());
    if (scenario.isRefresh()) {
        const Moment& again = run.moments.last();
        QVERIFY(again.text(u"syncNote"_qs) != syncFailed);
        QCOMPARE(again.files.pack, course.after.files.pack);
        QCOMPARE(again.text(u"packAsOf"_qs), publishedAsOf);
    }
}

void FaultSweepTest::theSweepWasWide()
{
    qInfo("%lld faults in %lld runs, nothing lost", static_cast<long long>(m_faults),
          static_cast<long long>(m_runs));
    QVERIFY(m_faults >= leastFaults);
    const QSet<QString> calls{u"mkdir"_qs,    u"stat"_qs,     u"lstat"_qs,  u"fstat"_qs,
                              u"open"_qs,     u"openat"_qs,   u"read"_qs,   u"readlink"_qs,
                              u"write"_qs,    u"fsync"_qs,    u"close"_qs,  u"flock"_qs,
                              u"renameat"_qs, u"unlinkat"_qs, u"opendir"_qs};
    QCOMPARE(m_failedCalls, calls);
}

TEST_SUBJECT(FaultSweepTest)
#include "FaultSweepTest.moc"
