// SPDX-License-Identifier: Apache-2.0

#include "InformationIntake.h"

#include "CodePointOrder.h"
#include "DecimalNumber.h"
#include "FirstCharacters.h"
#include "Ipv6Literal.h"
#include "LocalHostname.h"
#include "UriComponents.h"

#include <QRegularExpression>
#include <QStringList>
#include <QUrl>

#include <algorithm>
#include <array>

namespace {

using Kind = NormalizedInformationIntake::Kind;

constexpr qint64 httpsPort = 443;

// What stands unescaped in a path and in a query beside the unreserved characters.
// https://www.rfc-editor.org/rfc/rfc3986#section-3.3
constexpr auto pathCharacters = "!$&'()*+,;=:@/";
constexpr auto queryCharacters = "!$&'()*+,;=:@/?";

constexpr std::array trackingNames{
    QLatin1StringView("dclid"),  QLatin1StringView("fbclid"), QLatin1StringView("gclid"),
    QLatin1StringView("mc_cid"), QLatin1StringView("mc_eid"), QLatin1StringView("msclkid"),
};

// An absolute address, its host in canonical form.
struct Address
{
    UriComponents components;
    UriComponents::Authority authority;
    QString host;
};

struct QueryItem
{
    // As it stands.
    QStringView text;
    QString name;
    QString value;
};

QString decoded(QStringView text)
{
    return QUrl::fromPercentEncoding(text.toUtf8());
}

// Escapes what an address cannot hold; escapes that are there stay.
QString escaped(const QString& text, const char* allowedCharacters)
{
    static const QRegularExpression escapedEscape(u"%25(?=[0-9A-Fa-f]{2})"_qs);
    return QString::fromLatin1(QUrl::toPercentEncoding(text, allowedCharacters))
        .replace(escapedEscape, u"%"_qs);
}

QString withoutTrailingDots(QString host)
{
    while (host.endsWith(u'.')) {
        host.chop(1);
    }
    return host;
}

// In ASCII and lower case, without escapes and trailing dots; nothing where the text is no host.
std::optional<QString> canonicalHost(const QString& text)
{
    if (text.startsWith(u'[')) {
        return ipv6LiteralAddress(text) ? std::optional(text.toLower()) : std::nullopt;
    }
    static const QRegularExpression plainHost(
        QRegularExpression::anchoredPattern(u"[A-Za-z0-9._~!$&'()*+,;=-]*"));
    static const QRegularExpression international(u"[^\\x{00}-\\x{7F}]|xn--"_qs,
                                                  QRegularExpression::CaseInsensitiveOption);
    QString host = withoutTrailingDots(decoded(text));
    // Labels that are in their ASCII form already are checked with the others.
    if (host.contains(international)) {
        host = withoutTrailingDots(QString::fromLatin1(QUrl::toAce(host)));
        if (host.isEmpty()) {
            return std::nullopt;
        }
    }
    return plainHost.match(host).hasMatch() ? std::optional(host.toLower()) : std::nullopt;
}

std::optional<Address> addressIn(const QString& text)
{
    const UriComponents components = UriComponents::of(text);
    const auto authority = components.authority ? components.authorityParts()
                                                : std::optional(UriComponents::Authority());
    const auto host = authority ? canonicalHost(authority->host) : std::nullopt;
    if (!components.scheme || !host) {
        return std::nullopt;
    }
    return Address{components, *authority, *host};
}

QString canonicalPort(const QString& port)
{
    return port.isEmpty() || decimalNumber(port) == httpsPort ? QString() : u':' + port;
}

QString canonicalPath(const QString& path)
{
    QString canonical = escaped(path, pathCharacters);
    while (canonical.size() > 1 && canonical.endsWith(u'/')) {
        canonical.chop(1);
    }
    return canonical;
}

bool isTracking(const QString& name)
{
    const QString lowerName = name.toLower();
    return lowerName.startsWith(u"utm_") ||
           std::ranges::find(trackingNames, lowerName) != trackingNames.end();
}

QString canonicalQuery(const QString& query)
{
    const QString text = escaped(query, queryCharacters);
    QList<QueryItem> items;
    for (const QStringView item : QStringView(text).split(u'&', Qt::SkipEmptyParts)) {
        const qsizetype equals = item.indexOf(u'=');
        const QString name = decoded(equals < 0 ? item : item.first(equals));
        const QString value = equals < 0 ? QString() : decoded(item.sliced(equals + 1));
        if (!isTracking(name)) {
            items.append({item, name, value});
        }
    }
    std::ranges::stable_sort(items, [](const QueryItem& left, const QueryItem& right) {
        return left.name == right.name ? codePointLess(left.value, right.value)
                                       : codePointLess(left.name, right.name);
    });

    QStringList texts;
    for (const QueryItem& item : items) {
        texts.append(item.text.toString());
    }
    return texts.isEmpty() ? QString() : u'?' + texts.join(u'&');
}

bool isTooLong(const QString& text)
{
    return firstCharacters(text, InformationIntake::maximumInputLength).size() < text.size();
}

std::expected<NormalizedInformationIntake, InformationIntakeFailure>
normalizeAddress(const Address& address)
{
    if (address.components.scheme->compare(QLatin1StringView("https"), Qt::CaseInsensitive) != 0 ||
        address.host.isEmpty() || address.authority.userInfo ||
        isUnsafeLocalHostname(address.host)) {
        return std::unexpected(InformationIntakeFailure::UnsupportedURL);
    }
    const QString value = u"https://"_qs + address.host +
                          canonicalPort(address.authority.port.value_or(QString())) +
                          canonicalPath(address.components.path) +
                          canonicalQuery(address.components.query.value_or(QString()));
    if (isTooLong(value)) {
        return std::unexpected(InformationIntakeFailure::TooLong);
    }
    return NormalizedInformationIntake{Kind::Url, value, u"url:"_qs + value};
}

std::expected<NormalizedInformationIntake, InformationIntakeFailure>
normalizeText(const QString& text)
{
    if (isTooLong(text)) {
        return std::unexpected(InformationIntakeFailure::TooLong);
    }
    return NormalizedInformationIntake{Kind::Text, text, u"text:"_qs + text.toLower()};
}

bool hasIdentity(const QString& input, const QString& identity)
{
    const auto intake = InformationIntake::normalize(input);
    return intake && intake->identity == identity;
}

} // namespace

