// SPDX-License-Identifier: Apache-2.0

#include "LetterWidths.h"
#include "FreeTypeOutlines.h"
#include "Subject.h"

#include <QFont>
#include <QFontMetricsF>
#include <QTest>

#include <cmath>

namespace {

QFont fontOf(const QString& family, int pixelSize, QFont::Weight weight = QFont::Normal)
{
    QFont font(family);
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    return font;
}

double widthOf(const QFont& font, const QString& text)
{
    return QFontMetricsF(font).horizontalAdvance(text);
}

/// How many outlines it takes to know how wide letters are that were never asked for.
int outlinesFor(const QFont& font, const QString& text)
{
    widthOf(font, u"信"_qs);
    return FreeTypeOutlines::takenApartDuring([&] { widthOf(font, text); });
}

} // namespace

class LetterWidthsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void widthsAreThoseOfTheOutlines_data()
    {
        QTest::addColumn<QFont>("font");
        for (const int size : {12, 13, 15}) {
            for (const auto weight : {QFont::Normal, QFont::Bold}) {
                QTest::addRow("sans %d, weight %d", size, int(weight))
                    << fontOf(u"Noto Sans CJK SC"_qs, size, weight);
            }
        }
        QTest::newRow("serif") << fontOf(u"Noto Serif CJK SC"_qs, 19, QFont::Bold);
        QFont wide = fontOf(u"Noto Sans CJK SC"_qs, 17);
        wide.setLetterSpacing(QFont::AbsoluteSpacing, 0.6);
        QTest::newRow("spaced") << wide;
        QFont slanted = fontOf(u"Noto Sans CJK SC"_qs, 18);
        slanted.setItalic(true);
        QTest::newRow("slanted") << slanted;
    }

    void widthsAreThoseOfTheOutlines()
    {
        QFETCH(const QFont, font);
        const QStringList texts = {u"少而可信的信号"_qs, u"AVATAR Qt 6.4，第 22 期"_qs,
                                   u"“引号”——"_qs, u"ffi ½ ﬀ"_qs, u"🙂 mixed 字"_qs};
        QList<double> ofOutlines;
        for (const auto& text : texts) {
            ofOutlines.append(widthOf(font, text));
        }

        LetterWidths::readFromTable(font);

        for (qsizetype i = 0; i < texts.size(); ++i) {
            QCOMPARE(widthOf(font, texts.at(i)), ofOutlines.at(i));
        }
    }

    void noOutlineIsTakenApartForAWidth()
    {
        const QFont font = fontOf(u"Noto Sans CJK SC"_qs, 21);
        QVERIFY(outlinesFor(font, u"轻盈"_qs) >= 2);

        LetterWidths::readFromTable(font);

        QCOMPARE(outlinesFor(font, u"迅捷 light"_qs), 0);

        LetterWidths::readFromTable(font);

        QCOMPARE(outlinesFor(font, u"安静 calm"_qs), 0);
    }

    void lettersThatFitWholePixelsKeepTheirWidths()
    {
        QFont font = fontOf(u"Noto Sans CJK SC"_qs, 14);
        font.setHintingPreference(QFont::PreferFullHinting);
        const double fitted = widthOf(font, u"m"_qs);
        QCOMPARE(fitted, std::round(fitted));

        LetterWidths::readFromTable(font);

        QCOMPARE(widthOf(font, u"m"_qs), fitted);
        QVERIFY(outlinesFor(font, u"合身"_qs) >= 2);
    }

    void aFontThatIsSlantedByQtStaysAsItIs()
    {
        QFont font = fontOf(u"Noto Sans CJK SC"_qs, 20);
        font.setItalic(true);

        LetterWidths::readFromTable(font);

        QVERIFY(outlinesFor(font, u"倾斜"_qs) >= 2);
    }
};

TEST_SUBJECT(LetterWidthsTest)
#include "LetterWidthsTest.moc"
