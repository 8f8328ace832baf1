// SPDX-License-Identifier: Apache-2.0

#include "DraftPack.h"
#include "FeedReader.h"
#include "FuzzTarget.h"
#include "InformationPackSync.h"
#include "Invariant.h"

#include <QSet>

namespace {

/// 2026-08-28T04:00:00Z.
constexpr qint64 now = 1'787'889'600'000;

void checkDraft(const Feed& feed)
{
    const auto pack = InformationPackSync::parse(DraftPack::of({feed}, now));
    if (!pack) {
        using Kind = InformationPackSync::SyncError::Kind;
        invariant(pack.error().kind == (feed.entries.isEmpty() ? Kind::EmptyPack : Kind::TooLarge),
                  "a draft is a pack");
        return;
    }
    QSet<QString> ids;
    for (const auto& signal : pack->signals) {
        invariant(!signal.id.isEmpty() && !ids.contains(signal.id), "each draft has an id");
        ids.insert(signal.id);
        invariant(signal.why.isEmpty() && signal.caveat.isEmpty(),
                  "what only a person can say is left to one");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString file = u"feed"_qs;
    const auto feed = FeedReader::read(file, inputBytes(data, size));
    if (feed) {
        checkDraft(*feed);
    } else {
        invariant(feed.error().document == file && !feed.error().text.isEmpty(),
                  "a broken feed is told");
    }
    return 0;
}
