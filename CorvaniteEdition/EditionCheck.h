// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "EditionDocument.h"
#include "Finding.h"

#include <QList>

/// What a curator should mend, or look at, before documents are published.
namespace EditionCheck {

/// Documents given together are checked against each other: retired signals may be named by the
/// pack's history, and no id may be in both.
/// @param siteHost the host that the program takes downloads from
QList<Finding> check(const QList<EditionDocument>& documents, const QString& siteHost);

bool hasError(const QList<Finding>& findings);

} // namespace EditionCheck
