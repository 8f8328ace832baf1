// SPDX-License-Identifier: Apache-2.0

#include "LocalHostname.h"

#include "Ipv6Literal.h"

#include <QList>
#include <QRegularExpression>

#include <algorithm>
#include <optional>

namespace {

/// The addresses whose first `prefixLength` bits are those of `address`, which has no others.
struct Ipv4Range
{
    quint32 address;
    int prefixLength;

    constexpr bool contains(quint32 candidate) const
    {
        const int rest = 32 - prefixLength;
        return candidate >> rest << rest == address;
    }
};

constexpr quint32 ipv4(quint32 first, quint32 second, quint32 third, quint32 fourth)
{
    return first << 24 | second << 16 | third << 8 | fourth;
}

// https://www.iana.org/assignments/iana-ipv4-special-registry/
constexpr std::array unsafeIpv4Ranges{
    Ipv4Range{ipv4(0, 0, 0, 0), 8},       Ipv4Range{ipv4(10, 0, 0, 0), 8},
    Ipv4Range{ipv4(100, 64, 0, 0), 10},   Ipv4Range{ipv4(127, 0, 0, 0), 8},
    Ipv4Range{ipv4(169, 254, 0, 0), 16},  Ipv4Range{ipv4(172, 16, 0, 0), 12},
    Ipv4Range{ipv4(192, 0, 2, 0), 24},    Ipv4Range{ipv4(192, 88, 99, 0), 24},
    Ipv4Range{ipv4(192, 168, 0, 0), 16},  Ipv4Range{ipv4(198, 18, 0, 0), 15},
    Ipv4Range{ipv4(198, 51, 100, 0), 24}, Ipv4Range{ipv4(203, 0, 113, 0), 24},
    Ipv4Range{ipv4(224, 0, 0, 0), 3},
};

bool isUnsafeIpv4(quint32 address)
{
    return std::ranges::any_of(
        unsafeIpv4Ranges, [address](const Ipv4Range& range) { return range.contains(address); });
}

bool isUnsafeIpv6(const std::array<quint8, 16>& address)
{
    const auto leadingZeros =
        std::ranges::find_if(address, [](quint8 byte) { return byte != 0; }) - address.begin();
    const bool isUnspecified = leadingZeros == 16;
    const bool isLoopback = leadingZeros == 15 && address[15] == 1;
    const bool isUniqueLocal = (address[0] & 0xFE) == 0xFC;
    const bool isLinkLocal = address[0] == 0xFE && (address[1] & 0xC0) == 0x80;
    const bool isMulticast = address[0] == 0xFF;
    const bool isDocumentation =
        address[0] == 0x20 && address[1] == 0x01 && address[2] == 0x0D && address[3] == 0xB8;
    const bool isMappedIpv4 = leadingZeros == 10 && address[10] == 0xFF && address[11] == 0xFF;
    return isUnspecified || isLoopback || isUniqueLocal || isLinkLocal || isMulticast ||
           isDocumentation ||
           (isMappedIpv4 && isUnsafeIpv4(ipv4(address[12], address[13], address[14], address[15])));
}

/// What a leading zero says about a part of an IPv4 address: readers differ.
enum class LeadingZero { Padding, Octal };

std::optional<quint64> ipv4Part(QStringView part, LeadingZero leadingZero)
{
    bool ok = false;
    if (part.startsWith(u"0x", Qt::CaseInsensitive)) {
        const quint64 value = part.sliced(2).toULongLong(&ok, 16);
        return ok ? std::optional(value) : std::nullopt;
    }
    if (leadingZero == LeadingZero::Octal && part.startsWith(u'0')) {
        const quint64 value = part.toULongLong(&ok, 8);
        if (ok) {
            return value;
        }
    }
    const quint64 value = part.toULongLong(&ok, 10);
    return ok ? std::optional(value) : std::nullopt;
}

// Of fewer than four parts the last fills the bytes that are left, as inet_aton reads them.
std::optional<quint32> ipv4Address(const QList<QStringView>& parts, LeadingZero leadingZero)
{
    if (parts.size() > 4) {
        return std::nullopt;
    }
    quint64 address = 0;
    for (qsizetype index = 0; index < parts.size(); ++index) {
        const bool isLast = index == parts.size() - 1;
        const qsizetype bytes = isLast ? 4 - index : 1;
        const auto value = ipv4Part(parts[index], leadingZero);
        if (!value || *value >> (8 * bytes) != 0) {
            return std::nullopt;
        }
        address = address << (8 * bytes) | *value;
    }
    return static_cast<quint32>(address);
}

bool isUnsafeIpv4Literal(const QString& host)
{
    static const QRegularExpression literal(QRegularExpression::anchoredPattern(
        u"(?:(?:0[xX][0-9A-Fa-f]+)|(?:[0-9]+))(?:\\.(?:(?:0[xX][0-9A-Fa-f]+)|(?:[0-9]+)))*"));
    if (!literal.match(host).hasMatch()) {
        return false;
    }
    const QList<QStringView> parts = QStringView(host).split(u'.');
    return std::ranges::any_of(std::array{LeadingZero::Padding, LeadingZero::Octal},
                               [&parts](LeadingZero leadingZero) {
                                   const auto address = ipv4Address(parts, leadingZero);
                                   return address && isUnsafeIpv4(*address);
                               });
}

} // namespace

bool isUnsafeLocalHostname(const QString& host)
{
    const auto ipv6Address = ipv6LiteralAddress(host);
    return host == u"localhost" || host.endsWith(u".localhost") || host.endsWith(u".local") ||
           isUnsafeIpv4Literal(host) || (ipv6Address && isUnsafeIpv6(*ipv6Address));
}
