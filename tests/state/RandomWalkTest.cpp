#include "InformationWorkspaceCoding.h"
#include "PlainRules.h"
#include "SampleModel.h"
#include "SiteDocuments.h"
#include "Subject.h"

#include <QJsonDocument>
#include <QMetaMethod>
#include <QTest>

#include <algorithm>
#include <functional>
#include <memory>
#include <numeric>
#include <random>

namespace {

using Reason = FileError::Reason;

const QString directory = u"/support/Corvanite/Information"_qs;
const QString workspacePath = directory + u"/workspace-v1.json"_qs;
const QString packPath = directory + u"/information-pack.json"_qs;
const QString retiredPath = directory + u"/retired-signals.json"_qs;

constexpr int keptAtStart = 3000;
constexpr int knownSignals = 400;
constexpr int publishedSignals = 120;
constexpr int targets = 250;
constexpr int mostSources = 100;

// What goes through thousands of entries is looked at now and then only.
constexpr int stepsPerKeptList = 10;
constexpr int savesPerReading = 20;

std::chrono::sys_seconds wholeSeconds(double seconds)
{
    return std::chrono::sys_seconds(std::chrono::seconds(static_cast<qint64>(seconds)));
}

QString signalId(int number)
{
    return u"signal-%1"_qs.arg(number);
}

QString sourceText(int number)
{
    return u"想跟踪的第 %1 句话"_qs.arg(number);
}

// Qt 6.4 compares two empty lists of plain values by memcmp and null, which the sanitizers report.
bool isSame(const InformationWorkspace& left, const InformationWorkspace& right)
{
    if (!left.reducedLanes.isEmpty() || !right.reducedLanes.isEmpty()) {
        return left == right;
    }
    auto leftWithoutLanes = left;
    auto rightWithoutLanes = right;
    leftWithoutLanes.reducedLanes = {};
    rightWithoutLanes.reducedLanes = {};
    return leftWithoutLanes == rightWithoutLanes;
}

} // namespace

// A reader who does anything in any order for a long time, on a disk that fails now and then.
class RandomWalkTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyActionIsInTheWalk();
    void memoryAndDiskAgreeAllTheWay();

private:
    struct Action
    {
        int weight;
        std::function<void()> act;
        int times = 0;
    };

    // What an action is to do where the disk does not fail.
    struct Expectation
    {
        enum class Undo { AsBefore, Gone, ThisAction };

        /// What is to be saved; nothing for an action that saves nothing.
        std::optional<InformationWorkspace> workspace = std::nullopt;
        Undo undo = Undo::AsBefore;
        /// Whether there is nothing to undo even after a failure.
        bool clearsUndo = false;
    };

    struct UndoStep
    {
        InformationWorkspace workspace;
        QByteArray file;
    };

    void fillDisk();
    void start();
    void transact(const Expectation& expectation, const std::function<void()>& act);
    void undoable(const InformationWorkspace& changed, const std::function<void()>& act);
    void toggleKeep();
    void removeKept();
    void reduceSimilar();
    void markSeen();
    void updateNote();
    void addSource();
    void removeSource();
    void undoLastAction();
    void refreshPackFromSite();
    void verifyState();
    void verifyToday();
    void verifyKept();

    int random(int below) { return static_cast<int>(m_random() % static_cast<unsigned>(below)); }
    /// Live, retired or, now and then, unknown.
    QString randomId();
    QByteArray randomPack();
    std::chrono::sys_seconds now() const { return wholeSeconds(m_sample.now); }
    QByteArray file() const { return m_sample.files.files.value(workspacePath); }

    void require(bool holds, const char* rule)
    {
        if (!holds && m_brokenRule.isEmpty()) {
            m_brokenRule = QString::fromUtf8(rule);
        }
    }

    std::mt19937 m_random;
    QMap<QString, Action> m_actions;
    QString m_brokenRule;

    SampleModel m_sample;
    std::unique_ptr<InformationModel> m_model;
    int m_packs = 0;
    unsigned m_seed = 0;

    InformationWorkspace m_workspace;
    std::optional<UndoStep> m_undo;
    QString m_error;
    int m_saves = 0;
    int m_failures = 0;
    int m_undone = 0;
};

