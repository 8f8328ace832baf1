#pragma once

#include "InformationProjection.h"
#include "InformationSeed.h"
#include "InformationWorkspaceCoding.h"

/// The bytes of a workspace with something in every place but the first card's, and longer than
/// some pages of a file system.
inline QByteArray storedWorkspace()
{
    const std::chrono::sys_seconds keptAt{std::chrono::seconds(1'788'000'000)};
    const QList<InformationSignal> cards = InformationSeed::signals().sliced(1);
    InformationWorkspace workspace;
    for (const InformationSignal& card : cards) {
        workspace.setKept(true, card, keptAt);
        workspace.saved.at(card.id).note = u"很长的备注，"_qs.repeated(100);
        workspace.markSeen(card);
    }
    workspace.hidden = {InformationProjection::versionKey(cards.first())};
    workspace.reducedLanes = {cards.first().lane};
    workspace.customSources = {{QUuid::createUuid(), u"https://somewhere.example/feed"_qs, keptAt}};
    return InformationWorkspaceCoding::encode(workspace);
}
