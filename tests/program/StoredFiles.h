// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "DataFolder.h"

#include <QJsonObject>

/// What a data folder holds; of custom sources, whose ids are random, all but the id.
struct StoredFiles
{
    QString workspace;
    QString previous;
    QString pack;
    QString retired;

    friend bool operator==(const StoredFiles&, const StoredFiles&) = default;

    static StoredFiles in(const DataFolder& folder)
    {
        return {withoutIds(folder.content(DataFolder::workspace)),
                withoutIds(folder.content(DataFolder::previous)),
                QString::fromUtf8(folder.content(DataFolder::pack)),
                QString::fromUtf8(folder.content(DataFolder::retired))};
    }

    QJsonObject toJson() const
    {
        return {{u"workspace"_qs, workspace},
                {u"previous"_qs, previous},
                {u"pack"_qs, pack},
                {u"retired"_qs, retired}};
    }

    static StoredFiles fromJson(const QJsonObject& files)
    {
        const auto file = [&files](const QString& name) { return files.value(name).toString(); };
        return {file(u"workspace"_qs), file(u"previous"_qs), file(u"pack"_qs), file(u"retired"_qs)};
    }

    static QString withoutIds(const QByteArray& document)
    {
        static const QRegularExpression id(u"[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}"_qs);
        return QString::fromUtf8(document).replace(id, u"ID"_qs);
    }
};
