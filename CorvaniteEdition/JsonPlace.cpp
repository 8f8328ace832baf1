// SPDX-License-Identifier: Apache-2.0

#include "JsonPlace.h"

QString JsonPlace::member(const QString& object, QAnyStringView key)
{
    return object + u'.' + key.toString();
}

QString JsonPlace::element(const QString& list, qsizetype index)
{
    return u"%1[%2]"_qs.arg(list).arg(index);
}
