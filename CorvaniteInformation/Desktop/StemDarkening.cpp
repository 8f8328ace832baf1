// SPDX-License-Identifier: Apache-2.0

#include "StemDarkening.h"

#include <freetype/ftmodapi.h>
#include <private/qfontengine_ft_p.h>

void StemDarkening::switchOff()
{
    // Qt sets the property for its own FreeType, over that of the environment, and has no other
    // way to it.
    const FT_Bool withoutDarkening = true;
    FT_Property_Set(qt_getFreetype(), "cff", "no-stem-darkening", &withoutDarkening);
}