void RandomWalkTest::initTestCase()
{
    const auto model = [this]() -> InformationModel& { return *m_model; };
    m_actions = {
        {u"toggleKeep"_qs, {4, [this] { toggleKeep(); }}},
        {u"removeKept"_qs, {4, [this] { removeKept(); }}},
        {u"reduceSimilar"_qs, {4, [this] { reduceSimilar(); }}},
        {u"markSeen"_qs, {4, [this] { markSeen(); }}},
        {u"updateNote"_qs, {4, [this] { updateNote(); }}},
        {u"addSource"_qs, {4, [this] { addSource(); }}},
        {u"removeSource"_qs, {4, [this] { removeSource(); }}},
        {u"undoLastAction"_qs, {8, [this] { undoLastAction(); }}},
        {u"resetPreferences"_qs,
         {1,
          [this, model] {
              auto changed = m_workspace;
              changed.hidden.clear();
              changed.reducedLanes.clear();
              undoable(changed, [model] { model().resetPreferences(); });
          }}},
        {u"refreshPackFromSite"_qs, {1, [this] { refreshPackFromSite(); }}},
        {u"probeAppUpdateOnce"_qs, {1, [model] { model().probeAppUpdateOnce(); }}},
        {u"start again"_qs, {1, [this] { start(); }}},
        {u"setSurface"_qs,
         {4, [this, model] { model().setSurface(InformationModel::Surface(random(5))); }}},
        {u"setSearch"_qs,
         {4, [this, model] { model().setSearch(random(2) == 0 ? QString() : u"备注 1"_qs); }}},
        {u"setActiveLane"_qs,
         {4,
          [this, model] {
              const int lane = random(7);
              model().setActiveLane(lane < 6 ? std::optional(InformationLane(lane)) : std::nullopt);
          }}},
        {u"openArchiveDay"_qs,
         {4, [this, model] { model().openArchiveDay(u"2090-01-0%1"_qs.arg(random(9) + 1)); }}},
        {u"closeArchiveDay"_qs, {4, [model] { model().closeArchiveDay(); }}},
        {u"openThread"_qs, {4, [this, model] { model().openThread(randomId()); }}},
        {u"closeThread"_qs, {4, [model] { model().closeThread(); }}},
        {u"dismissReceipt"_qs, {4, [model] { model().dismissReceipt(); }}},
        {u"dismissError"_qs,
         {4,
          [this, model] {
              m_error.clear();
              model().dismissError();
          }}},
        {u"dismissIntakeError"_qs, {4, [model] { model().dismissIntakeError(); }}},
        {u"dismissUpdate"_qs, {4, [model] { model().dismissUpdate(); }}},
    };
    m_sample.site->answers.insert(SiteClient::appVersionPath,
                                  SiteReply{SiteDocuments::appVersion(u"2.0.0"_qs), 200});
    bool isNumber = false;
    const unsigned seed = qEnvironmentVariable("CORVANITE_WALK_SEED").toUInt(&isNumber);
    m_seed = isNumber ? seed : 1;
    m_random.seed(m_seed);
    fillDisk();
    start();
}

void RandomWalkTest::everyActionIsInTheWalk()
{
    const QMetaObject& type = InformationModel::staticMetaObject;
    for (int index = type.methodOffset(); index < type.methodCount(); ++index) {
        const QMetaMethod method = type.method(index);
        if (method.methodType() == QMetaMethod::Method && !method.isConst()) {
            QVERIFY2(m_actions.contains(QString::fromLatin1(method.name())),
                     method.name().constData());
        }
    }
}

