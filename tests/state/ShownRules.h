// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationModel.h"
#include "RuleBook.h"

/// What must hold of what a model shows, whatever was done before.
namespace ShownRules {

/// @param workspace what is to be stored
void requireToday(const InformationModel& model, const InformationWorkspace& workspace,
                  RuleBook& rules);

/// @param card a live signal, of which the model says whether it is kept
void requireKept(const InformationModel& model, const InformationWorkspace& workspace,
                 const InformationSignal& card, RuleBook& rules);

} // namespace ShownRules
