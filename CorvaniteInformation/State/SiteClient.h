// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SiteError.h"
#include "SiteReply.h"

#include <QCoroTask>
#include <QLatin1StringView>
#include <QString>
#include <QUrl>

#include <expected>

/// The one way from the program to the product site. Tests put their own in its place.
class SiteClient
{
public:
    using Answer = std::expected<SiteReply, SiteError>;

    /// The documents that the site publishes.
    static constexpr QLatin1StringView packPath{"/information-pack.json"};
    static constexpr QLatin1StringView retiredSignalsPath{"/retired-signals.json"};
    static constexpr QLatin1StringView appVersionPath{"/information-app-version.json"};

    virtual ~SiteClient() = default;

    /// In the form that addresses are compared in: lower case, an international name in ASCII.
    virtual QString host() const = 0;

    /// The address of a page of the site.
    /// @param path below the site's base URL
    virtual QUrl page(const QString& path) const = 0;

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
