// SPDX-License-Identifier: Apache-2.0

#include "VectorFixtures.h"
#include "VectorFunctions.h"
#include "WorkspaceLoading.h"

#include "InformationProjection.h"
#include "InformationWorkspaceCoding.h"
#include "InformationWorkspaceRepository.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <simdjson.h>

#include <string>

using namespace VectorFixtures;

namespace {

QJsonObject undecodable()
{
    return {{u"error"_qs, u"undecodable"_qs}};
}

std::chrono::sys_seconds timeOf(const QJsonValue& text)
{
    const qint64 milliseconds = InformationProjection::isoMilliseconds(text.toString()).value();
    return std::chrono::sys_seconds(std::chrono::seconds(milliseconds / 1000));
}

// Applies one operation; those that ask give their answer.
QJsonValue applied(const QJsonObject& operation, InformationWorkspace& workspace)
{
    const QString name = operation.value(QLatin1StringView("op")).toString();
    if (name == u"normalize") {
        workspace.normalize();
        return QJsonValue::Null;
    }
    const InformationSignal signal =
        shortSignal(operation.value(QLatin1StringView("signal")).toObject());
    if (name == u"setKept") {
        workspace.setKept(operation.value(QLatin1StringView("keep")).toBool(), signal,
                          timeOf(operation.value(QLatin1StringView("at"))));
        return QJsonValue::Null;
    }
    if (name == u"markSeen") {
        workspace.markSeen(signal);
        return QJsonValue::Null;
    }
    if (name == u"keeps") {
        return workspace.keeps(signal);
    }
    if (name == u"hasSeen") {
        return workspace.hasSeen(signal);
    }
    return u"no operation is called \"%1\""_qs.arg(name);
}

// The keys of every object in written order, inner objects first.
void collectKeys(simdjson::dom::element element, QJsonArray& objects)
{
    if (element.is_array()) {
        for (const simdjson::dom::element entry : element.get_array()) {
            collectKeys(entry, objects);
        }
    } else if (element.is_object()) {
        QJsonArray keys;
        for (const auto& member : element.get_object()) {
            keys.append(QString::fromStdString(std::string(member.key)));
            collectKeys(member.value, objects);
        }
        objects.append(keys);
    }
}

QJsonArray keyOrder(const QByteArray& document)
{
    simdjson::dom::parser parser;
    QJsonArray objects;
    collectKeys(parser.parse(document.constData(), static_cast<size_t>(document.size())), objects);
    return objects;
}

QJsonObject encoded(const InformationWorkspace& workspace)
{
    const QByteArray document = InformationWorkspaceCoding::encode(workspace);
    const QString escapedSlash = u"\\/"_qs;
    QJsonArray absent;
    if (!document.contains(escapedSlash.toUtf8())) {
        absent.append(escapedSlash);
    }
    return {{u"value"_qs, QJsonDocument::fromJson(document).object()},
            {u"keyOrder"_qs, keyOrder(document)},
            {u"contains"_qs, QJsonArray()},
            {u"mustNotContain"_qs, absent}};
}

} // namespace

QJsonObject loadedWorkspace(const std::optional<QByteArray>& document,
                            const QList<InformationSignal>& catalog)
{
    if (!document) {
        return {{u"ok"_qs, toJson(InformationWorkspace())}};
    }
    const auto decoded = InformationWorkspaceCoding::decode(*document);
    if (!decoded) {
        return undecodable();
    }
    const auto current = migrated(*decoded, catalog);
    if (!current) {
        return {{u"error"_qs, u"unsupportedVersion"_qs},
                {u"payload"_qs, current.error().version},
                {u"text"_qs, current.error().localizedDescription()}};
    }
    return {{u"ok"_qs, toJson(*current)}};
}

void addWorkspaceFunctions(VectorFunctions& functions)
{
    functions[u"workspaceDecode"_qs] = [](const QJsonObject& in) {
        const auto decoded = InformationWorkspaceCoding::decode(
            document(in.value(QLatin1StringView("doc")).toObject()).value());
        return decoded ? QJsonObject{{u"ok"_qs, toJson(*decoded)}} : undecodable();
    };
    functions[u"workspaceLoad"_qs] = [](const QJsonObject& in) {
        return loadedWorkspace(document(in.value(QLatin1StringView("doc")).toObject()),
                               shortSignals(in.value(QLatin1StringView("retired"))) +
                                   shortSignals(in.value(QLatin1StringView("signals"))));
    };
    functions[u"workspaceOps"_qs] = [](const QJsonObject& in) {
        InformationWorkspace state = workspace(in.value(QLatin1StringView("start")).toObject());
        QJsonArray results;
        for (const auto& operation : in.value(QLatin1StringView("ops")).toArray()) {
            results.append(applied(operation.toObject(), state));
        }
        return QJsonObject{{u"results"_qs, results}, {u"workspace"_qs, toJson(state)}};
    };
    functions[u"workspaceEncode"_qs] = [](const QJsonObject& in) {
        return encoded(workspace(in.value(QLatin1StringView("workspace")).toObject()));
    };
    functions[u"unsupportedVersionText"_qs] = [](const QJsonObject& in) {
        return InformationRepositoryError{
            .kind = InformationRepositoryError::Kind::UnsupportedVersion,
            .version = in.value(QLatin1StringView("version")).toInteger()}
            .localizedDescription();
    };
}
