// SPDX-License-Identifier: Apache-2.0

#include "FeedTime.h"

#include "InformationProjection.h"

#include <QDateTime>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace {

constexpr std::array monthNames{
    QLatin1StringView("jan"), QLatin1StringView("feb"), QLatin1StringView("mar"),
    QLatin1StringView("apr"), QLatin1StringView("may"), QLatin1StringView("jun"),
    QLatin1StringView("jul"), QLatin1StringView("aug"), QLatin1StringView("sep"),
    QLatin1StringView("oct"), QLatin1StringView("nov"), QLatin1StringView("dec"),
};

struct NamedZone
{
    QLatin1StringView name;
    int hours;
};

// https://www.rfc-editor.org/rfc/rfc2822#section-4.3
constexpr std::array namedZones{
    NamedZone{QLatin1StringView("z"), 0},    NamedZone{QLatin1StringView("ut"), 0},
    NamedZone{QLatin1StringView("utc"), 0},  NamedZone{QLatin1StringView("gmt"), 0},
    NamedZone{QLatin1StringView("est"), -5}, NamedZone{QLatin1StringView("edt"), -4},
    NamedZone{QLatin1StringView("cst"), -6}, NamedZone{QLatin1StringView("cdt"), -5},
    NamedZone{QLatin1StringView("mst"), -7}, NamedZone{QLatin1StringView("mdt"), -6},
    NamedZone{QLatin1StringView("pst"), -8}, NamedZone{QLatin1StringView("pdt"), -7},
};

std::optional<int> zoneSeconds(const QString& zone)
{
    if (zone.startsWith(u'+') || zone.startsWith(u'-')) {
        const int hours = zone.sliced(1, 2).toInt();
        const int minutes = zone.last(2).toInt();
        return (zone.startsWith(u'-') ? -1 : 1) * (hours * 60 + minutes) * 60;
    }
    const auto named = std::ranges::find(namedZones, zone.toLower(), &NamedZone::name);
    return named == namedZones.end() ? std::nullopt : std::optional(named->hours * 3600);
}

/// Years of two digits are of this century or the last.
int fullYear(const QString& digits)
{
    constexpr int firstOfLastCentury = 50;
    const int year = digits.toInt();
    if (digits.size() > 2) {
        return year;
    }
    return year + (year < firstOfLastCentury ? 2000 : 1900);
}

std::optional<qint64> mailMilliseconds(const QString& text)
{
    static const QRegularExpression form(
        u"^(?:[A-Za-z]+,?\\s+)?(\\d{1,2})\\s+([A-Za-z]{3})[A-Za-z]*\\s+(\\d{4}|\\d{2})"
        u"\\s+(\\d{1,2}):(\\d{2})(?::(\\d{2}))?\\s+([+-]\\d{2}:?\\d{2}|[A-Za-z]+)"_qs);
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    const auto month = std::ranges::find(monthNames, match.captured(2).toLower());
    const auto zone = zoneSeconds(match.captured(7));
    const QDate date(fullYear(match.captured(3)), static_cast<int>(month - monthNames.begin()) + 1,
                     match.captured(1).toInt());
    const QTime time(match.captured(4).toInt(), match.captured(5).toInt(),
                     match.captured(6).toInt());
    if (!zone || !date.isValid() || !time.isValid()) {
        return std::nullopt;
    }
    return QDateTime(date, time, Qt::UTC).addSecs(-*zone).toMSecsSinceEpoch();
}

std::optional<qint64> dayMilliseconds(const QString& text)
{
    constexpr qsizetype dayLength = 10;
    return text.size() == dayLength
               ? InformationProjection::isoMilliseconds(text + u"T00:00:00Z"_qs)
               : std::nullopt;
}

} // namespace

QString FeedTime::stampOf(qint64 milliseconds)
{
    return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC).toString(Qt::ISODateWithMs);
}

std::optional<QString> FeedTime::stamp(QStringView text)
{
    const QString trimmed = text.trimmed().toString();
    auto milliseconds = InformationProjection::isoMilliseconds(trimmed);
    if (!milliseconds) {
        milliseconds = dayMilliseconds(trimmed);
    }
    if (!milliseconds) {
        milliseconds = mailMilliseconds(trimmed);
    }
    return milliseconds ? std::optional(stampOf(*milliseconds)) : std::nullopt;
}
