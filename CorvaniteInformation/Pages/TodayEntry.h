// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "RailLineRow.h"
#include "SignalCardRow.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <utility>
#include <variant>

/// One place of the today surface's column, or of the list of everything.
struct TodayEntry
{
    Q_GADGET
    QML_VALUE_TYPE(todayEntry)

    Q_PROPERTY(bool isIntro READ isIntro CONSTANT FINAL)
    Q_PROPERTY(bool isCard READ isCard CONSTANT FINAL)
    Q_PROPERTY(bool isDisclosure READ isDisclosure CONSTANT FINAL)
    Q_PROPERTY(bool isRailHeading READ isRailHeading CONSTANT FINAL)
    Q_PROPERTY(bool isRailLine READ isRailLine CONSTANT FINAL)
    Q_PROPERTY(bool isOfRail READ isOfRail CONSTANT FINAL)
    Q_PROPERTY(SignalCardRow card READ card CONSTANT FINAL)
    Q_PROPERTY(RailLineRow rail READ rail CONSTANT FINAL)
    Q_PROPERTY(bool folds MEMBER folds CONSTANT FINAL)
    Q_PROPERTY(int position MEMBER position CONSTANT FINAL)

public:
    /// What the row of a card is made from.
    struct Card
    {
        InformationSignal signal;
        SignalCardRow::Standing standing;
        std::optional<QString> relativeLabel;

        friend bool operator==(const Card&, const Card&) = default;
    };

    enum class Kind {
        /// Title, lead, lane filter, and what there is to say about an adjusted or empty list.
        Intro,
        Card,
        /// Opens and closes the remaining cards.
        Disclosure,
        RailHeading,
        RailLine
    };

    Kind kind = Kind::Intro;
    /// With `Kind::Card` and `Kind::RailLine`.
    std::variant<std::monostate, Card, RailLineRow> content;
    /// The disclosure opens and closes it.
    bool folds = false;
    /// Of a card, from 0: among those that always show, or among those that fold.
    int position = 0;

    bool isIntro() const { return kind == Kind::Intro; }
    bool isCard() const { return kind == Kind::Card; }
    bool isDisclosure() const { return kind == Kind::Disclosure; }
    bool isRailHeading() const { return kind == Kind::RailHeading; }
    bool isRailLine() const { return kind == Kind::RailLine; }
    bool isOfRail() const { return isRailHeading() || isRailLine(); }

    /// Made when it is asked for: of hundreds of cards a screen shows a few.
    SignalCardRow card() const;
    RailLineRow rail() const;

    std::pair<int, QString> key() const;

    friend bool operator==(const TodayEntry&, const TodayEntry&) = default;
};
