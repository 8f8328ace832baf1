// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "EditionFolder.h"

#include <QJsonArray>
#include <QJsonDocument>

/// The compiled-in edition as a folder, and editions made from it.
namespace SeedFolder {

inline EditionFolder read()
{
    return EditionFolder::read(QStringLiteral(SEED)).value();
}

/// The folder with its pack's members replaced.
inline EditionFolder withPack(const EditionFolder& folder, const QJsonObject& members)
{
    QJsonObject root = folder.pack->root;
    for (auto member = members.begin(); member != members.end(); ++member) {
        root.insert(member.key(), member.value());
    }
    EditionFolder changed = folder;
    changed.pack = EditionDocument::read(folder.pack->name, QJsonDocument(root).toJson()).value();
    return changed;
}

inline QJsonArray packSignals(const EditionFolder& folder)
{
    return folder.pack->root.value(u"signals").toArray();
}

/// A signal with members replaced.
inline QJsonObject with(const QJsonValue& signal, const QJsonObject& members)
{
    QJsonObject changed = signal.toObject();
    for (auto member = members.begin(); member != members.end(); ++member) {
        changed.insert(member.key(), member.value());
    }
    return changed;
}

} // namespace SeedFolder
