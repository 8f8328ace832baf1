// SPDX-License-Identifier: Apache-2.0

#include "RelatedSourceRow.h"
#include "Subject.h"

#include <QTest>

class RelatedSourceRowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsEverySourceAndTheAddressesThatMayBeOpened()
    {
        const auto rows = RelatedSourceRow::listOf({{u"官网"_qs, u"https://origin.example/"_qs},
                                                    {u"本机文件"_qs, u"file:///etc/passwd"_qs},
                                                    {u"官网"_qs, u"https://origin.example/"_qs}});

        QCOMPARE(rows.size(), 3);
        QCOMPARE(rows.at(0).label, u"官网"_qs);
        QCOMPARE(rows.at(0).address, u"https://origin.example/"_qs);
        QCOMPARE(rows.at(1).label, u"本机文件"_qs);
        QCOMPARE(rows.at(1).address, QString());
        QCOMPARE(rows.at(2), rows.at(0));
    }
};

TEST_SUBJECT(RelatedSourceRowTest)
#include "RelatedSourceRowTest.moc"
