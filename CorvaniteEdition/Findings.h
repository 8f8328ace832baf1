// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Finding.h"

#include <QList>

#include <utility>

/// Collects what is found in one document.
class Findings
{
public:
    explicit Findings(QString document) : m_document(std::move(document)) {}

    void error(const QString& place, const QString& text)
    {
        m_list.append({Finding::Severity::Error, m_document, place, text});
    }

    void hint(const QString& place, const QString& text)
    {
        m_list.append({Finding::Severity::Hint, m_document, place, text});
    }

    /// In the order found.
    const QList<Finding>& list() const { return m_list; }

private:
    QString m_document;
    QList<Finding> m_list;
};
