// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationSignal.h"

#include <QColor>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

/// What one card of today's lists shows, in finished texts.
struct SignalCardRow
{
    Q_GADGET
    QML_VALUE_TYPE(signalCardRow)

    Q_PROPERTY(QString signalId MEMBER signalId CONSTANT FINAL)
    Q_PROPERTY(QColor laneColor MEMBER laneColor CONSTANT FINAL)
    Q_PROPERTY(QString kindTag MEMBER kindTag CONSTANT FINAL)
    Q_PROPERTY(bool isUpdate MEMBER isUpdate CONSTANT FINAL)
    Q_PROPERTY(QString laneName MEMBER laneName CONSTANT FINAL)
    Q_PROPERTY(QString timeLabel MEMBER timeLabel CONSTANT FINAL)
    Q_PROPERTY(bool seen MEMBER seen CONSTANT FINAL)
    Q_PROPERTY(QString reachabilityTag MEMBER reachabilityTag CONSTANT FINAL)
    Q_PROPERTY(bool blocked MEMBER blocked CONSTANT FINAL)
    Q_PROPERTY(bool hasAlternate MEMBER hasAlternate CONSTANT FINAL)
    Q_PROPERTY(QString alternateAddress MEMBER alternateAddress CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString why MEMBER why CONSTANT FINAL)
    Q_PROPERTY(QString caveat MEMBER caveat CONSTANT FINAL)
    Q_PROPERTY(QString sourceLine MEMBER sourceLine CONSTANT FINAL)
    Q_PROPERTY(QString originalAddress MEMBER originalAddress CONSTANT FINAL)
    Q_PROPERTY(QString originalName MEMBER originalName CONSTANT FINAL)
    Q_PROPERTY(bool hasChange MEMBER hasChange CONSTANT FINAL)
    Q_PROPERTY(QString change MEMBER change CONSTANT FINAL)
    Q_PROPERTY(bool changeOpen MEMBER changeOpen CONSTANT FINAL)
    Q_PROPERTY(bool kept MEMBER kept CONSTANT FINAL)
    Q_PROPERTY(QString keepName MEMBER keepName CONSTANT FINAL)
    Q_PROPERTY(QString reduceName MEMBER reduceName CONSTANT FINAL)
    Q_PROPERTY(QString description MEMBER description CONSTANT FINAL)

public:
    /// What the reader has done with the signal.
    struct Standing
    {
        bool kept = false;
        bool seen = false;
        /// What changed is unfolded.
        bool changeOpen = false;

        friend bool operator==(const Standing&, const Standing&) = default;
    };

    /// @param relativeLabel the signal's `relativeObservedLabel`
    static SignalCardRow from(const InformationSignal& signal, Standing standing,
                              const std::optional<QString>& relativeLabel);

    QString signalId;
    QColor laneColor;
    QString kindTag;
    bool isUpdate = false;
    QString laneName;
    QString timeLabel;
    bool seen = false;
    /// Empty where the original is open.
    QString reachabilityTag;
    bool blocked = false;
    bool hasAlternate = false;
    /// Empty when it is no address to open; so is `originalAddress`.
    QString alternateAddress;
    QString title;
    QString why;
    QString caveat;
    QString sourceLine;
    QString originalAddress;
    /// The source line, the keep button and the reduce button for a screen reader. A source line
    /// that leads nowhere is named as it reads.
    QString originalName;
    bool hasChange = false;
    QString change;
    bool changeOpen = false;
    bool kept = false;
    QString keepName;
    QString reduceName;
    /// The card's state, its why and its limit for a screen reader, a line each.
    QString description;

    friend bool operator==(const SignalCardRow&, const SignalCardRow&) = default;
};
