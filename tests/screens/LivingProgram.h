// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "DataFolder.h"
#include "FakeSiteClient.h"
#include "ProgramParts.h"
#include "WorkbenchWindow.h"

/// The whole program with its window, over a data folder, a clock and a site of the test's own. It
/// starts on a Sunday: on 1 November 2026 at six in Beijing.
class LivingProgram
{
public:
    /// The Monday's midnight in Beijing.
    static constexpr double weekEnd = 1793548800;

    InformationModel& model() { return *m_parts.model(); }
    const WorkbenchWindow& window() const { return m_window; }

    double now() const { return m_now; }
    void passTime(double seconds) { m_now += seconds; }

    /// As the window does when it becomes active.
    void catchUp() { m_parts.catchUp(); }

    /// The site publishes so many cards, one of them half an hour older than the other, and the
    /// reader asks for them by key.
    void sync(int cards);

    /// The reader's file as it is on the disk.
    QByteArray stored() const { return m_folder.content(DataFolder::workspace); }

    /// Lets the window forget what is not shown any more.
    void settle();

private:
    QByteArray nextPack(int cards);

    double m_now = weekEnd - 18 * 3600;
    int m_packs = 0;
    const DataFolder m_folder;
    FakeSiteClient m_site;
    ProgramParts m_parts{{.environment = m_folder.environment(),
                          .now = [this] { return m_now; },
                          .site = m_site,
                          .version = u"1.0.0"_qs}};
    WorkbenchWindow m_window{model()};
};
