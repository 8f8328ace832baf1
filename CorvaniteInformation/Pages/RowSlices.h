// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>

/// Long lists inside one place of a view. A view makes and drops a place as a whole, so what could
/// have any length is dealt out to several.
namespace RowSlices {

/// More than an edition brings to one place, and few enough to be made at once.
inline constexpr qsizetype longest = 12;

/// The rows in slices of at most `longest`, in their order; of no rows one slice, an empty one.
template <typename Row>
QList<QList<Row>> of(const QList<Row>& rows)
{
    QList<QList<Row>> slices{rows.first(qMin(rows.size(), longest))};
    for (qsizetype begin = longest; begin < rows.size(); begin += longest) {
        slices.append(rows.sliced(begin, qMin(rows.size() - begin, longest)));
    }
    return slices;
}

} // namespace RowSlices
