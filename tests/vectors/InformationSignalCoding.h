// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationSignal.h"

#include <QJsonObject>

#include <optional>

/// The JSON form of a signal and of the records in it: the keys are the field names, vocabularies
/// are written as their tokens. Packs have another form.
///
/// `Record` is `InformationSignal`, `InformationFollowTarget`, `InformationIngestion`,
/// `InformationSupportingEvidence`, `InformationTimelineEvent` or `InformationRelatedSource`.
namespace InformationSignalCoding {

/// Absent fields are left out.
template <typename Record>
QJsonObject encode(const Record& record);

/// Nothing when a key other than an optional field's is missing, a value has another type, or a
/// token is unknown. An optional field may be missing or null.
template <typename Record>
std::optional<Record> decode(const QJsonObject& object);

} // namespace InformationSignalCoding
