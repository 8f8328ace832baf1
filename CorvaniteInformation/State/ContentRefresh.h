// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationContent.h"
#include "InformationFileManager.h"
#include "SiteClient.h"

#include <QCoroTask>
#include <QObject>
#include <QPointer>
#include <QString>

#include <optional>

/// Fetching the site's pack and, where it is newer than the content, storing it with the retired
/// list beside it. A failure changes neither content nor files.
namespace ContentRefresh {

/// How a refresh ended.
struct Outcome
{
    enum class Kind { Failed, UpToDate, Synced };

    Kind kind = Kind::Failed;
    /// The signals of the site's pack, unless it failed.
    qsizetype count = 0;
    /// The day of the site's pack, unless it failed.
    QString day = {};

    /// The sentence for the reader.
    QString note() const;

    friend bool operator==(const Outcome&, const Outcome&) = default;
};

struct Result
{
    Outcome outcome;
    /// What is to be shown from now on, where that has changed.
    std::optional<InformationContent> content = std::nullopt;
};

/// @param asker once it is gone, nothing more is fetched or stored
/// @param shown the content to compare with and to go on from
QCoro::Task<Result> run(QPointer<const QObject> asker, SiteClient& site,
                        const InformationFileManager& fileManager, InformationContent shown);

} // namespace ContentRefresh
