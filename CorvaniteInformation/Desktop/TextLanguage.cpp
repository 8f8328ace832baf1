// SPDX-License-Identifier: Apache-2.0

#include "TextLanguage.h"

#include <QtGlobal>

#include <clocale>
#include <hb.h>

namespace {

hb_language_t chosen = HB_LANGUAGE_INVALID;

} // namespace

void TextLanguage::setChinese()
{
    chosen = hb_language_from_string("zh-Hans", -1);
}

// The linker puts it in the place of HarfBuzz's own: Qt 6.4 asks that for the language of whatever
// it lays out, and has no other way to it.
Q_DECL_EXPORT hb_language_t hb_language_get_default()
{
    return chosen ? chosen : hb_language_from_string(std::setlocale(LC_CTYPE, nullptr), -1);
}
