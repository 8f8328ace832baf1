// SPDX-License-Identifier: Apache-2.0

#include "RelatedSourceRow.h"

#include "OpenableAddress.h"

QList<RelatedSourceRow> RelatedSourceRow::listOf(const QList<InformationRelatedSource>& sources)
{
    QList<RelatedSourceRow> rows;
    rows.reserve(sources.size());
    for (const auto& source : sources) {
        RelatedSourceRow row;
        row.label = source.label;
        row.address = OpenableAddress::from(source.url);
        rows.append(row);
    }
    return rows;
}
