// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Dice.h"
#include "InformationWorkspace.h"

#include <QByteArray>

/// What a random walk finds on its disk, and what its site publishes.
namespace WalkDocuments {

constexpr int mostSources = 100;

QString sourceText(int number);

/// 3000 kept signals, most of which no pack holds any more.
InformationWorkspace workspace(std::chrono::sys_seconds now);

/// Another selection of the known signals in new versions, some of which share a target.
/// @param number of the pack: each is an hour younger than the one before
QByteArray pack(int number, Dice& dice);

} // namespace WalkDocuments
