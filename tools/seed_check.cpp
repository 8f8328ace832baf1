// Checks the edition that is compiled in: seed_check PACK RETIRED REGISTRY. Prints what is wrong
// and ends with 1, which fails the build.

#include "InformationPackSync.h"
#include "InformationProjection.h"
#include "InformationSeed.h"
#include "OpenableAddress.h"
#include "WeeklyDigest.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QSet>
#include <QTextStream>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <optional>
#include <utility>

namespace {

QTextStream& errors()
{
    static QTextStream stream(stderr);
    return stream;
}

/// Counts what is wrong and tells it.
class Findings
{
public:
    void require(bool holds, const QString& where, const QString& rule)
    {
        if (!holds) {
            ++m_count;
            errors() << where << ": " << rule << Qt::endl;
        }
    }

    int count() const { return m_count; }

private:
    int m_count = 0;
};

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool canBeOpened(const QString& address)
{
    return OpenableAddress::url(address).has_value();
}

std::optional<double> secondsOf(const QString& time)
{
    return InformationProjection::fastISOSeconds(time);
}

bool isTime(const QString& text)
{
    return secondsOf(text).has_value();
}

/// Empty where the time does not read, which is told by itself.
QString beijingDayOf(const QString& time)
{
    const auto milliseconds = InformationProjection::isoMilliseconds(time);
    return milliseconds ? InformationProjection::beijingDay(*milliseconds) : QString();
}

bool isDay(const QString& text)
{
    const auto midnight = WeeklyDigest::utcMidnight(text);
    return midnight && WeeklyDigest::dayString(*midnight) == text;
}

/// Whether the text was not met before.
bool meet(QSet<QString>& met, const QString& text)
{
    const qsizetype count = met.size();
    met.insert(text);
    return met.size() > count;
}

bool liesOnOpenHost(const InformationRelatedSource& source)
{
    InformationSignal signal{};
    signal.originalURL = source.url;
    return signal.originalReachability() == OriginalReachability::Open;
}

/// What the sources page promises: an original that not everyone reaches has a stand-in. For a
/// spotty one that is a host without such trouble, another repository page would not help.
bool hasStandIn(const InformationSignal& signal)
{
    switch (signal.originalReachability()) {
    case OriginalReachability::Open:
        return true;
    case OriginalReachability::Spotty:
        return std::ranges::any_of(signal.relatedSources, liesOnOpenHost);
    case OriginalReachability::Blocked:
        return signal.reachableAlternate().has_value();
    }
    std::unreachable();
}

void checkTimes(const InformationSignal& signal, const QString& asOf, Findings& findings)
{
    const auto require = [&](bool holds, const QString& rule) {
        findings.require(holds, signal.id, rule);
    };
    require(isTime(signal.observedAt), u"observedAt is no time"_qs);
    require(signal.observedAt <= asOf, u"observed after the edition"_qs);
    require(!signal.publishedAt || isTime(*signal.publishedAt), u"publishedAt is no time"_qs);
    require(!signal.publishedAt || secondsOf(*signal.publishedAt) <= secondsOf(signal.observedAt),
            u"observed before it was published"_qs);
}

void checkTimeline(const InformationSignal& signal, Findings& findings)
{
    const auto time = [](const InformationTimelineEvent& event) { return secondsOf(event.date); };
    const auto require = [&](bool holds, const QString& rule) {
        findings.require(holds, signal.id, rule);
    };
    require(!signal.timeline.isEmpty(), u"the timeline is empty"_qs);
    require(std::ranges::all_of(signal.timeline, isTime, &InformationTimelineEvent::date),
            u"a timeline event's datetime is no time"_qs);
    require(std::ranges::is_sorted(signal.timeline, std::ranges::greater(), time),
            u"the timeline does not go from the newest event to the oldest"_qs);
}

void checkSignal(const InformationSignal& signal, const QString& asOf, Findings& findings)
{
    const auto require = [&](bool holds, const QString& rule) {
        findings.require(holds, signal.id, rule);
    };
    require(!signal.id.isEmpty(), u"has no id"_qs);
    require(!signal.title.isEmpty() && !signal.source.isEmpty() && !signal.summary.isEmpty() &&
                !signal.why.isEmpty() && !signal.caveat.isEmpty(),
            u"a text is empty"_qs);
    require(signal.kind == InformationSignalKind::New || signal.updateSummary,
            u"an update that does not say what changed"_qs);

    require(canBeOpened(signal.originalURL), u"originalUrl cannot be opened"_qs);
    require(std::ranges::all_of(signal.relatedSources, canBeOpened, &InformationRelatedSource::url),
            u"a related source cannot be opened"_qs);
    require(hasStandIn(signal),
            u"the original is not always reachable and no related source is in its place"_qs);

    require(!signal.followTarget.id.isEmpty() && !signal.followTarget.label.isEmpty() &&
                !signal.followTarget.scope.isEmpty(),
            u"the follow target is incomplete"_qs);
    require(canBeOpened(signal.followTarget.url), u"the follow target cannot be opened"_qs);

    checkTimes(signal, asOf, findings);
    checkTimeline(signal, findings);
}

/// @param observedDays by the ids of all signals, the day at UTC+8 of each one's observation
void checkFocus(const SelectionDay& day, const QHash<QString, QString>& observedDays,
                Findings& findings)
{
    findings.require(!day.focusSignalIds.isEmpty(), day.date, u"features nothing"_qs);
    findings.require(day.totalShown >= day.focusSignalIds.size(), day.date,
                     u"shows fewer signals than it features"_qs);
    for (const auto& id : day.focusSignalIds) {
        findings.require(observedDays.contains(id), day.date,
                         u"features no known signal: "_qs + id);
        findings.require(observedDays.value(id) <= day.date, day.date,
                         u"features what was observed later: "_qs + id);
    }
}

void checkHistory(const QList<SelectionDay>& history, const QHash<QString, QString>& observedDays,
                  Findings& findings)
{
    findings.require(!history.isEmpty(), u"selectionHistory"_qs, u"is empty"_qs);
    findings.require(std::ranges::adjacent_find(history, std::ranges::greater_equal(),
                                                &SelectionDay::date) == history.end(),
                     u"selectionHistory"_qs, u"is not in the order of its days"_qs);
    for (const auto& day : history) {
        findings.require(isDay(day.date), day.date, u"is no day"_qs);
        checkFocus(day, observedDays, findings);
    }
}

void checkRegistry(const QList<InformationSourceEntry>& registry, Findings& findings)
{
    QSet<QString> ids;
    QSet<QString> names;
    QSet<QString> addresses;
    for (const auto& entry : registry) {
        findings.require(meet(ids, entry.id), entry.id, u"is listed twice"_qs);
        findings.require(meet(names, entry.name), entry.id, u"has the name of another row"_qs);
        findings.require(meet(addresses, entry.url), entry.id,
                         u"has the address of another row"_qs);
        findings.require(!entry.id.isEmpty() && !entry.name.isEmpty() && !entry.take.isEmpty(),
                         entry.id, u"a text is empty"_qs);
        findings.require(entry.kind.endsWith(u" · 英文") || entry.kind.endsWith(u" · 中文"),
                         entry.id, u"kind does not end with the language"_qs);
        findings.require(canBeOpened(entry.url), entry.id, u"url cannot be opened"_qs);
    }
    findings.require(!registry.isEmpty(), u"registry"_qs, u"is empty"_qs);
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList paths = QCoreApplication::arguments().sliced(1);
    if (paths.size() != 3) {
        errors() << "seed_check PACK RETIRED REGISTRY" << Qt::endl;
        return 1;
    }
    const auto pack = InformationPackSync::parse(contents(paths[0]));
    const auto retired = InformationPackSync::parseRetired(contents(paths[1]));
    const auto registry = InformationSeed::parseRegistry(contents(paths[2]));

    Findings findings;
    findings.require(pack.has_value(), paths[0], u"is no information pack"_qs);
    findings.require(retired.has_value(), paths[1], u"is no retired list"_qs);
    findings.require(registry.has_value(), paths[2], u"is no registry"_qs);
    if (findings.count() > 0) {
        return 1;
    }

    findings.require(isTime(pack->asOf), paths[0], u"asOf is no time"_qs);
    findings.require(pack->checkedEntryCount >= pack->signals.size(), paths[0],
                     u"has more signals than checked entries"_qs);
    QHash<QString, QString> observedDays;
    for (const auto& signal : pack->signals + *retired) {
        findings.require(!observedDays.contains(signal.id), signal.id, u"is listed twice"_qs);
        observedDays.insert(signal.id, beijingDayOf(signal.observedAt));
        checkSignal(signal, pack->asOf, findings);
    }
    checkHistory(pack->selectionDays, observedDays, findings);
    checkRegistry(*registry, findings);
    return findings.count() == 0 ? 0 : 1;
}
