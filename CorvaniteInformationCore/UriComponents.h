#pragma once

#include <QString>

#include <optional>

/// The components of a URI reference, as they stand in the text.
/// https://www.rfc-editor.org/rfc/rfc3986#appendix-B
struct UriComponents
{
    /// Without ":"; nothing where the text does not begin with a well-formed scheme.
    std::optional<QString> scheme;
    /// Without "//".
    std::optional<QString> authority;
    QString path;
    /// Without "?".
    std::optional<QString> query;
    /// Without "#".
    std::optional<QString> fragment;

    /// Every text has components, and joined again they are the text.
    static UriComponents of(const QString& text);

    friend bool operator==(const UriComponents&, const UriComponents&) = default;
};
