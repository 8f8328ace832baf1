// SPDX-License-Identifier: Apache-2.0

#include "FuzzTarget.h"
#include "InformationProjection.h"
#include "Invariant.h"
#include "SampleSignal.h"

#include <QDateTime>
#include <QRegularExpression>

#include <cmath>

namespace {

constexpr double secondsPerHour = 3600;

bool isInternetDateTime(const QString& text)
{
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        u"[0-9]{4}-[0-9]{2}-[0-9]{2}T([01][0-9]|2[0-3]):[0-9]{2}:[0-9]{2}(\\.[0-9]+)?"
        u"(Z|[+-][0-9]{2}:[0-9]{2})"));
    return pattern.match(text).hasMatch();
}

void checkDay(qint64 milliseconds)
{
    const QDate day =
        QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::OffsetFromUTC, 8 * 3600).date();
    // QDate knows no year 0.
    if (day.year() >= 1) {
        invariant(InformationProjection::beijingDay(milliseconds) == day.toString(u"yyyy-MM-dd"),
                  "the day is the one of the calendar at UTC+8");
    }
}

void checkAge(const QString& text, double seconds)
{
    InformationSignal signal = sampleSignal(u"a"_qs);
    signal.observedAt = text;
    for (const double age : {-0.1, 0.1, 1.0, 24.0, 47.9, 48.1}) {
        const bool isRecent = age >= 0 && age < 48;
        invariant(signal.relativeObservedLabel(seconds + age * secondsPerHour).has_value() ==
                      isRecent,
                  "two days long a card says how old it is");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString text = QString::fromUtf8(inputBytes(data, size));
    const auto seconds = InformationProjection::parseISODate(text);
    const auto fastSeconds = InformationProjection::fastISOSeconds(text);
    invariant(!fastSeconds || fastSeconds == seconds, "the fast reading is the reading");

    const auto independent = QDateTime::fromString(text, Qt::ISODateWithMs);
    if (isInternetDateTime(text) && independent.isValid()) {
        invariant(seconds.has_value(), "an internet date-time reads");
    }
    if (!seconds) {
        invariant(!InformationProjection::isoMilliseconds(text), "what does not read has no value");
        return 0;
    }
    if (independent.isValid()) {
        const double difference = *seconds * 1000 - double(independent.toMSecsSinceEpoch());
        invariant(std::abs(difference) <= 1, "a time reads as the instant that others read");
    }
    const auto milliseconds = InformationProjection::isoMilliseconds(text);
    invariant(milliseconds && double(*milliseconds) == std::trunc(*seconds * 1000),
              "milliseconds are cut toward zero");
    checkDay(*milliseconds);
    checkAge(text, *seconds);
    return 0;
}
