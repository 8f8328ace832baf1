// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <functional>

/// The font families of the program, picked once from those installed. They are asked for by name,
/// since the desktop's default for Chinese text depends on the locale and is often Japanese.
class FontFamilies
{
public:
    using IsInstalled = std::function<bool(const QString& family)>;

    /// Picks from the families of this machine.
    FontFamilies();
    FontFamilies(const IsInstalled& isInstalled, const QString& systemFamily);

    const QString& sans() const { return m_sans; }
    /// For titles; the sans family where no serif one for Chinese is installed.
    const QString& serif() const { return m_serif; }

private:
    QString m_sans;
    QString m_serif;
};
