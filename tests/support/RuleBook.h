// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

/// Rules that must hold, of which it remembers the first that was broken.
class RuleBook
{
public:
    /// @param rule a sentence on what is wrong where it does not hold
    void require(bool holds, const char* rule)
    {
        if (!holds && m_broken.isEmpty()) {
            m_broken = QString::fromUtf8(rule);
        }
    }

    /// Empty while all hold.
    const QString& broken() const { return m_broken; }

private:
    QString m_broken;
};
