// SPDX-License-Identifier: Apache-2.0

#include "Finding.h"

#include "TerminalText.h"

QString Finding::line() const
{
    const QString severityText = severity == Severity::Error ? u"错误"_qs : u"提示"_qs;
    const QString where = place.isEmpty() ? document : document + u':' + place;
    return TerminalText::of(u"%1: %2：%3"_qs.arg(where, severityText, text));
}
