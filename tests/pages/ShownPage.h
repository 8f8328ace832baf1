// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SampleModel.h"

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

    Page* operator->() { return &m_page; }
    Page& operator*() { return m_page; }

private:
    Page m_page;
};
