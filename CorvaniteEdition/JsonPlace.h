// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QAnyStringView>
#include <QString>

/// JSON paths: "$" is the document.
namespace JsonPlace {

inline const QString root = u"$"_qs;

/// "$.signals" of "$" and "signals".
QString member(const QString& object, QAnyStringView key);

/// "$.signals[3]" of "$.signals" and 3.
QString element(const QString& list, qsizetype index);

} // namespace JsonPlace
