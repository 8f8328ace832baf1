// SPDX-License-Identifier: Apache-2.0

#include "PaddedNumber.h"
#include "Subject.h"

#include <QTest>

#include <limits>

class PaddedNumberTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesAsPrintfDoes_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<int>("width");

        for (const int number :
             {0, 7, 42, 2026, 12345, -1, -12, -2026, std::numeric_limits<int>::max(),
              std::numeric_limits<int>::min()}) {
            for (const int width : {1, 2, 4, 12}) {
                QTest::addRow("%d in %d", number, width) << number << width;
            }
        }
    }

    void writesAsPrintfDoes()
    {
        QFETCH(int, number);
        QFETCH(int, width);

        QString text = u"W"_qs;
        appendPadded(text, number, width);
        QCOMPARE(text, QString::asprintf("W%0*d", width, number));
    }
};

TEST_SUBJECT(PaddedNumberTest)
#include "PaddedNumberTest.moc"
