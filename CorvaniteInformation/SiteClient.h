#pragma once

#include "SiteError.h"
#include "SiteReply.h"

#include <QCoroTask>
#include <QString>

#include <expected>

/// The one way from the program to the product site. Tests put their own in its place.
class SiteClient
{
public:
    using Answer = std::expected<SiteReply, SiteError>;

    virtual ~SiteClient() = default;

    /// One plain GET. Every request ends: destroying the client ends those under way with
    /// `SiteError::Transport`.
    /// @param path below the site's base URL
    /// @param byteLimit how long the body may be, decoded; the first byte beyond ends the request
    virtual QCoro::Task<Answer> get(QString path, qsizetype byteLimit) = 0;

protected:
    SiteClient() = default;
    SiteClient(const SiteClient&) = delete;
    SiteClient& operator=(const SiteClient&) = delete;
};
