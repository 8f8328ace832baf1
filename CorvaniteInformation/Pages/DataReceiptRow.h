#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// One figure of the data receipt and what it counts.
struct DataReceiptRow
{
    Q_GADGET
    QML_VALUE_TYPE(dataReceiptRow)

    Q_PROPERTY(QString value MEMBER value CONSTANT FINAL)
    Q_PROPERTY(QString label MEMBER label CONSTANT FINAL)
    /// Both, for a screen reader.
    Q_PROPERTY(QString text READ text CONSTANT FINAL)

public:
    QString value;
    QString label;

    QString text() const { return value + u' ' + label; }

    friend bool operator==(const DataReceiptRow&, const DataReceiptRow&) = default;
};
