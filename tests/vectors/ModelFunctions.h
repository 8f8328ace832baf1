#pragma once

#include "VectorFunctions.h"

/// The application model's cases: its derived members and its actions.
void addModelFunctions(VectorFunctions& functions);
