// SPDX-License-Identifier: Apache-2.0

#include "DocumentShape.h"

#include "InformationEvidenceClass.h"
#include "InformationFollowUpdateMode.h"
#include "InformationLane.h"
#include "InformationSignalKind.h"

#include <algorithm>

namespace {

using Value = KeyShape::Value;

constexpr bool required = true;
constexpr bool optional = false;

constexpr QLatin1StringView operator""_key(const char* text, size_t length)
{
    return QLatin1StringView(text, static_cast<qsizetype>(length));
}

template <size_t Count>
constexpr ObjectShape shape(const KeyShape (&keys)[Count])
{
    return {keys, Count};
}

template <typename Enum>
bool isTokenOf(QStringView text)
{
    return fromRawValue<Enum>(text).has_value();
}

bool isEvidenceRole(QStringView text)
{
    return text == QLatin1StringView("business-fact") || text == QLatin1StringView("product-fact");
}

constexpr KeyShape localizedKeys[] = {
    {"zh"_key, Value::Text, optional},
    {"en"_key, Value::Text, optional},
};

constexpr KeyShape relatedSourceKeys[] = {
    {"label"_key, Value::Localized, optional},
    {"url"_key, Value::Text, required},
};

constexpr KeyShape timelineKeys[] = {
    {"date"_key, Value::Localized, optional},
    {"datetime"_key, Value::Text, required},
    {"summary"_key, Value::Localized, optional},
    {"source"_key, Value::Localized, optional},
};

constexpr KeyShape followTargetKeys[] = {
    {"id"_key, Value::Text, required},
    {"label"_key, Value::Localized, optional},
    {"scope"_key, Value::Localized, optional},
    {"url"_key, Value::Text, required},
    {"updateMode"_key, Value::Text, required, {}, isTokenOf<InformationFollowUpdateMode>},
    {"discoveryRef"_key, Value::Text, optional},
};

constexpr KeyShape evidenceKeys[] = {
    {"role"_key, Value::Text, required, {}, isEvidenceRole},
    {"observationRef"_key, Value::Text, required},
    {"changeRef"_key, Value::Text, required},
};

constexpr KeyShape ingestionKeys[] = {
    {"mode"_key, Value::Text, required},
    {"adapter"_key, Value::Text, required},
    {"evidenceClass"_key, Value::Text, required, {}, isTokenOf<InformationEvidenceClass>},
    {"observationRef"_key, Value::Text, optional},
    {"changeRef"_key, Value::Text, optional},
    {"supportingEvidence"_key, Value::Objects, optional, shape(evidenceKeys)},
};

constexpr KeyShape signalKeys[] = {
    {"id"_key, Value::Text, required},
    {"state"_key, Value::Text, required, {}, isTokenOf<InformationSignalKind>},
    {"lane"_key, Value::Text, required, {}, isTokenOf<InformationLane>},
    {"publishedAt"_key, Value::Text, optional},
    {"observedAt"_key, Value::Text, required},
    {"originalUrl"_key, Value::Text, required},
    {"relatedSources"_key, Value::Objects, optional, shape(relatedSourceKeys)},
    {"source"_key, Value::Localized, optional},
    {"title"_key, Value::Localized, required},
    {"summary"_key, Value::Localized, optional},
    {"updateSummary"_key, Value::Localized, optional},
    {"digest"_key, Value::Localized, optional},
    {"why"_key, Value::Localized, required},
    {"caveat"_key, Value::Localized, required},
    {"timeline"_key, Value::Objects, required, shape(timelineKeys)},
    {"followTarget"_key, Value::Object, required, shape(followTargetKeys)},
    {"ingestion"_key, Value::Object, required, shape(ingestionKeys)},
};

constexpr KeyShape dayKeys[] = {
    {"date"_key, Value::Text, required},
    {"focusSignalIds"_key, Value::Texts, required},
    {"totalShown"_key, Value::Integer, required},
};

constexpr KeyShape packKeys[] = {
    {"schemaVersion"_key, Value::Text, required},
    {"asOf"_key, Value::Text, required},
    {"checkedEntryCount"_key, Value::Integer, required},
    {"signals"_key, Value::Objects, required, shape(signalKeys)},
    {"selectionHistory"_key, Value::Objects, optional, shape(dayKeys)},
};

constexpr KeyShape retiredKeys[] = {
    {"schemaVersion"_key, Value::Text, optional},
    {"signals"_key, Value::Objects, required, shape(signalKeys)},
};

constexpr KeyShape notesKeys[] = {
    {"zh"_key, Value::Text, optional},
    {"en"_key, Value::Text, optional},
};

constexpr KeyShape appVersionKeys[] = {
    {"schemaVersion"_key, Value::Text, required},
    {"version"_key, Value::Text, required},
    {"build"_key, Value::Text, optional},
    {"downloadUrl"_key, Value::Text, required},
    {"sha256"_key, Value::Text, required},
    {"sizeBytes"_key, Value::Integer, optional},
    {"notes"_key, Value::Object, optional, shape(notesKeys)},
};

constexpr KeyShape sourceKeys[] = {
    {"id"_key, Value::Text, required},   {"name"_key, Value::Text, required},
    {"kind"_key, Value::Text, required}, {"take"_key, Value::Text, required},
    {"url"_key, Value::Text, required},
};

constexpr KeyShape registryKeys[] = {
    {"sources"_key, Value::Objects, required, shape(sourceKeys)},
};

} // namespace

const KeyShape* ObjectShape::end() const
{
    return keys + keyCount;
}

const KeyShape* ObjectShape::find(QStringView key) const
{
    const auto found =
        std::ranges::find_if(*this, [key](const KeyShape& member) { return member.key == key; });
    return found == end() ? nullptr : found;
}

ObjectShape DocumentShape::of(DocumentKind kind)
{
    switch (kind) {
    case DocumentKind::Pack:
        return shape(packKeys);
    case DocumentKind::RetiredList:
        return shape(retiredKeys);
    case DocumentKind::AppVersion:
        return shape(appVersionKeys);
    case DocumentKind::Registry:
        break;
    }
    return shape(registryKeys);
}

ObjectShape DocumentShape::localized()
{
    return shape(localizedKeys);
}
