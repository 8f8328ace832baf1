#pragma once

#include <QString>

#include <optional>

/// The parts of a URI's authority, as they stand in the text.
/// https://www.rfc-editor.org/rfc/rfc3986#section-3.2
struct UriAuthority
{
    /// Without "@".
    std::optional<QString> userInfo;
    /// A name, an IPv4 address, or an address in brackets.
    QString host;
    /// Without ":"; ASCII digits, or empty.
    std::optional<QString> port;

    /// Nothing for a text of another shape: with a second "@", a second ":" outside of brackets, or
    /// a port that is no number. The host's characters are not looked at.
    static std::optional<UriAuthority> of(const QString& text);

    friend bool operator==(const UriAuthority&, const UriAuthority&) = default;
};
