// SPDX-License-Identifier: Apache-2.0

#include "FreeTypeOutlines.h"

#include <QtGlobal>

#include <dlfcn.h>
#include <freetype/freetype.h>

namespace {

int takenApart = 0;

} // namespace

int FreeTypeOutlines::takenApartDuring(const std::function<void()>& work)
{
    takenApart = 0;
    work();
    return takenApart;
}

// The linker puts it in the place of FreeType's own, which it calls.
extern "C" Q_DECL_EXPORT FT_Error FT_Load_Glyph(FT_Face face, FT_UInt glyph, FT_Int32 flags)
{
    static const auto ofFreeType =
        reinterpret_cast<decltype(&FT_Load_Glyph)>(dlsym(RTLD_NEXT, "FT_Load_Glyph"));
    ++takenApart;
    return ofFreeType(face, glyph, flags);
}
