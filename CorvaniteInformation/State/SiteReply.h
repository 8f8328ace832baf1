// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

#include <optional>

/// An answer of the product site.
struct SiteReply
{
    static constexpr int ok = 200;

    QByteArray body;
    /// Of HTTP; nothing for an answer that is not HTTP.
    std::optional<int> status;

    /// Whether the body is what was asked for; an answer that is not HTTP is taken as it is.
    bool isDocument() const { return status.value_or(ok) == ok; }

    friend bool operator==(const SiteReply&, const SiteReply&) = default;
};
