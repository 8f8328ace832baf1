// SPDX-License-Identifier: Apache-2.0

#include "InformationPackCoding.h"

#include "JsonReader.h"

#include <string_view>
#include <utility>

namespace {

using Object = JsonReader::Object;

/// The keys of a document.
namespace Key {

constexpr std::string_view schemaVersion = "schemaVersion";
constexpr std::string_view asOf = "asOf";
constexpr std::string_view checkedEntryCount = "checkedEntryCount";
constexpr std::string_view signalList = "signals";
constexpr std::string_view selectionHistory = "selectionHistory";

constexpr std::string_view id = "id";
constexpr std::string_view state = "state";
constexpr std::string_view lane = "lane";
constexpr std::string_view publishedAt = "publishedAt";
constexpr std::string_view observedAt = "observedAt";
constexpr std::string_view originalUrl = "originalUrl";
constexpr std::string_view relatedSources = "relatedSources";
constexpr std::string_view source = "source";
constexpr std::string_view title = "title";
constexpr std::string_view summary = "summary";
constexpr std::string_view updateSummary = "updateSummary";
constexpr std::string_view digest = "digest";
constexpr std::string_view why = "why";
constexpr std::string_view caveat = "caveat";
constexpr std::string_view timeline = "timeline";
constexpr std::string_view followTarget = "followTarget";
constexpr std::string_view ingestion = "ingestion";

constexpr std::string_view zh = "zh";
constexpr std::string_view en = "en";

constexpr std::string_view label = "label";
constexpr std::string_view url = "url";
constexpr std::string_view date = "date";
constexpr std::string_view datetime = "datetime";
constexpr std::string_view scope = "scope";
constexpr std::string_view updateMode = "updateMode";
constexpr std::string_view discoveryRef = "discoveryRef";
constexpr std::string_view mode = "mode";
constexpr std::string_view adapter = "adapter";
constexpr std::string_view evidenceClass = "evidenceClass";
constexpr std::string_view observationRef = "observationRef";
constexpr std::string_view changeRef = "changeRef";
constexpr std::string_view supportingEvidence = "supportingEvidence";
constexpr std::string_view role = "role";
constexpr std::string_view focusSignalIds = "focusSignalIds";
constexpr std::string_view totalShown = "totalShown";

} // namespace Key

constexpr QLatin1StringView businessFactRole("business-fact");

struct LocalizedText
{
    std::optional<QString> zh;
    std::optional<QString> en;

