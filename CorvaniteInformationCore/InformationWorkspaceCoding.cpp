// SPDX-License-Identifier: Apache-2.0

#include "InformationWorkspaceCoding.h"

#include "JsonReader.h"
#include "JsonWriter.h"
#include "StampText.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

using InformationWorkspaceCoding::DecodingError;

namespace {

namespace Key {
constexpr std::string_view version = "version";
constexpr std::string_view saved = "saved";
constexpr std::string_view following = "following";
constexpr std::string_view hidden = "hidden";
constexpr std::string_view reducedLanes = "reducedLanes";
constexpr std::string_view customSources = "customSources";
constexpr std::string_view seenTargets = "seenTargets";

constexpr std::string_view savedAt = "savedAt";
constexpr std::string_view saveReason = "saveReason";
constexpr std::string_view note = "note";

constexpr std::string_view id = "id";
constexpr std::string_view input = "input";
constexpr std::string_view createdAt = "createdAt";
} // namespace Key

// What a reader knows the keys' values as.
const std::array<std::pair<std::string_view, QStringView>, 13> namesForPeople{{
    {Key::version, u"版本号"},
    {Key::saved, u"收下的内容"},
    {Key::following, u"持续更新的对象"},
    {Key::hidden, u"收起的内容"},
    {Key::reducedLanes, u"减少的栏目"},
    {Key::customSources, u"自己添加的内容"},
    {Key::seenTargets, u"看过的内容"},
    {Key::savedAt, u"收下的时间"},
    {Key::saveReason, u"收下的理由"},
    {Key::note, u"备注"},
    {Key::id, u"添加内容的编号"},
    {Key::input, u"添加的链接或文字"},
    {Key::createdAt, u"添加的时间"},
}};

// A file without a version is of the oldest form.
constexpr qint64 versionWithoutKey = 1;

QString uuidText(const QUuid& uuid)
{
    return uuid.toString(QUuid::WithoutBraces).toUpper();
}

// Only what `uuidText` writes, in either letter case.
std::optional<QUuid> uuidFromText(const QString& text)
{
    const QUuid uuid = QUuid::fromString(text);
    return uuidText(uuid) == text.toUpper() ? std::optional(uuid) : std::nullopt;
}

std::chrono::sys_seconds readDate(const JsonReader::Object& object, std::string_view key)
{
    const auto date = StampText::read(object.string(key));
    if (!date) {
        object.refuse(key);
        return {};
    }
    return *date;
}

QUuid readUuid(const JsonReader::Object& object, std::string_view key)
{
    const auto uuid = uuidFromText(object.string(key));
    if (!uuid) {
        object.refuse(key);
        return {};
    }
    return *uuid;
}

InformationWorkspace::SavedMap readSaved(const JsonReader::Object& workspace)
{
    InformationWorkspace::SavedMap saved;
    if (const auto entries = workspace.optionalObject(Key::saved)) {
        entries->forEachMember([&saved](const QString& id, const JsonReader::Object& entry) {
            // They are stored in the order of their ids.
            saved.insert_or_assign(saved.end(), id,
                                   SavedInformation{.savedAt = readDate(entry, Key::savedAt),
                                                    .saveReason = entry.string(Key::saveReason),
                                                    .note = entry.string(Key::note)});
        });
    }
    return saved;
}

QList<InformationLane> readLanes(const JsonReader::Object& workspace)
{
    QList<InformationLane> lanes;
    for (const QString& token : workspace.optionalStrings(Key::reducedLanes)) {
        const auto lane = fromRawValue<InformationLane>(token);
        if (!lane) {
            workspace.refuse(Key::reducedLanes);
            return {};
        }
        lanes.append(*lane);
    }
    return lanes;
}

CustomInformationSource readCustomSource(const JsonReader::Object& source)
{
    return {.id = readUuid(source, Key::id),
            .input = source.string(Key::input),
            .createdAt = readDate(source, Key::createdAt)};
}

InformationWorkspace readWorkspace(const JsonReader::Object& workspace)
{
    return {
        .version = workspace.optionalInteger(Key::version).value_or(versionWithoutKey),
        .saved = readSaved(workspace),
        .following = workspace.optionalStrings(Key::following),
        .hidden = workspace.optionalStrings(Key::hidden),
        .reducedLanes = readLanes(workspace),
        .customSources = workspace.optionalList(Key::customSources, readCustomSource),
        .seenTargets = workspace.optionalStrings(Key::seenTargets),
    };
}

QString quotedName(const QString& key)
{
    const auto known = std::ranges::find_if(namesForPeople, [&key](const auto& entry) {
        return key == QLatin1StringView(entry.first);
    });
    const QString name = known == namesForPeople.end() ? key : known->second.toString();
    return u'“' + name + u'”';
}

DecodingError decodingError(const JsonReader::Error& error)
{
    switch (error.kind) {
    case JsonReader::Error::Kind::NotJson:
        return {QStringLiteral("信息资料库文件已损坏或不完整。")};
    case JsonReader::Error::Kind::MissingKey:
        return {QStringLiteral("信息资料库文件里缺少") + quotedName(error.key) +
                QStringLiteral("。")};
    case JsonReader::Error::Kind::InvalidValue:
        if (error.key.isEmpty()) {
            return {QStringLiteral("信息资料库文件里不是信息工作台的内容。")};
        }
        return {QStringLiteral("信息资料库文件里的") + quotedName(error.key) +
                QStringLiteral("无法识别。")};
    }
    std::unreachable();
}

void writeTexts(JsonWriter& writer, std::string_view key, const QList<QString>& texts)
{
    writer.key(key);
    writer.beginArray();
    for (const QString& text : texts) {
        writer.string(text);
    }
    writer.endArray();
}

void writeText(JsonWriter& writer, std::string_view key, const QString& text)
{
    writer.key(key);
    writer.string(text);
}

void writeCustomSources(JsonWriter& writer, const QList<CustomInformationSource>& sources)
{
    writer.key(Key::customSources);
    writer.beginArray();
    for (const CustomInformationSource& source : sources) {
        writer.beginObject();
        writeText(writer, Key::createdAt, StampText::of(source.createdAt));
        writeText(writer, Key::id, uuidText(source.id));
        writeText(writer, Key::input, source.input);
        writer.endObject();
    }
    writer.endArray();
}

void writeLanes(JsonWriter& writer, const QList<InformationLane>& lanes)
{
    writer.key(Key::reducedLanes);
    writer.beginArray();
    for (const InformationLane lane : lanes) {
        writer.string(QString(rawValue(lane)));
    }
    writer.endArray();
}

void writeSaved(JsonWriter& writer, const InformationWorkspace::SavedMap& saved)
{
    writer.key(Key::saved);
    writer.beginObject();
    for (const auto& [id, entry] : saved) {
        writer.key(id);
        writer.beginObject();
        writeText(writer, Key::note, entry.note);
        writeText(writer, Key::saveReason, entry.saveReason);
        writeText(writer, Key::savedAt, StampText::of(entry.savedAt));
        writer.endObject();
    }
    writer.endObject();
}

} // namespace

std::expected<InformationWorkspace, DecodingError>
InformationWorkspaceCoding::decode(const QByteArray& document)
{
    JsonReader reader(document);
    InformationWorkspace workspace = readWorkspace(reader.root());
    if (reader.error()) {
        return std::unexpected(decodingError(*reader.error()));
    }
    workspace.normalize();
    return workspace;
}

// Each object's members in ascending order of their keys.
QByteArray InformationWorkspaceCoding::encode(const InformationWorkspace& workspace)
{
    JsonWriter writer;
    writer.beginObject();
    writeCustomSources(writer, workspace.customSources);
    writeTexts(writer, Key::following, workspace.following);
    writeTexts(writer, Key::hidden, workspace.hidden);
    writeLanes(writer, workspace.reducedLanes);
    writeSaved(writer, workspace.saved);
    writeTexts(writer, Key::seenTargets, workspace.seenTargets);
    writer.key(Key::version);
    writer.integer(workspace.version);
    writer.endObject();
    return writer.document();
}
