// SPDX-License-Identifier: Apache-2.0

#include "KeptRow.h"

#include "OpenableAddress.h"
#include "WorkbenchTexts.h"

KeptRow KeptRow::from(const InformationSignal& signal)
{
    KeptRow row;
    row.itemId = signal.id;
    row.title = signal.title;
    row.status =
        signal.source + u" · "_qs + WorkbenchTexts::followText(signal.followTarget.updateMode);
    row.originalURL = signal.originalURL;
    return row;
}

KeptRow KeptRow::from(const CustomInformationSource& source)
{
    KeptRow row;
    row.itemId = source.id.toString(QUuid::WithoutBraces);
    row.custom = true;
    row.title = source.input;
    row.status = u"已收下 · 这个来源尚未接入更新"_qs;
    return row;
}

QString KeptRow::address() const
{
    return OpenableAddress::from(originalURL);
}