    /// Chinese, even if empty, before English.
    QString picked() && { return zh ? *std::move(zh) : std::move(en).value_or(QString()); }
};

LocalizedText readLocalized(const Object& object)
{
    return {.zh = object.optionalString(Key::zh), .en = object.optionalString(Key::en)};
}

LocalizedText readOptionalLocalized(const Object& object, std::string_view key)
{
    const auto localized = object.optionalObject(key);
    return localized ? readLocalized(*localized) : LocalizedText();
}

// A name or the like, of which the document has few kinds.
QString readLabel(const Object& object, std::string_view key)
{
    const auto localized = object.optionalObject(key);
    if (!localized) {
        return {};
    }
    return LocalizedText{.zh = localized->optionalRepeatedString(Key::zh),
                         .en = localized->optionalRepeatedString(Key::en)}
        .picked();
}

InformationRelatedSource readRelatedSource(const Object& object)
{
    return {
        .label = readLabel(object, Key::label),
        .url = object.repeatedString(Key::url),
    };
}

InformationTimelineEvent readTimelineEvent(const Object& object)
{
    return {
        .dateLabel = readLabel(object, Key::date),
        .date = object.repeatedString(Key::datetime),
        .summary = readLabel(object, Key::summary),
        .source = readLabel(object, Key::source),
    };
}

InformationFollowTarget readFollowTarget(const Object& object)
{
    return {
        .id = object.string(Key::id),
        .label = readLabel(object, Key::label),
        .scope = readLabel(object, Key::scope),
        .url = object.repeatedString(Key::url),
        .updateMode = fromRawValue<InformationFollowUpdateMode>(object.token(Key::updateMode))
                          .value_or(InformationFollowUpdateMode::SnapshotBaseline),
        .discoveryRef = object.optionalRepeatedString(Key::discoveryRef),
    };
}

InformationSupportingEvidence readSupportingEvidence(const Object& object)
{
    return {
        .role = object.token(Key::role) == businessFactRole
                    ? InformationSupportingEvidenceRole::BusinessFact
                    : InformationSupportingEvidenceRole::ProductFact,
        .observationRef = object.repeatedString(Key::observationRef),
        .changeRef = object.repeatedString(Key::changeRef),
    };
}

InformationIngestion readIngestion(const Object& object)
{
    // There is one mode: the key must hold a text, whichever.
    object.token(Key::mode);
    return {
        .mode = InformationIngestionMode::Editorial,
        .adapter = object.repeatedString(Key::adapter),
        .evidenceClass = fromRawValue<InformationEvidenceClass>(object.token(Key::evidenceClass))
                             .value_or(InformationEvidenceClass::CreatorSelfReport),
        .observationRef = object.optionalRepeatedString(Key::observationRef),
        .changeRef = object.optionalRepeatedString(Key::changeRef),
        .supportingEvidence = object.optionalList(Key::supportingEvidence, readSupportingEvidence),
    };
}

InformationSignal readSignal(const Object& object)
{
    return {
        .id = object.string(Key::id),
        .kind = fromRawValue<InformationSignalKind>(object.token(Key::state))
                    .value_or(InformationSignalKind::New),
        .lane = fromRawValue<InformationLane>(object.token(Key::lane))
                    .value_or(InformationLane::PlatformShift),
        .publishedAt = object.optionalString(Key::publishedAt),
        .observedAt = object.string(Key::observedAt),
        .originalURL = object.string(Key::originalUrl),
        .relatedSources = object.optionalList(Key::relatedSources, readRelatedSource),
        .source = readLabel(object, Key::source),
        .title = readLocalized(object.object(Key::title)).picked(),
        .summary = readOptionalLocalized(object, Key::summary).picked(),
        .updateSummary = readOptionalLocalized(object, Key::updateSummary).zh,
        .digest = readOptionalLocalized(object, Key::digest).zh,
        .why = readLocalized(object.object(Key::why)).picked(),
        .caveat = readLocalized(object.object(Key::caveat)).picked(),
        .timeline = object.list(Key::timeline, readTimelineEvent),
        .followTarget = readFollowTarget(object.object(Key::followTarget)),
        .ingestion = readIngestion(object.object(Key::ingestion)),
    };
}

SelectionDay readSelectionDay(const Object& object)
{
    return {
        .date = object.string(Key::date),
        .focusSignalIds = object.strings(Key::focusSignalIds),
        .totalShown = object.integer(Key::totalShown),
    };
}

InformationPackSnapshot readSnapshot(const Object& object)
{
    return {
        .schemaVersion = object.string(Key::schemaVersion),
        .asOf = object.string(Key::asOf),
        .checkedEntryCount = object.integer(Key::checkedEntryCount),
        .signals = object.list(Key::signalList, readSignal),
        .selectionDays = object.optionalList(Key::selectionHistory, readSelectionDay),
    };
}

} // namespace

std::optional<InformationPackSnapshot> InformationPackCoding::decode(const QByteArray& document)
{
    JsonReader reader(document);
    auto snapshot = readSnapshot(reader.root());
    return reader.error() ? std::nullopt : std::optional(std::move(snapshot));
}

std::optional<QList<InformationSignal>>
InformationPackCoding::decodeRetired(const QByteArray& document)
{
    JsonReader reader(document);
    const auto root = reader.root();
    root.optionalString(Key::schemaVersion);
    auto retired = root.list(Key::signalList, readSignal);
    return reader.error() ? std::nullopt : std::optional(std::move(retired));
}
