// SPDX-License-Identifier: Apache-2.0

#include "DecimalNumber.h"
#include "Subject.h"

#include <QTest>

#include <limits>

class DecimalNumberTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reads_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<std::optional<qint64>>("expected");

        const auto row = [](const char* name, const QString& text, std::optional<qint64> expected) {
            QTest::newRow(name) << text << expected;
        };
        row("zero", u"0"_qs, 0);
        row("leading zeros", u"007"_qs, 7);
        row("greatest", u"9223372036854775807"_qs, std::numeric_limits<qint64>::max());
        row("greatest behind zeros", u"0009223372036854775807"_qs,
            std::numeric_limits<qint64>::max());
        row("one more", u"9223372036854775808"_qs, std::nullopt);
        row("far more", u"99999999999999999999"_qs, std::nullopt);
        row("empty", QString(), std::nullopt);
        row("sign", u"+1"_qs, std::nullopt);
        row("minus", u"-1"_qs, std::nullopt);
        row("behind the digits", u"1:"_qs, std::nullopt);
        row("before the digits", u"1/"_qs, std::nullopt);
        row("white space", u" 1"_qs, std::nullopt);
        row("hexadecimal", u"1f"_qs, std::nullopt);
        row("full-width digits", u"１２"_qs, std::nullopt);
        row("Arabic digits", u"٣"_qs, std::nullopt);
    }

    void reads()
    {
        QFETCH(QString, text);
        QFETCH(std::optional<qint64>, expected);

        QCOMPARE(decimalNumber(text), expected);
    }
};

TEST_SUBJECT(DecimalNumberTest)
#include "DecimalNumberTest.moc"
