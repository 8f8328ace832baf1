// SPDX-License-Identifier: Apache-2.0

#include "VectorFunctions.h"

#include "InformationUpdateNotice.h"
#include "VectorFixtures.h"

#include <utility>

using namespace VectorFixtures;

namespace {

QString errorName(InformationUpdateNotice::ParseError::Kind kind)
{
    using Kind = InformationUpdateNotice::ParseError::Kind;
    switch (kind) {
    case Kind::WrongSchemaVersion:
        return u"wrongSchemaVersion"_qs;
    case Kind::MissingField:
        return u"missingField"_qs;
    case Kind::InvalidVersion:
        return u"invalidVersion"_qs;
    case Kind::UntrustedDownloadURL:
        return u"untrustedDownloadURL"_qs;
    }
    std::unreachable();
}

QJsonValue versionComponents(const QJsonObject& in)
{
    const auto components = InformationUpdateNotice::versionComponents(
        in.value(QLatin1StringView("version")).toString());
    if (!components) {
        return QJsonValue::Null;
    }
    return QJsonArray{components->at(0), components->at(1), components->at(2)};
}

QJsonValue versionIsNewer(const QJsonObject& in)
{
    return InformationUpdateNotice::isNewer(in.value(QLatin1StringView("candidate")).toString(),
                                            in.value(QLatin1StringView("current")).toString());
}

QJsonValue noticeParse(const QJsonObject& in)
{
    const auto notice = InformationUpdateNotice::parse(
        document(in.value(QLatin1StringView("doc")).toObject()).value_or(QByteArray()),
        in.value(QLatin1StringView("allowedHost")).toString());
    if (!notice) {
        return QJsonObject{{u"error"_qs, errorName(notice.error().kind)},
                           {u"payload"_qs, orNull(notice.error().payload)}};
    }
    QJsonObject ok{{u"version"_qs, notice->version},
                   {u"build"_qs, notice->build},
                   {u"downloadURL"_qs, QString::fromLatin1(notice->downloadURL.toEncoded())},
                   {u"sha256"_qs, notice->sha256},
                   {u"notesZH"_qs, notice->notesZH}};
    if (notice->sizeBytes) {
        ok.insert(u"sizeBytes"_qs, *notice->sizeBytes);
    }
    return QJsonObject{{u"ok"_qs, ok}};
}

} // namespace

void addUpdateFunctions(VectorFunctions& functions)
{
    functions.insert(u"versionComponents"_qs, versionComponents);
    functions.insert(u"versionIsNewer"_qs, versionIsNewer);
    functions.insert(u"noticeParse"_qs, noticeParse);
}
