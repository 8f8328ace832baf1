// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FontFamilies.h"
#include "TextStyle.h"

/// The type scale.
class TypeScale : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    Q_PROPERTY(TextStyle* display MEMBER m_display CONSTANT FINAL)
    Q_PROPERTY(TextStyle* title1 MEMBER m_title1 CONSTANT FINAL)
    Q_PROPERTY(TextStyle* title2 MEMBER m_title2 CONSTANT FINAL)
    Q_PROPERTY(TextStyle* title3 MEMBER m_title3 CONSTANT FINAL)
    Q_PROPERTY(TextStyle* figure MEMBER m_figure CONSTANT FINAL)
    Q_PROPERTY(TextStyle* body MEMBER m_body CONSTANT FINAL)
    Q_PROPERTY(TextStyle* bodyBold MEMBER m_bodyBold CONSTANT FINAL)
    Q_PROPERTY(TextStyle* brandName MEMBER m_brandName CONSTANT FINAL)
    Q_PROPERTY(TextStyle* small MEMBER m_small CONSTANT FINAL)
    Q_PROPERTY(TextStyle* smallBold MEMBER m_smallBold CONSTANT FINAL)
    Q_PROPERTY(TextStyle* caption MEMBER m_caption CONSTANT FINAL)
    Q_PROPERTY(TextStyle* captionBold MEMBER m_captionBold CONSTANT FINAL)
    Q_PROPERTY(TextStyle* meta MEMBER m_meta CONSTANT FINAL)
    Q_PROPERTY(TextStyle* metaBold MEMBER m_metaBold CONSTANT FINAL)
    Q_PROPERTY(TextStyle* eyebrow MEMBER m_eyebrow CONSTANT FINAL)
    Q_PROPERTY(TextStyle* citrineLabel MEMBER m_citrineLabel CONSTANT FINAL)
    Q_PROPERTY(TextStyle* quietLabel MEMBER m_quietLabel CONSTANT FINAL)
    Q_PROPERTY(TextStyle* syncLabel MEMBER m_syncLabel CONSTANT FINAL)

public:
    using QObject::QObject;

    QList<QFont> fonts() const;
    const QFont& bodyFont() const { return m_body->font(); }

private:
    TextStyle* title(int pixelSize, int lineHeight);
    TextStyle* text(int pixelSize, QFont::Weight weight, int lineHeight, double letterSpacing = 0);

    FontFamilies m_families;
    TextStyle* m_display = title(28, 40);
    TextStyle* m_title1 = title(22, 32);
    TextStyle* m_title2 = title(19, 28);
    TextStyle* m_title3 = title(17, 28);
    TextStyle* m_figure = title(17, 24);
    TextStyle* m_body = text(15, QFont::Normal, 24);
    TextStyle* m_bodyBold = text(15, QFont::Bold, 24);
    TextStyle* m_brandName = text(15, QFont::Bold, 20);
    TextStyle* m_small = text(13, QFont::Normal, 20);
    TextStyle* m_smallBold = text(13, QFont::Bold, 20);
    TextStyle* m_caption = text(12, QFont::Normal, 16);
    TextStyle* m_captionBold = text(12, QFont::Bold, 16);
    TextStyle* m_meta = text(12, QFont::Normal, 20);
    TextStyle* m_metaBold = text(12, QFont::Bold, 20);
    TextStyle* m_eyebrow = text(12, QFont::Bold, 16, 0.6);
    TextStyle* m_citrineLabel = text(13, QFont::DemiBold, 20);
    TextStyle* m_quietLabel = text(13, QFont::Medium, 20);
    TextStyle* m_syncLabel = text(12, QFont::DemiBold, 16);
};