void RandomWalkTest::memoryAndDiskAgreeAllTheWay()
{
    for (int step = 1; step <= WALK_STEPS; ++step) {
        int turn = random(
            std::accumulate(m_actions.begin(), m_actions.end(), 0,
                            [](int sum, const Action& action) { return sum + action.weight; }));
        auto action = m_actions.begin();
        while (turn >= action->weight) {
            turn -= action->weight;
            ++action;
        }
        m_sample.now += random(3) * 0.75;
        action->act();
        ++action->times;
        verifyState();
        verifyToday();
        if (step % stepsPerKeptList == 0) {
            verifyKept();
        }
        if (!m_brokenRule.isEmpty()) {
            QFAIL(qUtf8Printable(
                u"CORVANITE_WALK_SEED=%1, step %2, %3: %4"_qs.arg(m_seed).arg(step).arg(
                    action.key(), m_brokenRule)));
        }
    }
    qInfo("%d steps from seed %u: %d saves, %d failed ones, %d undone", WALK_STEPS, m_seed, m_saves,
          m_failures, m_undone);
    for (auto action = m_actions.begin(); action != m_actions.end(); ++action) {
        QVERIFY2(action->times > 0, qUtf8Printable(action.key()));
    }
    QVERIFY(m_saves > WALK_STEPS / 4 && m_failures > WALK_STEPS / 50 && m_undone > WALK_STEPS / 50);
}

// 3000 kept signals, most of which no pack holds any more.
void RandomWalkTest::fillDisk()
{
    for (int number = 0; number < keptAtStart; ++number) {
        const QString id = number < publishedSignals ? signalId(number) : u"past-%1"_qs.arg(number);
        m_workspace.saved[id] = {now() - std::chrono::hours(number), u"当时收下的理由 "_qs + id,
                                 u"备注 %1"_qs.arg(number)};
        m_workspace.following.append(u"target-of-%1"_qs.arg(id));
    }
    for (int number = 0; number < 200; ++number) {
        m_workspace.hidden.append(u"past-%1@2089-01-01T00:00:00Z"_qs.arg(number));
        m_workspace.seenTargets.append(u"target-of-past-%1"_qs.arg(number));
    }
    m_workspace.reducedLanes = {InformationLane::Opportunity};
    for (int number = 0; number < mostSources - 2; ++number) {
        m_workspace.customSources.append({QUuid::createUuid(), sourceText(number), now()});
    }
    m_sample.files.files.insert(workspacePath, InformationWorkspaceCoding::encode(m_workspace));
    m_sample.files.files.insert(packPath, randomPack());
    m_sample.files.files.insert(retiredPath,
                                SiteDocuments::retired({u"signal-0"_qs, u"past-200"_qs}));
}

void RandomWalkTest::start()
{
    m_model =
        m_sample.make(InformationContent::atStart(m_sample.files), *m_sample.site, m_sample.files);
    m_undo.reset();
    m_error.clear();
}

QString RandomWalkTest::randomId()
{
    const auto& live = m_model->signals();
    const auto& retired = m_model->retiredSignals();
    const int choice = random(10);
    if (choice == 0 && !retired.isEmpty()) {
        return retired.at(random(static_cast<int>(retired.size()))).id;
    }
    return choice == 1 ? u"nobody"_qs : live.at(random(static_cast<int>(live.size()))).id;
}

// Another selection of the known signals in new versions, some of which share a target.
QByteArray RandomWalkTest::randomPack()
{
    const auto published = QDateTime(QDate(2090, 1, 1), QTime(), Qt::UTC).addSecs(3600 * m_packs++);
    QStringList ids;
    for (int number = random(knownSignals); ids.size() < publishedSignals; ++number) {
        if (random(3) == 0) {
            ids.append(signalId(number % knownSignals));
        }
    }
    ids.removeDuplicates();
    QStringList days;
    for (int day = 1; day <= 5; ++day) {
        days.append(u"2090-01-0%1"_qs.arg(day));
    }
    QJsonObject pack =
        QJsonDocument::fromJson(
            SiteDocuments::pack(
                published.toString(random(4) == 0 ? Qt::ISODate : Qt::ISODateWithMs), ids, days))
            .object();
    QJsonArray signals = pack.value(u"signals"_qs).toArray();
    for (QJsonValueRef value : signals) {
        QJsonObject signal = value.toObject();
        const int number = signal.value(u"id"_qs).toString().section(u'-', 1).toInt();
        QJsonObject target = signal.value(u"followTarget"_qs).toObject();
        target.insert(u"id"_qs, u"target-of-signal-%1"_qs.arg(number % targets));
        signal.insert(u"followTarget"_qs, target);
        signal.insert(u"why"_qs, QJsonObject{{u"zh"_qs, u"理由 %1"_qs.arg(m_packs)}});
        signal.insert(u"state"_qs, random(3) == 0 ? u"update"_qs : u"new"_qs);
        signal.insert(u"observedAt"_qs,
                      published.addSecs(-3600 * random(60)).toString(Qt::ISODate));
        signal.insert(u"lane"_qs, QString(vocabulary<InformationLane>.at(number % 6).token));
        value = signal;
    }
    pack.insert(u"signals"_qs, signals);
    return QJsonDocument(pack).toJson();
}

