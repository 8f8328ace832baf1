// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationSignal.h"

#include <QHash>
#include <QList>
#include <QString>

/// The signals by id. A repeated id stops the program: whatever fills a list of signals keeps its
/// ids unique.
QHash<QString, InformationSignal> indexById(const QList<InformationSignal>& signals);

/// The same without copies: the list has to outlive it unchanged.
QHash<QString, const InformationSignal*> pointersById(const QList<InformationSignal>& signals);
