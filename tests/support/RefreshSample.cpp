// SPDX-License-Identifier: Apache-2.0

#include "RefreshSample.h"

namespace RefreshSample {

SampleModel make()
{
    SampleModel sample;
    sample.signals = {sampleSignal(u"old"_qs)};
    sample.retiredSignals = {sampleSignal(u"gone"_qs)};
    sample.selectionDays = {{u"2026-09-01"_qs, {u"old"_qs}, 3}};
    sample.packAsOf = shownAsOf;
    return sample;
}

InformationContent shownBy(const InformationModel& model)
{
    return {model.signals(), model.retiredSignals(), model.selectionDays(), model.packAsOf()};
}

} // namespace RefreshSample
