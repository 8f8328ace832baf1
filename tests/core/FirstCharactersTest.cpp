// SPDX-License-Identifier: Apache-2.0

#include "FirstCharacters.h"
#include "Subject.h"

#include <QTest>

class FirstCharactersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsAsAReaderDoes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("first");

        QTest::newRow("nothing") << QString() << QString();
        QTest::newRow("shorter") << u"信号"_qs << u"信号"_qs;
        QTest::newRow("as long") << u"三个字"_qs << u"三个字"_qs;
        QTest::newRow("longer") << u"2026-09-02"_qs << u"202"_qs;
        QTest::newRow("two units each") << u"😀😀😀😀"_qs << u"😀😀😀"_qs;
        QTest::newRow("a combining mark")
            << u"e\u0301e\u0301e\u0301e"_qs << u"e\u0301e\u0301e\u0301"_qs;
    }

    void countsAsAReaderDoes()
    {
        QFETCH(const QString, text);
        QTEST(firstCharacters(text, 3), "first");
    }

    void noneOfThemIsNothing() { QCOMPARE(firstCharacters(u"字"_qs, 0), QString()); }
};

TEST_SUBJECT(FirstCharactersTest)
#include "FirstCharactersTest.moc"
