// SPDX-License-Identifier: Apache-2.0

#include "NumericCharacter.h"
#include "Subject.h"

#include <QTest>

class NumericCharacterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tells_data()
    {
        QTest::addColumn<char32_t>("character");
        QTest::addColumn<bool>("numeric");

        QTest::newRow("ASCII digit") << U'7' << true;
        QTest::newRow("full-width digit") << U'２' << true;
        QTest::newRow("Arabic digit") << U'٣' << true;
        QTest::newRow("mathematical digit") << U'𝟏' << true;
        QTest::newRow("Roman numeral") << U'Ⅳ' << true;
        QTest::newRow("circled") << U'①' << true;
        QTest::newRow("fraction") << U'½' << true;
        QTest::newRow("superscript") << U'³' << true;
        QTest::newRow("ideographic zero") << U'〇' << true;
        QTest::newRow("first ideograph") << U'㐅' << true;
        QTest::newRow("one") << U'一' << true;
        QTest::newRow("five") << U'五' << true;
        QTest::newRow("zero in words") << U'零' << true;
        QTest::newRow("hundred million") << U'億' << true;
        QTest::newRow("accounting three") << U'叁' << true;
        QTest::newRow("last ideograph") << U'\U0002F890' << true;
        QTest::newRow("digit of Unicode 15") << U'\U00011F51' << true;
        QTest::newRow("beyond Unicode") << char32_t{0x110000} << false;
        QTest::newRow("letter") << U'a' << false;
        QTest::newRow("sign") << U'-' << false;
        QTest::newRow("blank") << U' ' << false;
        QTest::newRow("other ideograph") << U'中' << false;
        QTest::newRow("combining accent") << U'\u0301' << false;
        QTest::newRow("zero-width joiner") << U'\u200D' << false;
    }

    void tells()
    {
        QFETCH(char32_t, character);

        QTEST(isNumericCharacter(character), "numeric");
    }
};

TEST_SUBJECT(NumericCharacterTest)
#include "NumericCharacterTest.moc"
