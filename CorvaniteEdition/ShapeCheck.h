// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "EditionDocument.h"
#include "Findings.h"

/// What the members of a document lack by the table of its format. It names places; whether the
/// document is read at all, only the core's decoder says.
namespace ShapeCheck {

/// Missing members and members of a wrong type.
void findRefusals(const EditionDocument& document, Findings& findings);

/// Members that the format does not have, tokens that no vocabulary has, texts in English alone.
void findOddities(const EditionDocument& document, Findings& findings);

} // namespace ShapeCheck
