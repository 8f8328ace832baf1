// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SampleModel.h"
#include "SiteDocuments.h"

#include <utility>

/// A page over a model of its own.
template <typename Page>
class ShownPage
{
public:
    explicit ShownPage(SampleModel shownSample = {})
        : sample(std::move(shownSample)), model(sample.make())
    {
        m_page.setWorkbench(model.get());
    }

    SampleModel sample;
    const std::unique_ptr<InformationModel> model;

    /// Lets the model get a pack of a day later from its site.
    void sync(const QStringList& ids, const QStringList& days = {})
    {
        sample.site->offer(SiteClient::packPath,
                           SiteDocuments::pack(u"2026-09-03T04:00:00Z"_qs, ids, days));
        model->refreshPackFromSite();
    }

    Page* operator->() { return &m_page; }
    Page& operator*() { return m_page; }

private:
    Page m_page;
};
