#pragma once

#include "FakeSiteClient.h"
#include "InformationModel.h"
#include "MemoryFileManager.h"
#include "SampleSignal.h"

#include <memory>

/// What a model is made of, to be varied by a test before it asks for the model.
struct SampleModel
{
    MemoryFileManager files;
    std::unique_ptr<FakeSiteClient> site = std::make_unique<FakeSiteClient>();
    /// 2026-09-02T02:00:00Z.
    double now = 1788314400;
    QList<InformationSignal> signals{sampleSignal(u"a"_qs), sampleSignal(u"b"_qs)};
    QList<InformationSignal> retiredSignals;
    QList<SelectionDay> selectionDays;
    QString packAsOf = u"2026-09-02T01:00:00.000Z"_qs;
    bool hasRepository = true;

    /// A model over this, which has to outlive it.
    std::unique_ptr<InformationModel> make()
    {
        return std::make_unique<InformationModel>(
            InformationModel::Collaborators{
                .fileManager = files,
                .now = [this] { return now; },
                .seedHistory = {},
                .site = *site,
                .runningVersion = u"1.0.0"_qs,
            },
            InformationContent(signals, retiredSignals, selectionDays, packAsOf),
            hasRepository ? std::optional(InformationWorkspaceRepository::live(files).value())
                          : std::nullopt);
    }
};
