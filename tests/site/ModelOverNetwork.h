// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "RefreshSample.h"
#include "SiteAnswers.h"

#include <memory>

/// The refresh sample's model over a site on the loopback address. It has no workspace, and its
/// version is 1.2.3.
class ModelOverNetwork
{
public:
    explicit ModelOverNetwork(
        std::unique_ptr<LoopbackSite> reachedSite = std::make_unique<LoopbackSite>(),
        NetworkSiteClient::Limits limits = SiteAnswers::patient);
    ~ModelOverNetwork();

    SampleModel sample = RefreshSample::make();
    /// Without it nobody answers at its address.
    std::unique_ptr<LoopbackSite> site;

    InformationModel& model() { return *m_model; }

    /// @param answer an empty one has no end
    void setAnswer(const QString& path, const LoopbackSite::Answer& answer);

    /// Refreshes, and waits for the end.
    void refresh();
    /// Asks for a newer build, and waits for the answer.
    void probe();
    /// As when the program quits.
    void quit();

    /// Whether the model shows what it did at first, and no file was written.
    bool isUntouched() const;

private:
    class CountingSiteClient;

    std::unique_ptr<CountingSiteClient> m_client;
    std::unique_ptr<InformationModel> m_model;
};
