// SPDX-License-Identifier: Apache-2.0

#include "FourSignals.h"

SampleModel fourSignals()
{
    SampleModel sample;
    sample.now = 1788220800.75;
    sample.signals = {sampleSignal(u"a"_qs), sampleSignal(u"b"_qs), sampleSignal(u"c"_qs),
                      sampleSignal(u"d"_qs)};
    sample.signals[1].lane = InformationLane::Workflow;
    sample.retiredSignals = {sampleSignal(u"old"_qs)};
    sample.selectionDays = {{u"2026-09-01"_qs, {u"a"_qs, u"old"_qs}, 4},
                            {u"2026-09-02"_qs, {u"b"_qs, u"gone"_qs}, 3}};
    sample.packAsOf = u"2026-09-02T04:00:00.000Z"_qs;
    return sample;
}
