// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <optional>

/// The components of a URI reference, as they stand in the text.
/// https://www.rfc-editor.org/rfc/rfc3986#appendix-B
struct UriComponents
{
    /// https://www.rfc-editor.org/rfc/rfc3986#section-3.2
    struct Authority
    {
        /// Without "@".
        std::optional<QString> userInfo;
        /// A name, an IPv4 address, or an address in brackets; its characters are not looked at.
        QString host;
        /// Without ":"; ASCII digits, or empty.
        std::optional<QString> port;

        friend bool operator==(const Authority&, const Authority&) = default;
    };

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

    /// Nothing without an authority and for one of another shape: with a second "@", a second ":"
    /// outside of brackets, or a port that is no number.
    std::optional<Authority> authorityParts() const;

    friend bool operator==(const UriComponents&, const UriComponents&) = default;
};
