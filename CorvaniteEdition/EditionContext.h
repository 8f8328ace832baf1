// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "EditionDocument.h"
#include "InformationSignal.h"

#include <QHash>
#include <QList>
#include <QString>

#include <optional>

/// What the documents that are checked together know of each other.
struct EditionContext
{
    /// Of the pack, where there is exactly one and its as-of is a time.
    std::optional<QString> asOf;
    /// By id; of a repeated one the first.
    QHash<QString, InformationSignal> packSignals;
    QHash<QString, InformationSignal> retiredSignals;
    bool hasRetiredList = false;

    /// Of documents that do not decode nothing is known.
    static EditionContext of(const QList<EditionDocument>& documents);
};
