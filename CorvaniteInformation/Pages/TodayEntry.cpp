// SPDX-License-Identifier: Apache-2.0

#include "TodayEntry.h"

SignalCardRow TodayEntry::card() const
{
    const auto* const card = std::get_if<Card>(&content);
    return card ? SignalCardRow::from(card->signal, card->standing, card->relativeLabel)
                : SignalCardRow();
}

RailLineRow TodayEntry::rail() const
{
    const auto* const line = std::get_if<RailLineRow>(&content);
    return line ? *line : RailLineRow();
}

std::pair<int, QString> TodayEntry::key() const
{
    QString signalId;
    if (const auto* const card = std::get_if<Card>(&content)) {
        signalId = card->signal.id;
    } else if (const auto* const line = std::get_if<RailLineRow>(&content)) {
        signalId = line->signalId;
    }
    return {static_cast<int>(kind), signalId};
}
