// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileError.h"
#include "InformationSignal.h"
#include "InformationWorkspace.h"
#include "SelectionDay.h"
#include "SiteClient.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>

#include <optional>

/// The forms that cases share.
namespace VectorFixtures {

/// What a file operation that is to fail meets.
inline constexpr FileError injectedFailure{FileError::Reason::InputOutput};

/// The bytes of a document given as "text", "base64" or "parts"; nothing for "missing".
std::optional<QByteArray> document(const QJsonObject& doc);

/// The bytes of a document in a script: a text as it is, any other value as JSON.
QByteArray scriptDocument(const QJsonValue& doc);

/// What the site answers: null, or nothing, stands for a transport error. The status is 200 where
/// none is given; a null status is that of an answer that is not HTTP.
SiteClient::Answer siteAnswer(const QJsonValue& reply, const QByteArray& body);

/// A signal in its short form, everything left out filled with defaults.
InformationSignal shortSignal(const QJsonObject& shortForm);
QList<InformationSignal> shortSignals(const QJsonValue& shortForms);

SelectionDay selectionDay(const QJsonObject& day);
QList<SelectionDay> selectionDays(const QJsonValue& days);
QJsonArray toJson(const QList<SelectionDay>& days);

/// A workspace in file form; a missing version is the current one.
InformationWorkspace workspace(const QJsonObject& fileForm);
QJsonObject toJson(const InformationWorkspace& workspace);

QList<QString> strings(const QJsonValue& array);
QJsonArray toJson(const QList<QString>& texts);
QJsonArray ids(const QList<InformationSignal>& signals);

template <typename T>
QJsonValue orNull(const std::optional<T>& value)
{
    return value ? QJsonValue(*value) : QJsonValue(QJsonValue::Null);
}

} // namespace VectorFixtures
