// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationSignal.h"

#include <QStringList>

/// A card whose every text names its id and whose target is "target:" + id.
InformationSignal sampleSignal(const QString& id);

InformationSignal sampleSignal(const QString& id, const QString& target);

QStringList idsOf(const QList<InformationSignal>& signals);
