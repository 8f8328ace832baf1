// SPDX-License-Identifier: Apache-2.0

#include "StemDarkening.h"
#include "Subject.h"

#include <QImage>
#include <QPainter>
#include <QTest>

namespace {

/// How much ink a line of text takes. Fonts of another strategy are drawn anew.
int inkOfText(QFont::StyleStrategy strategy)
{
    QFont font(u"Noto Sans CJK SC"_qs, -1, QFont::Normal);
    font.setPixelSize(15);
    font.setStyleStrategy(strategy);
    QImage image(400, 40, QImage::Format_Grayscale8);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        painter.setFont(font);
        painter.drawText(QPoint(10, 25), u"已检查公开信息，归并、去重和过滤后留下。"_qs);
    }
    int ink = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ink += 255 - qGray(image.pixel(x, y));
        }
    }
    return ink;
}

} // namespace

class StemDarkeningTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lettersAreDrawnAsThickAsTheirOutlines()
    {
        const int darkened = inkOfText(QFont::PreferDefault);

        StemDarkening::switchOff();

        const int plain = inkOfText(QFont::PreferQuality);
        QVERIFY(plain > 0);
        QVERIFY2(plain * 20 < darkened * 19, qPrintable(u"%1 of %2"_qs.arg(plain).arg(darkened)));
    }
};

TEST_SUBJECT(StemDarkeningTest)
#include "StemDarkeningTest.moc"
