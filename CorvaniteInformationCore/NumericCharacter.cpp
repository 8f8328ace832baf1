// SPDX-License-Identifier: Apache-2.0

#include "NumericCharacter.h"

#include <unicode/uchar.h>

bool isNumericCharacter(char32_t character)
{
    return u_getIntPropertyValue(static_cast<UChar32>(character), UCHAR_NUMERIC_TYPE) != U_NT_NONE;
}
