// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SampleModel.h"
#include "WorkbenchWindow.h"

#include <functional>
#include <memory>

/// Every screen of the program in every state that shows something of its own. What the content
/// brings to them is written in Latin letters only.
namespace ScreenTour {

using Surface = InformationModel::Surface;

struct Stop
{
    QString name;
    /// Varies what the model is made of.
    std::function<void(SampleModel&)> prepare = [](SampleModel&) {};
    /// What the reader did before the window is looked at.
    std::function<void(InformationModel&)> act = [](InformationModel&) {};
    /// What the reader does in the window.
    std::function<void(const WorkbenchWindow&)> open = [](const WorkbenchWindow&) {};
};

/// A model and its window, at one stop of the tour. Its content has every kind of card, from "a"
/// on; "a" to "c" lead.
class Visit
{
public:
    explicit Visit(const Stop& stop, QSize size = {1120, 2400});

    SampleModel& sample() { return m_sample; }
    InformationModel& model() { return *m_model; }
    WorkbenchWindow& window() { return *m_window; }

private:
    SampleModel m_sample;
    std::unique_ptr<InformationModel> m_model;
    std::optional<WorkbenchWindow> m_window;
};

std::function<void(InformationModel&)> goTo(Surface surface);

QList<Stop> stops();

/// A test's data: a row for every stop.
void addRows();

} // namespace ScreenTour
