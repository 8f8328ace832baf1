// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

/// Appends the number as "%0<width>d" writes it.
void appendPadded(QString& text, int number, qsizetype width);
