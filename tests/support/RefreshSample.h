// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SampleModel.h"

/// What a refresh meets: a model that shows the signal "old", the retired one "gone" and one day.
namespace RefreshSample {

inline const QString shownAsOf = u"2026-09-02T04:00:00Z"_qs;
/// A day later.
inline const QString laterAsOf = u"2026-09-03T04:00:00Z"_qs;

/// Where a refresh stores what it got.
inline const QString packFile = u"/support/Corvanite/Information/information-pack.json"_qs;
inline const QString retiredFile = u"/support/Corvanite/Information/retired-signals.json"_qs;

inline const QString failedNote = u"同步失败，继续使用当前内容"_qs;

/// What a refresh asks its site for.
inline const FakeSiteClient::Request packRequest{u"/information-pack.json"_qs, 1'500'000};
inline const FakeSiteClient::Request retiredRequest{u"/retired-signals.json"_qs, 16 * 1024 * 1024};

SampleModel make();

/// What the model shows now.
InformationContent shownBy(const InformationModel& model);

} // namespace RefreshSample
