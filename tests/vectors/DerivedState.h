// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationModel.h"

#include <QJsonObject>

/// Every derived member of the model that cases look at.
QJsonObject derivedState(const InformationModel& model);
