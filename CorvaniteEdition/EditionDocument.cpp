// SPDX-License-Identifier: Apache-2.0

#include "EditionDocument.h"

#include "InformationPackSync.h"
#include "InformationUpdateNotice.h"
#include "JsonPlace.h"
#include "TextPlace.h"

#include <QFileInfo>
#include <QJsonDocument>

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

namespace {

struct KindSign
{
    QLatin1StringView fileName;
    /// Members that no other document has.
    std::array<QLatin1StringView, 3> members;
    DocumentKind kind;
};

// A retired list has nothing that a pack has not, and comes last.
constexpr std::array kindSigns{
    KindSign{EditionDocument::packName,
             {QLatin1StringView("asOf"), QLatin1StringView("checkedEntryCount"),
              QLatin1StringView("selectionHistory")},
             DocumentKind::Pack},
    KindSign{EditionDocument::appVersionName,
             {QLatin1StringView("version"), QLatin1StringView("downloadUrl"),
              QLatin1StringView("sha256")},
             DocumentKind::AppVersion},
    KindSign{
        EditionDocument::registryName,
        {QLatin1StringView("sources"), QLatin1StringView("sources"), QLatin1StringView("sources")},
        DocumentKind::Registry},
    KindSign{
        EditionDocument::retiredName,
        {QLatin1StringView("signals"), QLatin1StringView("signals"), QLatin1StringView("signals")},
        DocumentKind::RetiredList},
};

std::optional<DocumentKind> kindOf(const QString& name, const QJsonObject& root)
{
    const auto named =
        std::ranges::find(kindSigns, QFileInfo(name).fileName(), &KindSign::fileName);
    if (named != kindSigns.end()) {
        return named->kind;
    }
    const auto shaped = std::ranges::find_if(kindSigns, [&](const KindSign& sign) {
        return std::ranges::any_of(sign.members,
                                   [&](QLatin1StringView key) { return root.contains(key); });
    });
    return shaped == kindSigns.end() ? std::nullopt : std::optional(shaped->kind);
}

} // namespace

qsizetype EditionDocument::maximumBytes(DocumentKind kind)
{
    switch (kind) {
    case DocumentKind::Pack:
        return InformationPackSync::maximumPackBytes;
    case DocumentKind::RetiredList:
        return 16 * 1024 * 1024;
    case DocumentKind::AppVersion:
        return 256 * 1024;
    case DocumentKind::Registry:
        break;
    }
    return std::numeric_limits<qsizetype>::max();
}

std::expected<EditionDocument, Finding> EditionDocument::read(const QString& name,
                                                              const QByteArray& bytes)
{
    const auto refusal = [&](const QString& place, const QString& text) {
        return std::unexpected(Finding{Finding::Severity::Error, name, place, text});
    };
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError) {
        return refusal(TextPlace::of(bytes, error.offset),
                       u"从这里起不是 JSON：请检查引号、逗号、括号和 UTF-8 编码"_qs);
    }
    if (!document.isObject()) {
        return refusal(JsonPlace::root, u"最外层不是对象：文档要以 { 开头"_qs);
    }
    const auto kind = kindOf(name, document.object());
    if (!kind) {
        return refusal(
            JsonPlace::root,
            u"认不出是哪种文档：要的是信息包、已退出名单、版本文档或信源登记，见 docs/formats"_qs);
    }
    return EditionDocument{.name = name, .bytes = bytes, .kind = *kind, .root = document.object()};
}
