#include "DataFolder.h"
#include "NextStart.h"
#include "SavingProcess.h"
#include "SiteDocuments.h"
#include "StoredWorkspace.h"
#include "Subject.h"

#include <QTest>

#include <cerrno>
#include <cstring>

namespace {

const QString notSaved = u"没有保存这次操作："_qs;
const QString noStorage = u"没有可用的本机存储；这次操作没有保存。"_qs;
const QString notRead = u"已有信息没有被覆盖："_qs;
const QString syncFailed = u"同步失败，继续使用当前内容"_qs;

const QString storedAsOf = u"2090-01-01T00:00:00.000Z"_qs;
const QString publishedAsOf = u"2090-01-02T00:00:00.000Z"_qs;
const QStringList storedRetired{u"gone-1"_qs};
const QStringList publishedRetired{u"gone-1"_qs, u"gone-2"_qs};

constexpr qsizetype leastFaults = 400;

// What the data folder holds before the program starts.
enum class Stored { Nothing, Files, LinkedWorkspace, FilesAndLeftover };

// An action, and what its sweep takes in.
struct Scenario
{
    Stored stored;
    /// Done before, in the same run.
    QStringList before;
    QString action;
    bool isStartSwept = false;
    /// Every fault at every call, or only the most telling ones.
    bool isThorough = false;
};

const QMap<QString, Scenario> scenarios{
    {u"the first action of all"_qs, {Stored::Nothing, {}, u"keep"_qs, true, true}},
    {u"keep"_qs, {Stored::Files, {}, u"keep"_qs, false, true}},
    {u"keep in a linked file"_qs, {Stored::LinkedWorkspace, {}, u"keep"_qs, false, true}},
    {u"remove"_qs, {Stored::Files, {u"keep"_qs}, u"remove"_qs}},
    {u"note"_qs, {Stored::Files, {}, u"note"_qs}},
    {u"see"_qs, {Stored::Files, {}, u"see"_qs}},
    {u"reduce"_qs, {Stored::Files, {}, u"reduce"_qs}},
    {u"add"_qs, {Stored::Files, {}, u"add"_qs}},
    {u"remove source"_qs, {Stored::Files, {}, u"remove source"_qs}},
    {u"reset"_qs, {Stored::Files, {}, u"reset"_qs, true}},
    {u"reset beside a leftover"_qs, {Stored::FilesAndLeftover, {}, u"reset"_qs, true}},
    {u"undo"_qs, {Stored::Files, {u"keep"_qs}, u"undo"_qs}},
    {u"refresh"_qs, {Stored::Files, {}, u"refresh"_qs, false, true}},
    {u"the first refresh"_qs, {Stored::Nothing, {}, u"refresh"_qs}},
};

// The three files; of custom sources, whose ids are random, all but the id.
struct Files
{
    QByteArray workspace;
    QByteArray pack;
    QByteArray retired;

    friend bool operator==(const Files&, const Files&) = default;

    static Files in(const DataFolder& folder)
    {
        static const QRegularExpression id(u"[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}"_qs);
        return {
            QString::fromUtf8(folder.content(DataFolder::workspace)).replace(id, u"ID"_qs).toUtf8(),
            folder.content(DataFolder::pack), folder.content(DataFolder::retired)};
    }
};

// What a scenario does where nothing fails.
struct Course
{
    QStringList calls;
    /// Index of the first call that belongs to the action.
    qsizetype actionStart;
    Files before;
    Files after;
    QString receipt;