// Transactions

void RandomWalkTest::transact(const Expectation& expectation, const std::function<void()>& act)
{
    const QByteArray fileBefore = file();
    const bool isFailing = random(6) == 0;
    if (isFailing) {
        m_sample.files.writeFailure =
            FileError{random(2) == 0 ? Reason::NoSpace : Reason::InputOutput};
    }
    act();
    const auto failure = std::exchange(m_sample.files.writeFailure, std::nullopt);
    if (expectation.clearsUndo) {
        m_undo.reset();
    }
    if (!expectation.workspace || isFailing) {
        require(file().constData() == fileBefore.constData(), "the file was written");
    }
    if (!expectation.workspace) {
        return;
    }
    if (isFailing) {
        ++m_failures;
        m_error = u"没有保存这次操作："_qs + failure->localizedDescription();
        require(!m_model->hasReceipt(), "a receipt for what was not saved");
        return;
    }
    ++m_saves;
    if (expectation.undo == Expectation::Undo::ThisAction) {
        m_undo = {m_workspace, fileBefore};
    } else if (expectation.undo == Expectation::Undo::Gone) {
        m_undo.reset();
    }
    m_workspace = *expectation.workspace;
    require(file() == InformationWorkspaceCoding::encode(m_workspace),
            "the file does not hold what was done");
    if (m_saves % savesPerReading == 0) {
        const auto stored = InformationWorkspaceCoding::decode(file());
        require(stored && isSame(*stored, m_workspace), "the file does not read as what was done");
    }
}

void RandomWalkTest::undoable(const InformationWorkspace& changed, const std::function<void()>& act)
{
    transact({.workspace = changed, .undo = Expectation::Undo::ThisAction, .clearsUndo = true},
             act);
}

void RandomWalkTest::toggleKeep()
{
    const QString id = randomId();
    const auto signal = m_model->signalById(id);
    if (!signal) {
        transact({}, [&] { m_model->toggleKeep(id); });
        return;
    }
    auto changed = m_workspace;
    if (PlainRules::isKept(m_workspace, m_model->signals(), signal->followTarget.id)) {
        PlainRules::remove(changed, m_model->signals(), signal->followTarget.id);
    } else {
        PlainRules::keep(changed, m_model->signals(), *signal, now());
    }
    undoable(changed, [&] { m_model->toggleKeep(*signal); });
}

void RandomWalkTest::removeKept()
{
    const QString id = randomId();
    const auto signal = m_model->signalById(id);
    if (!signal) {
        transact({}, [&] { m_model->removeKept(id); });
        return;
    }
    auto changed = m_workspace;
    PlainRules::remove(changed, m_model->signals(), signal->followTarget.id);
    undoable(changed, [&] { m_model->removeKept(id); });
}

void RandomWalkTest::reduceSimilar()
{
    const QString id = randomId();
    const auto signal = m_model->signalById(id);
    if (!signal) {
        transact({}, [&] { m_model->reduceSimilar(id); });
        return;
    }
    auto changed = m_workspace;
    PlainRules::reduce(changed, *signal);
    undoable(changed, [&] { m_model->reduceSimilar(id); });
}

