// SPDX-License-Identifier: Apache-2.0

#include "LetterPictures.h"
#include "FreeTypeOutlines.h"
#include "LetterWidths.h"
#include "Subject.h"

#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QTest>

namespace {

QImage drawing(const QFont& font, const QString& text)
{
    QImage image(400, 40, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(font);
    painter.drawText(QPoint(10, 30), text);
    return image;
}

int outlinesToDraw(const QFont& font, const QString& text)
{
    return FreeTypeOutlines::takenApartDuring([&] { drawing(font, text); });
}

} // namespace

class LetterPicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsDrawnAheadTakesNoOutlineLater()
    {
        QFont font(u"Noto Sans CJK SC"_qs);
        font.setPixelSize(16);
        LetterWidths::readFromTable(font);
        drawing(font, u"信"_qs);
        QVERIFY(outlinesToDraw(font, u"值得"_qs) >= 2);

        LetterPictures::drawAhead(font, u"少而可信，少"_qs);

        QCOMPARE(outlinesToDraw(font, u"可信，少而"_qs), 0);
        QCOMPARE(outlinesToDraw(font, u"可信的"_qs), 1);
    }

    void theDrawingIsTheSame()
    {
        const QString text = u"最大限制：Qt 6.4"_qs;
        QFont font(u"Noto Serif CJK SC"_qs);
        font.setPixelSize(19);
        font.setStyleStrategy(QFont::PreferQuality);
        const QImage before = drawing(font, text);

        font.setStyleStrategy(QFont::PreferDefault);
        LetterPictures::drawAhead(font, text);

        QCOMPARE(drawing(font, text), before);
    }
};

TEST_SUBJECT(LetterPicturesTest)
#include "LetterPicturesTest.moc"
