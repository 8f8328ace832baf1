// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

/// Documents as the product site publishes them, in their shortest valid form.
namespace SiteDocuments {

QJsonArray signals(const QStringList& ids);

/// @param days the dates of its selection history
QByteArray pack(const QString& asOf, const QStringList& ids, const QStringList& days = {});

QByteArray retired(const QStringList& ids);

/// A version document that offers the version from corvanite.example, with some of its values
/// changed.
QByteArray appVersion(const QString& version, const QJsonObject& changes = {});

} // namespace SiteDocuments
