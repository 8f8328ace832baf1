// SPDX-License-Identifier: Apache-2.0

#include "FontFamilies.h"
#include "Subject.h"

#include <QTest>

class FontFamiliesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void picks_data()
    {
        QTest::addColumn<QStringList>("installed");
        QTest::addColumn<QString>("sans");
        QTest::addColumn<QString>("serif");

        QTest::newRow("Noto") << QStringList{u"Noto Serif CJK SC"_qs, u"Source Han Sans SC"_qs,
                                             u"Noto Sans CJK SC"_qs, u"Songti SC"_qs}
                              << u"Noto Sans CJK SC"_qs << u"Noto Serif CJK SC"_qs;
        QTest::newRow("Source Han")
            << QStringList{u"Source Han Sans SC"_qs, u"Source Han Serif SC"_qs}
            << u"Source Han Sans SC"_qs << u"Source Han Serif SC"_qs;
        QTest::newRow("Apple") << QStringList{u"PingFang SC"_qs, u"Songti SC"_qs}
                               << u"PingFang SC"_qs << u"Songti SC"_qs;
        QTest::newRow("no serif family: titles in the sans family")
            << QStringList{u"Microsoft YaHei"_qs} << u"Microsoft YaHei"_qs << u"Microsoft YaHei"_qs;
        QTest::newRow("Japanese only: the system's family")
            << QStringList{u"Noto Sans CJK JP"_qs, u"Noto Serif CJK JP"_qs} << u"System"_qs
            << u"System"_qs;
    }

    void picks()
    {
        QFETCH(const QStringList, installed);
        const FontFamilies families(
            [&installed](const QString& family) { return installed.contains(family); },
            u"System"_qs);
        QTEST(families.sans(), "sans");
        QTEST(families.serif(), "serif");
    }
};

TEST_SUBJECT(FontFamiliesTest)
#include "FontFamiliesTest.moc"
