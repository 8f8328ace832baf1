// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// One step of the type scale: a font and the fixed height of its lines in pixels. The font is
/// looked up once it is measured or drawn, so a step costs nothing before its first text.
class TextStyle : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QFont font MEMBER m_font NOTIFY changed REQUIRED FINAL)
    Q_PROPERTY(int lineHeight MEMBER m_lineHeight NOTIFY changed REQUIRED FINAL)
    /// Of a line as the font itself would have it.
    Q_PROPERTY(int ownHeight READ ownHeight NOTIFY changed FINAL)
    /// The paddings of a text in this style, which centre the font's own line in the fixed one and
    /// make the text as high as its lines.
    Q_PROPERTY(int spaceAbove READ spaceAbove NOTIFY changed FINAL)
    Q_PROPERTY(int spaceBelow READ spaceBelow NOTIFY changed FINAL)

public:
    using QObject::QObject;

    int ownHeight() const;
    int spaceAbove() const;
    int spaceBelow() const;

Q_SIGNALS:
    void changed();

private:
    QFont m_font;
    int m_lineHeight = 0;
};
