// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

/// One thing that a curator should know of a document: where it stands, what is wrong and what to
/// do, in Chinese.
struct Finding
{
    enum class Severity {
        /// The edition must not be published so.
        Error,
        /// Worth a look; may be meant.
        Hint
    };

    Severity severity;
    /// The document's name as the curator gave it.
    QString document;
    /// A JSON path such as "$.signals[3].why", a line and column, or empty for the whole document.
    QString place;
    QString text;

    /// One line: document, place, severity, text.
    QString line() const;

    friend bool operator==(const Finding&, const Finding&) = default;
};
