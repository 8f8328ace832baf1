// SPDX-License-Identifier: Apache-2.0

#include "FontFamilies.h"

#include <QFontDatabase>

#include <algorithm>

namespace {

QString firstInstalled(const QStringList& families, const FontFamilies::IsInstalled& isInstalled,
                       const QString& otherwise)
{
    const auto found = std::ranges::find_if(families, isInstalled);
    return found == families.cend() ? otherwise : *found;
}

} // namespace

FontFamilies::FontFamilies()
    : FontFamilies([installed = QFontDatabase::families()](
                       const QString& family) { return installed.contains(family); },
                   QFontDatabase::systemFont(QFontDatabase::GeneralFont).family())
{
}

FontFamilies::FontFamilies(const IsInstalled& isInstalled, const QString& systemFamily)
    : m_sans(firstInstalled({u"Noto Sans CJK SC"_qs, u"Source Han Sans SC"_qs, u"PingFang SC"_qs,
                             u"Microsoft YaHei"_qs},
                            isInstalled, systemFamily)),
      m_serif(firstInstalled({u"Noto Serif CJK SC"_qs, u"Source Han Serif SC"_qs, u"Songti SC"_qs},
                             isInstalled, m_sans))
{
}
