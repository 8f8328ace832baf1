// SPDX-License-Identifier: Apache-2.0

#include "SvgPath.h"

#include <QLineF>
#include <QList>
#include <QtMath>

#include <cmath>

namespace {

/// The numbers that stand between two commands.
std::optional<QList<double>> numbersIn(QStringView text)
{
    QList<double> numbers;
    for (const auto part : text.tokenize(u' ', Qt::SkipEmptyParts)) {
        bool isNumber = false;
        numbers.append(part.toDouble(&isNumber));
        if (!isNumber) {
            return std::nullopt;
        }
    }
    return numbers;
}

/// To a point on a circle that goes through the current one; formulas of SVG 1.1, F.6.5.
void arcTo(QPainterPath& path, double radius, bool isLarge, bool isSwept, QPointF end)
{
    const QPointF start = path.currentPosition();
    const QPointF half = (start - end) / 2;
    const double square = QPointF::dotProduct(half, half);
    const double fits = std::max(radius, std::sqrt(square));
    const double factor =
        (isLarge == isSwept ? -1 : 1) * std::sqrt(std::max(0.0, fits * fits - square) / square);
    const QPointF center = (start + end) / 2 + factor * QPointF(half.y(), -half.x());
    const double first = QLineF(center, start).angle();
    const double turned = QLineF(center, end).angle() - first;
    const double full = turned < 0 ? turned + 360 : turned;
    path.arcTo({center - QPointF(fits, fits), center + QPointF(fits, fits)}, first,
               isSwept ? full - 360 : full);
}

bool isFlag(double number)
{
    return number == 0 || number == 1;
}

/// Whether the command could be added to the path with as many numbers as one takes.
bool add(QPainterPath& path, QChar command, const QList<double>& at)
{
    const QPointF start = path.currentPosition();
    switch (command.unicode()) {
    case u'M':
        path.moveTo(at[0], at[1]);
        return true;
    case u'L':
        path.lineTo(at[0], at[1]);
        return true;
    case u'H':
        path.lineTo(at[0], start.y());
        return true;
    case u'V':
        path.lineTo(start.x(), at[0]);
        return true;
    case u'C':
        path.cubicTo(at[0], at[1], at[2], at[3], at[4], at[5]);
        return true;
    case u'A':
        if (at[0] != at[1] || at[2] != 0 || !isFlag(at[3]) || !isFlag(at[4]) ||
            start == QPointF(at[5], at[6])) {
            return false;
        }
        arcTo(path, at[0], at[3] == 1, at[4] == 1, {at[5], at[6]});
        return true;
    default:
        path.closeSubpath();
        return true;
    }
}

/// How many numbers a command takes.
std::optional<qsizetype> countOf(QChar command)
{
    switch (command.unicode()) {
    case u'M':
    case u'L':
        return 2;
    case u'H':
    case u'V':
        return 1;
    case u'C':
        return 6;
    case u'A':
        return 7;
    case u'Z':
        return 0;
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<QPainterPath> SvgPath::parse(QStringView data)
{
    QPainterPath path;
    while (!data.isEmpty()) {
        const QChar command = data.front();
        const auto next = std::find_if(data.cbegin() + 1, data.cend(),
                                       [](QChar letter) { return letter.isLetter(); });
        const auto numbers = numbersIn({data.cbegin() + 1, next});
        const auto count = countOf(command);
        if (!count || !numbers || numbers->size() != *count || !add(path, command, *numbers)) {
            return std::nullopt;
        }
        data = {next, data.cend()};
    }
    return path;
}
