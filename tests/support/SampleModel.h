// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FakeSiteClient.h"
#include "InformationModel.h"
#include "MemoryFileManager.h"
#include "SampleSignal.h"

#include <memory>

/// Where the files of a `SampleModel` hold its workspace.
inline const QString workspacePath = u"/support/Corvanite/Information/workspace-v1.json"_qs;

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
    QList<SelectionDay> seedHistory;
    QString runningVersion = u"1.0.0"_qs;
    bool hasRepository = true;

    InformationContent shown() const;

    /// Puts a workspace into `files`, for the next model to begin with.
    void store(const InformationWorkspace& workspace);
    /// The workspace that `files` hold; a new one where they hold none.
    InformationWorkspace stored() const;

    /// A model over this, which has to outlive it.
    std::unique_ptr<InformationModel> make() { return make(shown(), *site, files); }
    /// The same with content, a site and files of the test's own.
    std::unique_ptr<InformationModel> make(const InformationContent& content, SiteClient& client,
                                           const InformationFileManager& fileManager);
};
