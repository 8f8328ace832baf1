// SPDX-License-Identifier: Apache-2.0

#include "PrintableText.h"
#include "Subject.h"

#include <QTest>

class PrintableTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void steersNothing_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("lines");

        QTest::newRow("empty") << QString() << QStringList{QString()};
        QTest::newRow("line ends")
            << u"a\nb\r\nc\rd\u2028e\u2029f"_qs
            << QStringList{u"a"_qs, u"b"_qs, u"c"_qs, u"d"_qs, u"e"_qs, u"f"_qs};
        QTest::newRow("empty lines")
            << u"\n\na\n\nb\n \n\n"_qs << QStringList{{}, {}, u"a"_qs, {}, u"b"_qs};
        QTest::newRow("line end at the end") << u"a\n"_qs << QStringList{u"a"_qs};
        QTest::newRow("tab") << u"a\tb"_qs << QStringList{u"a b"_qs};
        QTest::newRow("escape") << u"\u001B[2J"_qs << QStringList{u"\uFFFD[2J"_qs};
        QTest::newRow("escape of one character")
            << u"\u009B2J\u007F"_qs << QStringList{u"\uFFFD2J\uFFFD"_qs};
        QTest::newRow("half a character") << QString(QChar(0xD83D)) << QStringList{u"\uFFFD"_qs};
    }

    void steersNothing()
    {
        QFETCH(const QString, text);
        QFETCH(const QStringList, lines);

        QCOMPARE(PrintableText::lines(text), lines);
        QCOMPARE(PrintableText::oneLine(text).trimmed(), lines.join(u' ').trimmed());
    }
};

TEST_SUBJECT(PrintableTextTest)
#include "PrintableTextTest.moc"
