#pragma once

#include <QByteArray>

#include <optional>

/// An answer of the product site.
struct SiteReply
{
    QByteArray body;
    /// Of HTTP; nothing for an answer that is not HTTP.
    std::optional<int> status;

    friend bool operator==(const SiteReply&, const SiteReply&) = default;
};
