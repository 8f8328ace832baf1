// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationPackSnapshot.h"

#include <QByteArray>
#include <QList>

#include <optional>

/// The JSON form of packs and of retired lists, described in docs/formats/information-pack.md and
/// retired-signals.md. Unknown tokens and texts without Chinese have their fallbacks there.
namespace InformationPackCoding {

/// Nothing when the document does not decode; schema and content are not judged.
std::optional<InformationPackSnapshot> decode(const QByteArray& document);

/// A retired list decoded like the signals of a pack; nothing when it does not decode.
std::optional<QList<InformationSignal>> decodeRetired(const QByteArray& document);

} // namespace InformationPackCoding
