// SPDX-License-Identifier: Apache-2.0

#include "LetterWidths.h"

#include <QFont>

#include <freetype/ftadvanc.h>
#include <hb.h>
#include <private/qfont_p.h>
#include <private/qfontengine_ft_p.h>

namespace {

/// In 64ths of a pixel, as Qt has it of the outline.
hb_position_t widthInTable(hb_font_t*, void* engineOfFont, hb_codepoint_t letter, void*)
{
    auto* const engine = static_cast<QFontEngineFT*>(engineOfFont);
    FT_Fixed width = 0;
    FT_Get_Advance(engine->lockFace(), letter, FT_LOAD_TARGET_LIGHT, &width);
    engine->unlockFace();
    return static_cast<hb_position_t>(width >> 10);
}

hb_font_funcs_t* tableFunctions()
{
    static auto* const functions = [] {
        auto* const made = hb_font_funcs_create();
        hb_font_funcs_set_glyph_h_advance_func(made, widthInTable, nullptr, nullptr);
        return made;
    }();
    return functions;
}

/// The engine that draws the letters of a font, where their widths are those of its table.
QFontEngineFT* engineWithTable(const QFont& font)
{
    auto* const engines = QFontPrivate::get(font)->engineForScript(QChar::Script_Han);
    if (engines->type() != QFontEngine::Multi) {
        return nullptr;
    }
    auto* const first = static_cast<QFontEngineMulti*>(engines)->engine(0);
    if (first->type() != QFontEngine::Freetype) {
        return nullptr;
    }
    auto* const engine = static_cast<QFontEngineFT*>(first);
    const FT_Face face = engine->non_locked_face();
    const bool hasTable = FT_IS_SFNT(face) && FT_IS_SCALABLE(face) && engine->synthesized() == 0 &&
                          engine->supportsHorizontalSubPixelPositions();
    return hasTable ? engine : nullptr;
}

} // namespace

void LetterWidths::readFromTable(const QFont& font)
{
    auto* const engine = engineWithTable(font);
    auto* const ofQt = engine ? static_cast<hb_font_t*>(engine->harfbuzzFont()) : nullptr;
    if (!ofQt || hb_font_get_parent(ofQt) != hb_font_get_empty()) {
        return;
    }
    auto* const byTable = hb_font_create_sub_font(ofQt);
    hb_font_set_funcs(byTable, tableFunctions(), engine, nullptr);
    engine->font_ = QFontEngine::Holder(
        byTable, [](void* made) { hb_font_destroy(static_cast<hb_font_t*>(made)); });
}