    /// Number of the call that first puts a new file in place.
    qsizetype firstRename() const { return calls.indexOf(u"renameat"_qs, actionStart) + 1; }
    /// Whether the call, by its number, closes what the action has read before it writes anything.
    bool closesWhatWasRead(qsizetype call) const
    {
        return calls.at(call - 1) == u"close" && call > actionStart &&
               call <= calls.indexOf(u"mkdir"_qs, actionStart);
    }
};

struct PlannedFault
{
    /// From 1.
    qsizetype call;
    QString fault;
};

using Plan = QList<PlannedFault>;

QString planText(const Plan& plan)
{
    QStringList entries;
    for (const PlannedFault& planned : plan) {
        entries.append(u"%1 %2"_qs.arg(planned.call).arg(planned.fault));
    }
    return entries.join(u';');
}

const QString shortWrite = u"short"_qs;
const QString killBefore = u"kill-before"_qs;
const QString killAfter = u"kill-after"_qs;

QString failure(int error)
{
    return QString::number(error);
}

// The faults that can befall a call of the name.
QStringList faultsOf(const QString& call, bool isThorough)
{
    QStringList faults{failure(EIO), killBefore};
    if (isThorough) {
        faults += {failure(ENOSPC), failure(EDQUOT), killAfter};
        const QStringList interrupted{u"open"_qs,  u"openat"_qs, u"read"_qs,
                                      u"write"_qs, u"fsync"_qs,  u"close"_qs};
        if (interrupted.contains(call)) {
            faults += failure(EINTR);
        }
        if (call == u"write") {
            faults += shortWrite;
        }
    }
    return faults;
}

// Whether the program has to get over the fault by itself.
bool isHarmless(const QString& call, const QString& fault)
{
    const QStringList repeated{u"read"_qs, u"write"_qs, u"fsync"_qs, u"close"_qs};
    return fault == shortWrite || (fault == failure(EINTR) && repeated.contains(call));
}

bool isKill(const Plan& plan)
{
    return plan.last().fault == killBefore || plan.last().fault == killAfter;
}

QString describe(const Plan& plan, const QStringList& calls)
{
    QStringList words;
    for (const auto& [call, fault] : plan) {
        const int error = fault.toInt();
        words.append(
            u"%1 at %2"_qs.arg(error == 0 ? fault : QString::fromLatin1(strerrorname_np(error)))
                .arg(call));
    }
    return u"%1, %2"_qs.arg(calls.at(plan.first().call - 1), words.join(u", "_qs));
}

// The plans in which a second fault meets what the program does about the first at the call.
QList<Plan> plansAfterAFailure(qsizetype call, const QString& made)
{
    QList<Plan> plans;
    if (made == u"write") {
        plans.append({{call, shortWrite}, {call + 1, failure(ENOSPC)}});
    }
    // The temporary file is closed, where it still is open, and removed.
    const QMap<QString, qsizetype> callsToTheRemoval{
        {u"write"_qs, 2}, {u"fsync"_qs, 2}, {u"close"_qs, 1}, {u"renameat"_qs, 1}};
    if (const auto calls = callsToTheRemoval.constFind(made); calls != callsToTheRemoval.cend()) {
        for (const QString& fault : {failure(EIO), killBefore, killAfter}) {
            plans.append({{call, failure(EIO)}, {call + *calls, fault}});
        }
    }
    return plans;
}

QList<Plan> plansFor(const Scenario& scenario, const Course& course)
{
    QList<Plan> plans;
    if (scenario.isStartSwept) {
        for (qsizetype call = 1; call <= course.actionStart; ++call) {
            plans.append({{{call, failure(EIO)}}, {{call, killBefore}}});
        }
    }
    for (qsizetype call = course.actionStart + 1; call <= course.calls.size(); ++call) {
        const QString& made = course.calls.at(call - 1);
        for (const QString& fault : faultsOf(made, scenario.isThorough)) {
            plans.append({{call, fault}});
        }
        if (scenario.isThorough && call <= course.firstRename()) {
            plans.append(plansAfterAFailure(call, made));
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
    Course course(const Scenario& scenario) const;
    void verifyThatAllWasReached(const QStringList& calls, const Plan& plan);
    void verifyFilesAfterTheKill(const QStringList& calls, const Plan& plan, const Files& files,
                                 const Course& course, bool isRefresh) const;
    void verifySave(const SavingProcess& process, const DataFolder& folder, const Course& course,
                    const QString& workspaceBefore, bool isStorageUsable) const;
    void verifyRefresh(const SavingProcess& process, const Files& files,
                       const Course& course) const;
    void verifyNextAction(SavingProcess& process, const DataFolder& folder, bool isStorageUsable,
                          bool isRefresh, const Course& course) const;

    QTemporaryDir m_site;
    QByteArray m_workspace;
    QMap<QString, Course> m_courses;
    qsizetype m_faults = 0;
    qsizetype m_runs = 0;
    QSet<QString> m_failedCalls;
};

void FaultSweepTest::initTestCase()
{
    writeFile(m_site.filePath(u"information-pack.json"_qs),
              SiteDocuments::pack(publishedAsOf, {u"card"_qs, u"new-1"_qs, u"new-2"_qs}));
    writeFile(m_site.filePath(u"retired-signals.json"_qs),
              SiteDocuments::retired(publishedRetired));
    m_workspace = storedWorkspace();
}

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
    if (stored == Stored::FilesAndLeftover) {
        folder.store(DataFolder::storage + u'/' + DataFolder::leftover, "half a fi");
    }
}

Course FaultSweepTest::course(const Scenario& scenario) const
{
    const DataFolder folder;
    fill(folder, scenario.stored);
    SavingProcess process(folder, m_site.path(), {});
    for (const QString& action : scenario.before) {
        process.act(action);
    }
    const qsizetype actionStart = process.calls().size();
    const Files before = Files::in(folder);
    process.act(scenario.action);
    if (!process.isAlive() || Files::in(folder) == before) {
        qFatal("%s changes nothing", qUtf8Printable(scenario.action));
    }
    return {process.calls(), actionStart, before, Files::in(folder), process.belief(u"receipt"_qs)};
}

void FaultSweepTest::noSaveLosesAnything_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Plan>("plan");

    for (auto scenario = scenarios.begin(); scenario != scenarios.end(); ++scenario) {
        const Course& course = *m_courses.insert(scenario.key(), this->course(*scenario));
        for (const Plan& plan : plansFor(*scenario, course)) {
            QTest::newRow(qUtf8Printable(scenario.key() + u": "_qs + describe(plan, course.calls)))
                << scenario.key() << plan;
        }
    }
}

void FaultSweepTest::noSaveLosesAnything()
{
    QFETCH(QString, name);
    QFETCH(Plan, plan);
    const Scenario& scenario = *scenarios.constFind(name);
    const Course& course = *m_courses.constFind(name);
    const bool isRefresh = scenario.action == u"refresh";
    const DataFolder folder;
    fill(folder, scenario.stored);

    SavingProcess process(folder, m_site.path(), planText(plan));
    bool isStorageUsable = false;
    if (process.isAlive()) {
        const QString error = process.belief(u"error"_qs);
        QVERIFY(error.isEmpty() || error.startsWith(notRead));
        isStorageUsable = error.isEmpty() && process.belief(u"standing"_qs) == u"First";
    }
    for (const QString& action : scenario.before) {
        process.act(action);
    }
    const QString workspaceBefore = process.isAlive() ? process.belief(u"workspace"_qs) : QString();
    process.act(scenario.action);
    verifyThatAllWasReached(process.calls(), plan);

    if (isKill(plan)) {
        QVERIFY(process.wasKilled());
        verifyFilesAfterTheKill(process.calls(), plan, Files::in(folder), course, isRefresh);
    } else {
        QVERIFY(process.isAlive());
        if (isRefresh) {
            verifyRefresh(process, Files::in(folder), course);
        } else {
            verifySave(process, folder, course, workspaceBefore, isStorageUsable);
        }
        const auto& [call, fault] = plan.first();
        if (plan.size() == 1 &&
            (isHarmless(course.calls.at(call - 1), fault) || course.closesWhatWasRead(call))) {
            QCOMPARE(Files::in(folder), course.after);
        } else if (call > course.actionStart && call <= course.firstRename()) {
            QCOMPARE(Files::in(folder), course.before);
        }
        if (process.calls().filter(u"unlinkat !"_qs).isEmpty()) {
            QStringList ownLeftovers = folder.leftovers();
            ownLeftovers.removeAll(DataFolder::leftover);
            QCOMPARE(ownLeftovers, QStringList());
        }
        verifyNextAction(process, folder, isStorageUsable, isRefresh, course);
        QVERIFY(process.ends());
    }
    verifyNextStart(folder);
    QCOMPARE(QFileInfo(folder.path(DataFolder::workspace)).isSymLink(),
             scenario.stored == Stored::LinkedWorkspace);
}

void FaultSweepTest::verifyThatAllWasReached(const QStringList& calls, const Plan& plan)
{
    QCOMPARE(calls.filter(u" !"_qs).size(), plan.size());
    for (const auto& [call, fault] : plan) {
        const QString& made = calls.at(call - 1);
        QVERIFY(made.endsWith(u" !"_qs));
        m_failedCalls.insert(made.chopped(2));
    }
    m_faults += plan.size();
    ++m_runs;
}

// Each file is new if its rename was made, in the order in which they are written.
void FaultSweepTest::verifyFilesAfterTheKill(const QStringList& calls, const Plan& plan,
                                             const Files& files, const Course& course,
                                             bool isRefresh) const
{
    qsizetype renames =
        calls.sliced(std::min(course.actionStart, calls.size())).count(u"renameat"_qs);
    if (calls.last() == u"renameat !" && plan.last().fault == killAfter) {
        ++renames;
    }
    if (isRefresh) {
        QCOMPARE(files.workspace, course.before.workspace);
        QCOMPARE(files.pack, renames > 0 ? course.after.pack : course.before.pack);
        QCOMPARE(files.retired, renames > 1 ? course.after.retired : course.before.retired);
    } else {
        QCOMPARE(files, renames > 0 ? course.after : course.before);
    }
}

void FaultSweepTest::verifySave(const SavingProcess& process, const DataFolder& folder,
                                const Course& course, const QString& workspaceBefore,
                                bool isStorageUsable) const
{
    const QString error = process.belief(u"error"_qs);
    if (error.isEmpty()) {
        QCOMPARE(Files::in(folder), course.after);
        QCOMPARE(process.belief(u"workspace"_qs).toUtf8(), folder.content(DataFolder::workspace));
        QCOMPARE(process.belief(u"receipt"_qs), course.receipt);
        return;
    }
    QCOMPARE(Files::in(folder), course.before);
    QCOMPARE(process.belief(u"workspace"_qs), workspaceBefore);
    QCOMPARE(process.belief(u"receipt"_qs), QString());
    if (isStorageUsable) {
        QVERIFY(error.startsWith(notSaved));
    } else {
        QCOMPARE(error, noStorage);
    }
}

void FaultSweepTest::verifyRefresh(const SavingProcess& process, const Files& files,
                                   const Course& course) const
{
    QCOMPARE(files.workspace, course.before.workspace);
    const QStringList retired = process.beliefs(u"retired"_qs).toVariant().toStringList();
    if (process.belief(u"syncNote"_qs) == syncFailed) {
        QCOMPARE(files, course.before);
        QVERIFY(process.belief(u"packAsOf"_qs) != publishedAsOf);
        QVERIFY(retired != publishedRetired);
        return;
    }
    QCOMPARE(files.pack, course.after.pack);
    QCOMPARE(process.belief(u"packAsOf"_qs), publishedAsOf);
    QVERIFY(files.retired == course.before.retired || files.retired == course.after.retired);
    QVERIFY(retired != publishedRetired || files.retired == course.after.retired);
}

void FaultSweepTest::verifyNextAction(SavingProcess& process, const DataFolder& folder,
                                      bool isStorageUsable, bool isRefresh,
                                      const Course& course) const
{
    const QByteArray before = folder.content(DataFolder::workspace);
    process.act(u"dismiss the error"_qs);
    process.act(u"add another"_qs);
    QVERIFY(process.isAlive());
    QCOMPARE(process.belief(u"error"_qs), isStorageUsable ? QString() : noStorage);
    const QByteArray after = folder.content(DataFolder::workspace);
    QCOMPARE(after != before, isStorageUsable);
    if (isStorageUsable) {
        QCOMPARE(process.belief(u"workspace"_qs).toUtf8(), after);
    }
    if (isRefresh) {
        process.act(u"refresh"_qs);
        QVERIFY(process.belief(u"syncNote"_qs) != syncFailed);
        QCOMPARE(folder.content(DataFolder::pack), course.after.pack);
        QCOMPARE(process.belief(u"packAsOf"_qs), publishedAsOf);
    }
}

void FaultSweepTest::theSweepWasWide()
{
    qInfo("%lld faults in %lld runs, nothing lost", static_cast<long long>(m_faults),
          static_cast<long long>(m_runs));
    QVERIFY(m_faults >= leastFaults);
    const QSet<QString> savingCalls{u"mkdir"_qs, u"stat"_qs,     u"lstat"_qs,   u"readlink"_qs,
                                    u"open"_qs,  u"openat"_qs,   u"write"_qs,   u"fsync"_qs,
                                    u"close"_qs, u"renameat"_qs, u"unlinkat"_qs};
    QVERIFY(m_failedCalls.contains(savingCalls));
}

TEST_SUBJECT(FaultSweepTest)
#include "FaultSweepTest.moc"
