// SPDX-License-Identifier: Apache-2.0

#include "BodyLength.h"

bool BodyLength::isCutShort(std::optional<qint64> announced, const QByteArray& encoding,
                            qint64 received)
{
    return announced && encoding.isEmpty() && received < *announced;
}
