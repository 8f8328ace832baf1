// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationProjection.h"
#include "InformationSeed.h"
#include "InformationWorkspaceCoding.h"

/// The bytes of a workspace with something in every place but the first card's; with notes of so
/// many words, which make it longer than some pages of a file system.
inline QByteArray storedWorkspace(qsizetype words = 100)
{
    const std::chrono::sys_seconds keptAt{std::chrono::seconds(1'788'000'000)};
    const QList<InformationSignal> cards = InformationSeed::signals().sliced(1);
    InformationWorkspace workspace;
    for (const InformationSignal& card : cards) {
        workspace.setKept(true, card, keptAt);
        workspace.saved.at(card.id).note = u"很长的备注，"_qs.repeated(words);
        workspace.markSeen(card);
    }
    workspace.hidden = {InformationProjection::versionKey(cards.first())};
    workspace.reducedLanes = {cards.first().lane};
    workspace.customSources = {{QUuid::createUuid(), u"https://somewhere.example/feed"_qs, keptAt}};
    return InformationWorkspaceCoding::encode(workspace);
}