void RandomWalkTest::markSeen()
{
    const QString id = randomId();
    const auto signal = m_model->signalById(id);
    Expectation expectation;
    if (signal && !m_workspace.seenTargets.contains(signal->followTarget.id)) {
        expectation.workspace = m_workspace;
        PlainRules::see(*expectation.workspace, signal->followTarget.id);
    }
    transact(expectation, [&] { m_model->markSeen(id); });
}

void RandomWalkTest::updateNote()
{
    const QString id = randomId();
    const QString text = u"备注 %1 \"引号\" \\ \n 换行 😀"_qs.arg(random(1000));
    const auto& live = m_model->signals();
    const auto signal = std::ranges::find(live, id, &InformationSignal::id);
    Expectation expectation{.clearsUndo = true};
    if (signal != live.end()) {
        expectation.workspace = m_workspace;
        PlainRules::note(*expectation.workspace, live, *signal, text, now());
    }
    transact(expectation, [&] { m_model->updateNote(id, text); });
}

void RandomWalkTest::addSource()
{
    const auto add = [this](const QString& input, bool isTaken) {
        return [this, input, isTaken] {
            const bool fails = m_sample.files.writeFailure.has_value();
            const bool wasTaken = m_model->addSource(input);
            require(wasTaken == isTaken || (fails && !wasTaken), "a hand-in was taken or not");
        };
    };
    const auto& live = m_model->signals();
    const int choice = random(8);
    if (choice == 0) {
        transact({}, add(u"http://plain.example"_qs, false));
        return;
    }
    if (choice < 3) {
        const InformationSignal signal = live.at(random(static_cast<int>(live.size())));
        const auto keep = add(signal.originalURL, true);
        if (PlainRules::isKept(m_workspace, live, signal.followTarget.id)) {
            transact({.clearsUndo = true}, keep);
            return;
        }
        auto changed = m_workspace;
        PlainRules::keep(changed, live, signal, now());
        undoable(changed, keep);
        return;
    }
    const QString text = sourceText(random(2 * mostSources));
    const auto& sources = m_workspace.customSources;
    if (std::ranges::find(sources, text, &CustomInformationSource::input) != sources.end()) {
        transact({.clearsUndo = true}, add(text, true));
    } else if (sources.size() >= mostSources) {
        transact({}, add(text, false));
        require(!m_model->intakeErrorText().isEmpty(), "one source too many is told");
    } else {
        Expectation expectation{
            .workspace = m_workspace, .undo = Expectation::Undo::ThisAction, .clearsUndo = true};
        auto& added = expectation.workspace->customSources;
        added.append({QUuid(), text, now()});
        transact(expectation, [&] {
            add(text, true)();
            // Random, so known only afterwards.
            const auto& inMemory = m_model->workspace().customSources;
            added.last().id = inMemory.isEmpty() ? QUuid() : inMemory.last().id;
        });
    }
}

void RandomWalkTest::removeSource()
{
    const auto& sources = m_workspace.customSources;
    const QUuid id = sources.isEmpty() || random(10) == 0
                         ? QUuid::createUuid()
                         : sources.at(random(static_cast<int>(sources.size()))).id;
    auto changed = m_workspace;
    changed.customSources.removeIf([&id](const auto& source) { return source.id == id; });
    undoable(changed, [&] { m_model->removeSource(id); });
}

void RandomWalkTest::undoLastAction()
{
    Expectation expectation{.undo = Expectation::Undo::Gone};
    const auto undo = m_undo;
    if (undo) {
        expectation.workspace = undo->workspace;
    }
    transact(expectation, [&] { m_model->undoLastAction(); });
    if (undo && !m_undo) {
        ++m_undone;
        require(file() == undo->file, "undo gives the file back as it was");
    }
}

