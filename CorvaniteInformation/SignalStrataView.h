#pragma once

#include "InformationLane.h"

#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

/// The decorative mark of a signal: its strata in the colour of its lane. The item is square and
/// has no place in the accessibility tree.
class SignalStrataView : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(
        QString signalID READ signalID WRITE setSignalID NOTIFY signalIDChanged REQUIRED FINAL)
    /// The lane's token.
    Q_PROPERTY(QString lane READ lane WRITE setLane NOTIFY laneChanged REQUIRED FINAL)
    /// The length of the square's side in pixels.
    Q_PROPERTY(qreal side READ side WRITE setSide NOTIFY sideChanged REQUIRED FINAL)

public:
    explicit SignalStrataView(QQuickItem* parent = nullptr);

    const QString& signalID() const { return m_signalID; }
    QString lane() const { return rawValue(m_lane); }
    qreal side() const { return implicitWidth(); }

    void setSignalID(const QString& signalID);
    /// An unknown token changes nothing.
    void setLane(const QString& token);
    void setSide(qreal side);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void signalIDChanged();
    void laneChanged();
    void sideChanged();

private:
    QString m_signalID;
    InformationLane m_lane = InformationLane::ProductRadar;
};
