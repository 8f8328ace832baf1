// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// One step of the type scale: a font and the fixed height of its lines in pixels.
class TextStyle : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The steps are those of TypeScale.")

    Q_PROPERTY(QFont font READ font CONSTANT FINAL)
    Q_PROPERTY(int lineHeight READ lineHeight CONSTANT FINAL)
    /// Of a line as the font itself would have it.
    Q_PROPERTY(int ownHeight READ ownHeight CONSTANT FINAL)
    /// The paddings of a text in this style, which centre the font's own line in the fixed one and
    /// make the text as high as its lines.
    Q_PROPERTY(int spaceAbove READ spaceAbove CONSTANT FINAL)
    Q_PROPERTY(int spaceBelow READ spaceBelow CONSTANT FINAL)

public:
    TextStyle(QFont font, int lineHeight, QObject* parent = nullptr);

    const QFont& font() const { return m_font; }
    int lineHeight() const { return m_lineHeight; }
    int ownHeight() const;
    int spaceAbove() const;
    int spaceBelow() const;

private:
    QFont m_font;
    int m_lineHeight;
};
