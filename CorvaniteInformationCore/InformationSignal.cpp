// SPDX-License-Identifier: Apache-2.0

#include "InformationSignal.h"

#include "FieldHash.h"
#include "InformationProjection.h"

#include <QUrl>

#include <algorithm>
#include <array>

namespace {

/// What is known of a site's host, which is compared as a whole: a sub-domain is another host.
struct KnownHost
{
    QLatin1StringView name;
    OriginalReachability reachability;
    /// Whether a link there is worth offering for a blocked original. Some blocked hosts are.
    bool isAlternate;
};

constexpr auto Blocked = OriginalReachability::Blocked;
constexpr auto Spotty = OriginalReachability::Spotty;

constexpr std::array knownHosts{
    KnownHost{QLatin1StringView("news.ycombinator.com"), Blocked, false},
    KnownHost{QLatin1StringView("x.com"), Blocked, false},
    KnownHost{QLatin1StringView("twitter.com"), Blocked, false},
    KnownHost{QLatin1StringView("www.twitter.com"), Blocked, true},
    KnownHost{QLatin1StringView("youtube.com"), Blocked, false},
    KnownHost{QLatin1StringView("www.youtube.com"), Blocked, false},
    KnownHost{QLatin1StringView("youtu.be"), Blocked, false},
    KnownHost{QLatin1StringView("reddit.com"), Blocked, false},
    KnownHost{QLatin1StringView("www.reddit.com"), Blocked, true},
    KnownHost{QLatin1StringView("t.me"), Blocked, false},
    KnownHost{QLatin1StringView("openai.com"), Blocked, false},
    KnownHost{QLatin1StringView("chatgpt.com"), Blocked, true},
    KnownHost{QLatin1StringView("platform.openai.com"), Blocked, true},
    KnownHost{QLatin1StringView("google.com"), Blocked, false},
    KnownHost{QLatin1StringView("www.google.com"), Blocked, false},
    KnownHost{QLatin1StringView("blog.google"), Blocked, true},
    KnownHost{QLatin1StringView("github.com"), Spotty, true},
    KnownHost{QLatin1StringView("gist.github.com"), Spotty, true},
    KnownHost{QLatin1StringView("raw.githubusercontent.com"), Spotty, true},
    KnownHost{QLatin1StringView("github.io"), Spotty, true},
};

/// In lower case; empty when the address names none.
QString hostOf(const QString& address)
{
    return QUrl(address).host().toLower();
}

const KnownHost* knownHost(const QString& host)
{
    const auto found = std::ranges::find(knownHosts, host, &KnownHost::name);
    return found == knownHosts.end() ? nullptr : found;
}

bool isAlternate(const InformationRelatedSource& source)
{
    const QString host = hostOf(source.url);
    const KnownHost* known = knownHost(host);
    return !host.isEmpty() && (!known || known->isAlternate);
}

} // namespace

OriginalReachability InformationSignal::originalReachability() const
{
    const KnownHost* known = knownHost(hostOf(originalURL));
    return known ? known->reachability : OriginalReachability::Open;
}

std::optional<InformationRelatedSource> InformationSignal::reachableAlternate() const
{
    if (originalReachability() != OriginalReachability::Blocked) {
        return std::nullopt;
    }
    const auto alternate = std::ranges::find_if(relatedSources, isAlternate);
    return alternate == relatedSources.end() ? std::nullopt : std::optional(*alternate);
}

std::optional<QString> InformationSignal::relativeObservedLabel(double now) const
{
    const auto observed = InformationProjection::parseISODate(observedAt);
    if (!observed) {
        return std::nullopt;
    }
    const double hours = (now - *observed) / 3600;
    if (hours < 0 || hours >= 48) {
        return std::nullopt;
    }
    if (hours < 1) {
        return QStringLiteral("刚刚核验");
    }
    if (hours >= 24) {
        return QStringLiteral("昨天核验");
    }
    return QString::number(static_cast<int>(hours)) + QStringLiteral(" 小时前核验");
}

size_t qHash(const InformationSignal& signal, size_t seed) noexcept
{
    return FieldHash::hash(seed, signal.id, signal.kind, signal.lane, signal.publishedAt,
                           signal.observedAt, signal.originalURL, signal.relatedSources,
                           signal.source, signal.title, signal.summary, signal.updateSummary,
                           signal.digest, signal.why, signal.caveat, signal.timeline,
                           signal.followTarget, signal.ingestion);
}
