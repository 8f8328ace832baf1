// SPDX-License-Identifier: Apache-2.0

#include "ScreenTour.h"

#include "SiteDocuments.h"

#include <QTest>

namespace ScreenTour {

namespace {

QList<InformationSignal> everyKindOfSignal()
{
    auto full = sampleSignal(u"a"_qs);
    full.observedAt = u"2026-09-01T22:00:00Z"_qs;
    full.publishedAt = u"2026-09-01"_qs;
    full.digest = u"Digest of a"_qs;
    full.relatedSources = {{u"Related one"_qs, u"https://one.example/"_qs},
                           {u"Related two"_qs, u"gopher://two.example/"_qs}};
    full.timeline = {{u"Aug 30"_qs, u"2026-08-30T00:00:00Z"_qs, u"Event one"_qs, u"Log one"_qs},
                     {u"Aug 31"_qs, u"2026-08-31T00:00:00Z"_qs, u"Event two"_qs, u"Log two"_qs}};

    auto blocked = sampleSignal(u"b"_qs);
    blocked.kind = InformationSignalKind::Update;
    blocked.lane = InformationLane::Workflow;
    blocked.observedAt = u"2026-09-01T01:00:00Z"_qs;
    blocked.originalURL = u"https://x.com/b"_qs;
    blocked.relatedSources = {{u"Alternate"_qs, u"https://alternate.example/b"_qs}};
    blocked.updateSummary = u"Change of b"_qs;
    blocked.followTarget.updateMode = InformationFollowUpdateMode::SnapshotBaseline;

    auto spotty = sampleSignal(u"c"_qs);
    spotty.lane = InformationLane::PlatformShift;
    spotty.observedAt = u"2026-09-02T01:30:00Z"_qs;
    spotty.originalURL = u"https://github.com/c"_qs;
    spotty.followTarget.updateMode = InformationFollowUpdateMode::EditorialWatch;

    auto unopenable = sampleSignal(u"d"_qs);
    unopenable.lane = InformationLane::OpenSourceGrowth;
    unopenable.observedAt = u"2026-08-20T00:00:00Z"_qs;
    unopenable.originalURL = u"javascript:alert(1)"_qs;

    auto story = sampleSignal(u"e"_qs);
    story.lane = InformationLane::FounderStory;
    auto chance = sampleSignal(u"f"_qs);
    chance.lane = InformationLane::Opportunity;
    return {full, blocked, spotty, unopenable, story, chance};
}

void showNothing(SampleModel& sample)
{
    sample.selectionDays = {};
}

std::function<void(const WorkbenchWindow&)> handIn(const QString& input)
{
    return [input](const WorkbenchWindow& window) {
        window.press(u"添加信息"_qs);
        window.awaited(u"链接或一句话"_qs, QAccessible::EditableText)->setProperty("text", input);
        window.press(u"交给 Corvanite"_qs);
    };
}

} // namespace

Visit::Visit(const Stop& stop, QSize size)
{
    m_sample.signals = everyKindOfSignal();
    m_sample.retiredSignals = {sampleSignal(u"old"_qs)};
    m_sample.selectionDays = {{u"2026-08-30"_qs, {u"old"_qs, u"gone"_qs}, 12},
                              {u"2026-09-01"_qs, {u"a"_qs, u"d"_qs}, 17},
                              {u"2026-09-02"_qs, {u"a"_qs, u"b"_qs, u"c"_qs}, 22}};
    stop.prepare(m_sample);
    m_model = m_sample.make();
    stop.act(*m_model);
    m_window.emplace(*m_model, size);
    m_window->settle();
    stop.open(*m_window);
    m_window->settle();
}

std::function<void(InformationModel&)> goTo(Surface surface)
{
    return [surface](InformationModel& model) { model.setSurface(surface); };
}

QList<Stop> stops()
{
    const auto keepSome = [](InformationModel& model) {
        for (const auto& id : {u"a"_qs, u"b"_qs, u"c"_qs, u"d"_qs}) {
            model.toggleKeep(id);
        }
        model.addSource(u"A sentence of the reader"_qs);
        model.dismissReceipt();
        model.setSurface(Surface::Kept);
    };
    const auto sync = [](const QByteArray& pack) {
        return [pack](SampleModel& sample) { sample.site->offer(SiteClient::packPath, pack); };
    };
    const auto pressSync = [](const WorkbenchWindow& window) { window.press(u"同步站点"_qs); };
    const auto failToSave = [](SampleModel& sample) {
        sample.files.writeFailure = FileError::fromSystemError(ENOSPC);
    };
    const auto keep = [](const QString& id) {
        return [id](InformationModel& model) { model.toggleKeep(id); };
    };
    const auto open = [](const QString& name) {
        return [name](const WorkbenchWindow& window) { window.press(name); };
    };

    return {
        {.name = u"today"_qs,
         .act =
             [](InformationModel& model) {
                 model.toggleKeep(u"b"_qs);
                 model.markSeen(u"a"_qs);
                 model.dismissReceipt();
             }},
        {.name = u"today, everything unfolded"_qs,
         .open =
             [](const WorkbenchWindow& window) {
                 window.press(u"看变化"_qs);
                 window.press(u"其余 3 条已替你排好，需要时再展开，不会丢失。"_qs);
             }},
        {.name = u"today, adjusted"_qs,
         .act = [](InformationModel& model) { model.reduceSimilar(u"a"_qs); }},
        {.name = u"today, with hidden cards only"_qs,
         .prepare =
             [](SampleModel& sample) {
                 InformationWorkspace workspace;
                 workspace.hidden = {u"some card"_qs};
                 const auto repository = InformationWorkspaceRepository::live(sample.files).value();
                 repository.save(workspace, sample.files).value();
             }},
        {.name = u"today, one lane"_qs,
         .act =
             [](InformationModel& model) { model.setActiveLane(InformationLane::FounderStory); }},
        {.name = u"today, a lane with nothing left"_qs,
         .act =
             [](InformationModel& model) {
                 model.reduceSimilar(u"e"_qs);
                 model.dismissReceipt();
                 model.setActiveLane(InformationLane::FounderStory);
             }},
        {.name = u"today, nothing left"_qs,
         .act =
             [](InformationModel& model) {
                 for (const auto& id : {u"a"_qs, u"b"_qs, u"c"_qs, u"d"_qs, u"e"_qs, u"f"_qs}) {
                     model.reduceSimilar(id);
                 }
                 model.dismissReceipt();
             }},
        {.name = u"thread"_qs, .open = open(u"打开脉络：Title of a"_qs)},
        {.name = u"thread of a kept signal"_qs,
         .act =
             [](InformationModel& model) {
                 model.toggleKeep(u"d"_qs);
                 model.updateNote(u"d"_qs, u"A note"_qs);
                 model.dismissReceipt();
             },
         .open = open(u"打开脉络：Title of d"_qs)},
        {.name = u"kept, empty"_qs, .act = goTo(Surface::Kept)},
        {.name = u"kept"_qs, .act = keepSome},
        {.name = u"kept, no match"_qs,
         .act =
             [](InformationModel& model) {
                 model.setSurface(Surface::Kept);
                 model.setSearch(u"zzz"_qs);
             }},
        {.name = u"weekly"_qs, .act = goTo(Surface::Weekly)},
        {.name = u"weekly, empty"_qs, .prepare = showNothing, .act = goTo(Surface::Weekly)},
        {.name = u"archive"_qs, .act = goTo(Surface::Archive)},
        {.name = u"archive, empty"_qs, .prepare = showNothing, .act = goTo(Surface::Archive)},
        {.name = u"archived day"_qs,
         .act = [](InformationModel& model) { model.openArchiveDay(u"2026-09-01"_qs); }},
        {.name = u"sources"_qs, .act = goTo(Surface::Sources)},
        {.name = u"hand-in"_qs, .open = open(u"添加信息"_qs)},
        {.name = u"hand-in, empty"_qs, .open = handIn({})},
        {.name = u"hand-in, too long"_qs, .open = handIn(QString(501, u'x'))},
        {.name = u"hand-in, not supported"_qs, .open = handIn(u"ftp://files.example/"_qs)},
        {.name = u"hand-in, too many"_qs,
         .act =
             [](InformationModel& model) {
                 for (int i = 0; i < 100; ++i) {
                     model.addSource(u"Sentence %1"_qs.arg(i));
                 }
                 model.dismissReceipt();
             },
         .open = handIn(u"One more sentence"_qs)},
        {.name = u"hand-in, there already"_qs,
         .act = [](InformationModel& model) { model.addSource(u"A sentence"_qs); },
         .open = handIn(u"A sentence"_qs)},
        {.name = u"hand-in, a kept signal"_qs,
         .act = keep(u"a"_qs),
         .open = handIn(u"https://origin.example/a"_qs)},
        {.name = u"hand-in, taken"_qs, .open = handIn(u"A sentence"_qs)},
        {.name = u"keys"_qs,
         .open =
             [](const WorkbenchWindow& window) {
                 window.pressKey(Qt::Key_F1);
                 window.awaited(u"键盘操作"_qs, QAccessible::Dialog);
             }},
        {.name = u"kept for its changes"_qs, .act = keep(u"a"_qs)},
        {.name = u"kept for a baseline"_qs, .act = keep(u"b"_qs)},
        {.name = u"kept, not connected"_qs, .act = keep(u"c"_qs)},
        {.name = u"no longer kept"_qs,
         .act =
             [](InformationModel& model) {
                 model.toggleKeep(u"a"_qs);
                 model.toggleKeep(u"a"_qs);
             }},
        {.name = u"undone"_qs,
         .act =
             [](InformationModel& model) {
                 model.toggleKeep(u"a"_qs);
                 model.undoLastAction();
             }},
        {.name = u"reset"_qs, .act = [](InformationModel& model) { model.resetPreferences(); }},
        {.name = u"a hand-in removed"_qs,
         .act = keepSome,
         .open =
             [](const WorkbenchWindow& window) {
                 auto* const row =
                     window.awaited(u"A sentence of the reader"_qs, QAccessible::ListItem);
                 ScreenReader::press(ScreenReader::find(row, u"移除"_qs, QAccessible::Button));
             }},
        {.name = u"syncing"_qs,
         .prepare = [](SampleModel& sample) { sample.site->heldPaths = {SiteClient::packPath}; },
         .open = pressSync},
        {.name = u"synced"_qs,
         .prepare = sync(SiteDocuments::pack(u"2026-09-03T00:00:00.000Z"_qs, {u"n"_qs})),
         .open = pressSync},
        {.name = u"nothing newer"_qs,
         .prepare = sync(SiteDocuments::pack(u"2026-09-01T00:00:00.000Z"_qs, {u"n"_qs})),
         .open = pressSync},
        {.name = u"sync failed"_qs, .open = pressSync},
        {.name = u"a newer build"_qs,
         .prepare =
             [](SampleModel& sample) {
                 sample.site->offer(SiteClient::appVersionPath,
                                    SiteDocuments::appVersion(u"1.2.3"_qs));
             },
         .open =
             [](const WorkbenchWindow& window) {
                 window.awaited(u"获取更新"_qs, QAccessible::Button);
             }},
        {.name = u"not saved"_qs, .prepare = failToSave, .act = keep(u"a"_qs)},
        {.name = u"no storage"_qs,
         .prepare = [](SampleModel& sample) { sample.hasRepository = false; },
         .act = keep(u"a"_qs)},
        {.name = u"not read"_qs,
         .prepare =
             [](SampleModel& sample) {
                 sample.files.readFailure = FileError::fromSystemError(EACCES);
             }},
    };
}

void addRows()
{
    QTest::addColumn<Stop>("stop");
    for (const auto& stop : stops()) {
        QTest::newRow(qPrintable(stop.name)) << stop;
    }
}

} // namespace ScreenTour