void RandomWalkTest::refreshPackFromSite()
{
    const QByteArray pack = random(8) == 0 ? QByteArray("no pack") : randomPack();
    const QByteArray retired =
        SiteDocuments::retired({randomId(), u"past-%1"_qs.arg(random(3000))});
    m_sample.site->answers.insert(SiteClient::packPath, SiteReply{pack, 200});
    m_sample.site->answers.insert(SiteClient::retiredSignalsPath, SiteReply{retired, 200});
    if (random(4) == 0) {
        m_sample.files.writeFailures.insert(retiredPath, FileError{Reason::NoSpace});
    }
    const auto snapshot = InformationPackSync::parse(pack);
    const auto filesBefore = m_sample.files.files;
    const auto signalsBefore = m_model->signals();
    const auto retiredBefore = m_model->retiredSignals();

    bool isFailing = false;
    transact({}, [&] {
        isFailing = m_sample.files.writeFailure.has_value();
        m_model->refreshPackFromSite();
    });

    auto filesAfter = filesBefore;
    if (snapshot && !isFailing) {
        filesAfter[packPath] = pack;
        if (m_sample.files.writeFailures.isEmpty()) {
            filesAfter[retiredPath] = retired;
        }
        require(m_model->signals() == snapshot->signals, "the new pack is shown");
        require(!m_model->packSyncFailed(), "a refresh that stored its pack says so");
    } else {
        require(m_model->signals() == signalsBefore, "the old pack stays");
        require(m_model->retiredSignals() == retiredBefore, "the old retired list stays");
        require(m_model->packSyncFailed(), "a refresh that failed says so");
    }
    require(m_sample.files.files == filesAfter, "the refresh left other files than it should");
    m_sample.files.writeFailures.clear();
}

// What must hold after every step

void RandomWalkTest::verifyState()
{
    require(isSame(m_model->workspace(), m_workspace), "memory is not what was done");
    require(m_model->errorText() == m_error, "the error told is not what happened");
    require(m_model->canUndo() == m_undo.has_value(), "undo is offered where there is none");
}

void RandomWalkTest::verifyToday()
{
    const QSet<QString> hidden(m_workspace.hidden.begin(), m_workspace.hidden.end());
    QStringList shown;
    QStringList reduced;
    for (const InformationSignal& signal : m_model->signals()) {
        if (!hidden.contains(signal.id + u'@' + signal.observedAt)) {
            (m_workspace.reducedLanes.contains(signal.lane) ? reduced : shown).append(signal.id);
        }
    }
    require(idsOf(m_model->visibleSignals()) == shown + reduced, "today is not what it should be");

    qsizetype inLanes = 0;
    for (const auto& [lane, name] : vocabulary<InformationLane>) {
        inLanes += m_model->laneCount(lane);
    }
    require(inLanes == m_model->laneAllCount() && inLanes == (shown + reduced).size(),
            "the lanes' counts do not add up");

    const auto filtered = m_model->laneFilteredSignals();
    const auto focused = m_model->focusedSignals();
    const auto remaining = m_model->remainingSignals();
    QStringList parts = idsOf(focused) + idsOf(remaining);
    QStringList whole = idsOf(filtered);
    parts.sort();
    whole.sort();
    require(parts == whole, "focus and remaining do not complete each other");
    require(focused.size() == std::min<qsizetype>(3, filtered.size()), "the focus is not full");
}

void RandomWalkTest::verifyKept()
{
    const auto kept = m_model->keptSignals();
    QSet<QString> shown;
    for (const InformationSignal& signal : kept) {
        const QString& target = signal.followTarget.id;
        require(!shown.contains(target), "a kept target is shown twice");
        shown.insert(target);
        require(m_workspace.following.contains(target) || m_workspace.saved.contains(signal.id),
                "a signal is shown as kept that nobody kept");
    }
    if (m_model->search().isEmpty()) {
        require(m_model->keptItemCount() == kept.size() + m_workspace.customSources.size(),
                "the count of kept items is wrong");
        require(m_model->keptCustomSources() == m_workspace.customSources,
                "a custom source is missing");
    }
    const auto& live = m_model->signals();
    const InformationSignal& signal = live.at(random(static_cast<int>(live.size())));
    const QString& target = signal.followTarget.id;
    const bool isKept = PlainRules::isKept(m_workspace, live, target);
    require(m_model->isKept(signal) == isKept, "a card says wrongly whether it is kept");
    require(!isKept || shown.contains(target) || !m_model->search().isEmpty(),
            "a kept signal is not shown as kept");
}

TEST_SUBJECT(RandomWalkTest)
#include "RandomWalkTest.moc"
