// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringView>

/// Whether `left` sorts strictly before `right` code point by code point. UTF-16 order, which
/// QString compares by, differs beyond U+D7FF.
bool codePointLess(QStringView left, QStringView right);
