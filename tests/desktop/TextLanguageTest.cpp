// SPDX-License-Identifier: Apache-2.0

#include "TextLanguage.h"
#include "Subject.h"

#include <QFontMetricsF>
#include <QTest>

class TextLanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // In any other language a dash is as short as a Latin one, and closes up with what follows.
    void aChineseDashIsTwoCharactersLong()
    {
        QFont font(u"Noto Sans CJK SC"_qs);
        font.setPixelSize(20);
        const QFontMetricsF metrics(font);
        const QString text = u"表——“少而可信”"_qs;
        const auto whole = 20 * static_cast<double>(text.size());
        QVERIFY(metrics.horizontalAdvance(text) < whole - 5);

        TextLanguage::setChinese();

        QVERIFY(metrics.horizontalAdvance(text) > whole - 1);
    }
};

TEST_SUBJECT(TextLanguageTest)
#include "TextLanguageTest.moc"
