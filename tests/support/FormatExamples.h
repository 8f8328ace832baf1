#pragma once

#include "EditedJson.h"

#include <QByteArray>
#include <QFile>
#include <QJsonDocument>

#include <initializer_list>
#include <utility>

/// A document of docs/formats/examples. Only for targets that are told its folder.
inline QByteArray formatExample(const QString& name)
{
    QFile file(QStringLiteral(FORMAT_EXAMPLES "/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline QByteArray examplePack()
{
    return formatExample(u"information-pack.json"_qs);
}

/// The example in one line, with values put in the places of others, or with undefined taken away.
inline QByteArray examplePackWith(std::initializer_list<std::pair<QString, QJsonValue>> edits)
{
    auto pack = QJsonDocument::fromJson(examplePack()).object();
    for (const auto& [path, value] : edits) {
        pack = editedJson(pack, path, value);
    }
    return QJsonDocument(pack).toJson(QJsonDocument::Compact);
}

inline QByteArray examplePackWith(const QString& path, const QJsonValue& value)
{
    return examplePackWith({{path, value}});
}
