// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationWorkspaceCoding.h"
#include "ProgramStart.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QMap>

#include <functional>

/// What a reader can do, and see of it.
namespace ReaderActions {

using Act = std::function<void(InformationModel&)>;

/// By name. The card is the first one.
inline const QMap<QString, Act>& all()
{
    static const auto card = [](const InformationModel& model) {
        return model.signals().first().id;
    };
    static const QMap<QString, Act> actions{
        {u"keep"_qs, [](auto& model) { model.toggleKeep(card(model)); }},
        {u"remove"_qs, [](auto& model) { model.removeKept(card(model)); }},
        {u"note"_qs, [](auto& model) { model.updateNote(card(model), u"写下的备注"_qs); }},
        {u"see"_qs, [](auto& model) { model.markSeen(card(model)); }},
        {u"reduce"_qs, [](auto& model) { model.reduceSimilar(card(model)); }},
        {u"add"_qs, [](auto& model) { model.addSource(u"一句想跟踪的话"_qs); }},
        {u"add another"_qs, [](auto& model) { model.addSource(u"另一句想跟踪的话"_qs); }},
        {u"remove source"_qs,
         [](auto& model) { model.removeSource(model.workspace().customSources.first().id); }},
        {u"reset"_qs, [](auto& model) { model.resetPreferences(); }},
        {u"undo"_qs, [](auto& model) { model.undoLastAction(); }},
        {u"refresh"_qs, [](auto& model) { model.refreshPackFromSite(); }},
        {u"catch up"_qs, [](auto& model) { model.catchUpWithStorage(); }},
        {u"dismiss the error"_qs, [](auto& model) { model.dismissError(); }},
    };
    return actions;
}

inline QJsonObject seenIn(ProgramStart& program)
{
    const InformationModel& model = program.model();
    QJsonArray retired;
    for (const InformationSignal& signal : model.retiredSignals()) {
        retired.append(signal.id);
    }
    return {
        {u"standing"_qs, QVariant::fromValue(program.parts.instance().standing()).toString()},
        {u"error"_qs, model.errorText()},
        {u"receipt"_qs, model.receiptText()},
        {u"syncNote"_qs, model.packSyncNote().value_or(QString())},
        {u"packAsOf"_qs, model.packAsOf()},
        {u"retired"_qs, retired},
        {u"workspace"_qs, QString::fromUtf8(InformationWorkspaceCoding::encode(model.workspace()))},
    };
}

} // namespace ReaderActions
