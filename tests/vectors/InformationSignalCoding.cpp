// SPDX-License-Identifier: Apache-2.0

#include "InformationSignalCoding.h"

#include <QJsonArray>

#include <tuple>
#include <type_traits>
#include <utility>

namespace {

template <typename Record, typename Value>
struct Field
{
    QLatin1StringView key;
    Value Record::* member;
};

/// The fields of a record, in both directions.
template <typename Record>
constexpr auto fields = nullptr;

template <>
constexpr auto fields<InformationRelatedSource> = std::tuple{
    Field{QLatin1StringView("label"), &InformationRelatedSource::label},
    Field{QLatin1StringView("url"), &InformationRelatedSource::url},
};

template <>
constexpr auto fields<InformationTimelineEvent> = std::tuple{
    Field{QLatin1StringView("dateLabel"), &InformationTimelineEvent::dateLabel},
    Field{QLatin1StringView("date"), &InformationTimelineEvent::date},
    Field{QLatin1StringView("summary"), &InformationTimelineEvent::summary},
    Field{QLatin1StringView("source"), &InformationTimelineEvent::source},
};

template <>
constexpr auto fields<InformationSupportingEvidence> = std::tuple{
    Field{QLatin1StringView("role"), &InformationSupportingEvidence::role},
    Field{QLatin1StringView("observationRef"), &InformationSupportingEvidence::observationRef},
    Field{QLatin1StringView("changeRef"), &InformationSupportingEvidence::changeRef},
};

template <>
constexpr auto fields<InformationIngestion> = std::tuple{
    Field{QLatin1StringView("mode"), &InformationIngestion::mode},
    Field{QLatin1StringView("adapter"), &InformationIngestion::adapter},
    Field{QLatin1StringView("evidenceClass"), &InformationIngestion::evidenceClass},
    Field{QLatin1StringView("observationRef"), &InformationIngestion::observationRef},
    Field{QLatin1StringView("changeRef"), &InformationIngestion::changeRef},
    Field{QLatin1StringView("supportingEvidence"), &InformationIngestion::supportingEvidence},
};

template <>
constexpr auto fields<InformationFollowTarget> = std::tuple{
    Field{QLatin1StringView("id"), &InformationFollowTarget::id},
    Field{QLatin1StringView("label"), &InformationFollowTarget::label},
    Field{QLatin1StringView("scope"), &InformationFollowTarget::scope},
    Field{QLatin1StringView("url"), &InformationFollowTarget::url},
    Field{QLatin1StringView("updateMode"), &InformationFollowTarget::updateMode},
    Field{QLatin1StringView("discoveryRef"), &InformationFollowTarget::discoveryRef},
};

template <>
constexpr auto fields<InformationSignal> = std::tuple{
    Field{QLatin1StringView("id"), &InformationSignal::id},
    Field{QLatin1StringView("kind"), &InformationSignal::kind},
    Field{QLatin1StringView("lane"), &InformationSignal::lane},
    Field{QLatin1StringView("publishedAt"), &InformationSignal::publishedAt},
    Field{QLatin1StringView("observedAt"), &InformationSignal::observedAt},
    Field{QLatin1StringView("originalURL"), &InformationSignal::originalURL},
    Field{QLatin1StringView("relatedSources"), &InformationSignal::relatedSources},
    Field{QLatin1StringView("source"), &InformationSignal::source},
    Field{QLatin1StringView("title"), &InformationSignal::title},
    Field{QLatin1StringView("summary"), &InformationSignal::summary},
    Field{QLatin1StringView("updateSummary"), &InformationSignal::updateSummary},
    Field{QLatin1StringView("digest"), &InformationSignal::digest},
    Field{QLatin1StringView("why"), &InformationSignal::why},
    Field{QLatin1StringView("caveat"), &InformationSignal::caveat},
    Field{QLatin1StringView("timeline"), &InformationSignal::timeline},
    Field{QLatin1StringView("followTarget"), &InformationSignal::followTarget},
    Field{QLatin1StringView("ingestion"), &InformationSignal::ingestion},
};

template <typename Value>
concept Vocabulary = std::is_enum_v<Value>;

QJsonValue encodedValue(const QString& text)
{
    return text;
}

template <Vocabulary Value>
QJsonValue encodedValue(const Value& value)
{
    return QString(rawValue(value));
}

template <typename Record>
QJsonValue encodedValue(const Record& record)
{
    return InformationSignalCoding::encode(record);
}

template <typename Record>
QJsonValue encodedValue(const QList<Record>& records)
{
    QJsonArray array;
    for (const auto& record : records) {
        array.append(encodedValue(record));
    }
    return array;
}

template <typename Value>
void encodeField(QJsonObject& object, QLatin1StringView key, const Value& value)
{
    object.insert(key, encodedValue(value));
}

template <typename Value>
void encodeField(QJsonObject& object, QLatin1StringView key, const std::optional<Value>& value)
{
    if (value) {
        object.insert(key, encodedValue(*value));
    }
}

// Each gives false, and an unspecified value, for what does not decode.

bool decodeValue(const QJsonValue& json, QString& text)
{
    text = json.toString();
    return json.isString();
}

template <Vocabulary Value>
bool decodeValue(const QJsonValue& json, Value& value)
{
    const auto known = fromRawValue<Value>(json.toString());
    value = known.value_or(value);
    return json.isString() && known;
}

template <typename Record>
bool decodeValue(const QJsonValue& json, Record& record)
{
    auto decoded = InformationSignalCoding::decode<Record>(json.toObject());
    if (!json.isObject() || !decoded) {
        return false;
    }
    record = *std::move(decoded);
    return true;
}

template <typename Record>
bool decodeValue(const QJsonValue& json, QList<Record>& records)
{
    for (const auto& entry : json.toArray()) {
        if (!decodeValue(entry, records.emplaceBack())) {
            return false;
        }
    }
    return json.isArray();
}

template <typename Value>
bool decodeValue(const QJsonValue& json, std::optional<Value>& value)
{
    return json.isUndefined() || json.isNull() || decodeValue(json, value.emplace());
}

} // namespace

namespace InformationSignalCoding {

template <typename Record>
QJsonObject encode(const Record& record)
{
    QJsonObject object;
    std::apply(
        [&](const auto&... field) { (encodeField(object, field.key, record.*field.member), ...); },
        fields<Record>);
    return object;
}

template <typename Record>
std::optional<Record> decode(const QJsonObject& object)
{
    Record record{};
    const bool decoded = std::apply(
        [&](const auto&... field) {
            return (decodeValue(object.value(field.key), record.*field.member) && ...);
        },
        fields<Record>);
    return decoded ? std::optional(std::move(record)) : std::nullopt;
}

template QJsonObject encode(const InformationSignal&);
template QJsonObject encode(const InformationFollowTarget&);
template QJsonObject encode(const InformationIngestion&);
template QJsonObject encode(const InformationSupportingEvidence&);
template QJsonObject encode(const InformationTimelineEvent&);
template QJsonObject encode(const InformationRelatedSource&);

template std::optional<InformationSignal> decode(const QJsonObject&);
template std::optional<InformationFollowTarget> decode(const QJsonObject&);
template std::optional<InformationIngestion> decode(const QJsonObject&);
template std::optional<InformationSupportingEvidence> decode(const QJsonObject&);
template std::optional<InformationTimelineEvent> decode(const QJsonObject&);
template std::optional<InformationRelatedSource> decode(const QJsonObject&);

} // namespace InformationSignalCoding
