// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "AppearancePortal.h"

#include <QPalette>

/// The application palette of a colour scheme that the desktop names; without one an empty palette,
/// which leaves the toolkit's own.
QPalette schemePalette(AppearancePortal::ColorScheme colorScheme);
