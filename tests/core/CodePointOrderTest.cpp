// SPDX-License-Identifier: Apache-2.0

#include "CodePointOrder.h"
#include "Subject.h"

#include <QTest>

class CodePointOrderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ordersByCodePoint_data()
    {
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("right");
        QTest::addColumn<bool>("less");

        QTest::newRow("equal") << u"a"_qs << u"a"_qs << false;
        QTest::newRow("prefix") << u"a"_qs << u"ab"_qs << true;
        QTest::newRow("empty") << QString() << u"a"_qs << true;
        QTest::newRow("letters") << u"b"_qs << u"a"_qs << false;
        QTest::newRow("upper before lower") << u"Z"_qs << u"a"_qs << true;
        QTest::newRow("private use before emoji") << u"\uE000"_qs << u"\U0001F600"_qs << true;
        QTest::newRow("emoji after last of basic plane")
            << u"\U0001F600"_qs << u"\uFFFD"_qs << false;
        QTest::newRow("within the upper planes") << u"\U0001F600"_qs << u"\U0001F601"_qs << true;
    }

    void ordersByCodePoint()
    {
        QFETCH(QString, left);
        QFETCH(QString, right);
        QFETCH(bool, less);

        QCOMPARE(codePointLess(left, right), less);
    }

    void theFirstDifferenceDecidesWhereverItIs()
    {
        for (qsizetype length = 1; length <= 12; ++length) {
            const QString text(length, u'm');
            for (qsizetype at = 0; at < length; ++at) {
                QString greater(length, u'a');
                greater.replace(0, at, text.first(at));
                greater[at] = u'n';

                QVERIFY(codePointLess(text, greater));
                QVERIFY(!codePointLess(greater, text));
            }
            QVERIFY(!codePointLess(text, text));
            QVERIFY(codePointLess(text.chopped(1), text));
            QVERIFY(!codePointLess(text, text.chopped(1)));
        }
    }

    void theEdgesOfThePlanesStandInOrder()
    {
        const QStringList ascending{u"\uD7FF"_qs,     u"\uE000"_qs,    u"\uF7FF"_qs,
                                    u"\uF800"_qs,     u"\uFFFF"_qs,    u"\U00010000"_qs,
                                    u"\U0010FFFE"_qs, u"\U0010FFFF"_qs};
        for (const QString& left : ascending) {
            for (const QString& right : ascending) {
                QCOMPARE(codePointLess(left, right),
                         ascending.indexOf(left) < ascending.indexOf(right));
            }
        }
    }
};

TEST_SUBJECT(CodePointOrderTest)
#include "CodePointOrderTest.moc"
