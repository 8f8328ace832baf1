// SPDX-License-Identifier: Apache-2.0

#include "FuzzTarget.h"
#include "InformationIntake.h"
#include "Invariant.h"

#include <QRegularExpression>
#include <QTextBoundaryFinder>
#include <QUrl>
#include <QUrlQuery>
#include <QtNetwork/QHostAddress>

#include <algorithm>

namespace {

using Intake = NormalizedInformationIntake;

qsizetype characterCount(const QString& text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype count = 0;
    while (finder.toNextBoundary() >= 0) {
        ++count;
    }
    return count;
}

const QList<QPair<QHostAddress, int>>& privateNetworks()
{
    static const auto networks = [] {
        QList<QPair<QHostAddress, int>> parsed;
        for (const auto network :
             {"0.0.0.0/8", "10.0.0.0/8", "100.64.0.0/10", "127.0.0.0/8", "169.254.0.0/16",
              "172.16.0.0/12", "192.168.0.0/16", "192.0.2.0/24", "198.51.100.0/24",
              "203.0.113.0/24", "198.18.0.0/15", "192.88.99.0/24", "224.0.0.0/3", "::/128",
              "::1/128", "fc00::/7", "fe80::/10", "ff00::/8", "2001:db8::/32"}) {
            parsed.append(QHostAddress::parseSubnet(QString::fromLatin1(network)));
        }
        return parsed;
    }();
    return networks;
}

bool isPublic(QHostAddress address)
{
    bool isMappedIpv4 = false;
    if (const quint32 ipv4 = address.toIPv4Address(&isMappedIpv4); isMappedIpv4) {
        address = QHostAddress(ipv4);
    }
    return std::ranges::none_of(
        privateNetworks(), [&address](const auto& network) { return address.isInSubnet(network); });
}

// Qt reads signs and binary numbers in an address, which no resolver does.
bool isAddressToQtAlone(const QString& host)
{
    static const QRegularExpression pattern(u"[+-]|(^|\\.)0[bB]"_qs);
    return !host.startsWith(u'[') && host.contains(pattern);
}

bool isPublic(const QString& host)
{
    const bool isLocalName = host == u"localhost" || host.endsWith(u".localhost") ||
                             host.endsWith(u".local") || host.endsWith(u'.');
    if (isLocalName || isAddressToQtAlone(host)) {
        return !isLocalName;
    }
    const QHostAddress address(QString(host).remove(QRegularExpression(u"[][]"_qs)));
    return address.isNull() || isPublic(address);
}

bool isTracking(const QString& name)
{
    static const QStringList names{u"dclid"_qs,  u"fbclid"_qs, u"gclid"_qs,
                                   u"mc_cid"_qs, u"mc_eid"_qs, u"msclkid"_qs};
    return name.startsWith(u"utm_", Qt::CaseInsensitive) ||
           names.contains(name, Qt::CaseInsensitive);
}

void checkAddress(const QString& value)
{
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        u"https://(\\[[^]]+\\]|[^][/?#:@]+)(:[0-9]+)?[/?]?[^#]*"));
    const auto match = pattern.match(value);
    const QString host = match.captured(1);
    invariant(match.hasMatch(), "an address is secure, names a host, no user and no fragment");
    invariant(isPublic(host) && match.captured(2) != u":443",
              "its host is a public one, the usual port is left out");

    // Some hosts that RFC 3986 allows are none to QUrl.
    const QUrl url(value, QUrl::StrictMode);
    if (!url.isValid()) {
        return;
    }
    invariant(url.scheme() == u"https" && url.userInfo().isEmpty() && !url.hasFragment() &&
                  (isAddressToQtAlone(host) || isPublic(url.host())),
              "another reader sees the same");
    QList<uint> nameBefore;
    for (const auto& [name, content] : QUrlQuery(url).queryItems(QUrl::FullyDecoded)) {
        invariant(!isTracking(name), "nothing tracks");
        invariant(!(name.toUcs4() < nameBefore), "the query is in order");
        nameBefore = name.toUcs4();
    }
}

void checkSentence(const Intake& intake)
{
    invariant(!intake.value.isEmpty() && intake.value.simplified() == intake.value,
              "a sentence has single blanks, and inside only");
    invariant(intake.identity == u"text:"_qs + intake.value.toLower(),
              "a sentence is known by its letters");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString input = QString::fromUtf8(inputBytes(data, size));
    const auto intake = InformationIntake::normalize(input);
    invariant(InformationIntake::normalize(u" \t"_qs + input + u"\n "_qs) == intake,
              "white space around a hand-in does not count");
    if (!intake) {
        return 0;
    }
    invariant(InformationIntake::normalize(intake->value) == intake,
              "the canonical form is its own canonical form");
    invariant(InformationIntake::contains(*intake, {{QUuid(), intake->value, {}}}),
              "what is stored is recognised");
    invariant(characterCount(intake->value) <= InformationIntake::maximumInputLength,
              "the canonical form is short enough");
    if (intake->kind == Intake::Kind::Url) {
        checkAddress(intake->value);
        invariant(intake->identity == u"url:"_qs + intake->value,
                  "an address is known by its form");
    } else {
        checkSentence(*intake);
    }
    return 0;
}