std::expected<NormalizedInformationIntake, InformationIntakeFailure>
InformationIntake::normalize(const QString& input)
{
    const QString text = input.simplified();
    if (text.isEmpty()) {
        return std::unexpected(InformationIntakeFailure::Empty);
    }
    const bool isOneWord = !text.contains(u' ');
    if (isOneWord) {
        const bool lacksScheme = text.startsWith(u"www.", Qt::CaseInsensitive);
        if (const auto address = addressIn(lacksScheme ? u"https://"_qs + text : text)) {
            return normalizeAddress(*address);
        }
    }
    return normalizeText(text);
}

bool InformationIntake::contains(const NormalizedInformationIntake& intake,
                                 const QList<CustomInformationSource>& customSources)
{
    return std::ranges::any_of(customSources, [&intake](const CustomInformationSource& source) {
        return hasIdentity(source.input, intake.identity);
    });
}

const InformationSignal* InformationIntake::match(const NormalizedInformationIntake& intake,
                                                  const QList<InformationSignal>& signals)
{
    if (intake.kind != Kind::Url) {
        return nullptr;
    }
    const auto found = std::ranges::find_if(signals, [&intake](const InformationSignal& signal) {
        return hasIdentity(signal.followTarget.url, intake.identity) ||
               hasIdentity(signal.originalURL, intake.identity);
    });
    return found == signals.end() ? nullptr : &*found;
}
