// SPDX-License-Identifier: Apache-2.0

#include "FeedTime.h"
#include "Subject.h"

#include <QTest>

class FeedTimeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheTimesOfFeeds_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("stamp");

        const QString morning = u"2026-08-26T02:30:00.000Z"_qs;
        QTest::newRow("ISO") << u"2026-08-26T02:30:00Z"_qs << morning;
        QTest::newRow("ISO with offset") << u"2026-08-26T10:30:00+08:00"_qs << morning;
        QTest::newRow("ISO with fraction")
            << u"2026-08-26T02:30:00.25Z"_qs << u"2026-08-26T02:30:00.250Z"_qs;
        QTest::newRow("day") << u"2026-08-26"_qs << u"2026-08-26T00:00:00.000Z"_qs;
        QTest::newRow("mail") << u"Wed, 26 Aug 2026 10:30:00 +0800"_qs << morning;
        QTest::newRow("mail, white space")
            << u"\n  Wed, 26 Aug 2026 10:30:00 +0800 \n"_qs << morning;
        QTest::newRow("mail, no day of week") << u"26 Aug 2026 02:30:00 GMT"_qs << morning;
        QTest::newRow("mail, no seconds") << u"26 Aug 2026 02:30 UT"_qs << morning;
        QTest::newRow("mail, two digits of the year") << u"26 Aug 26 02:30:00 Z"_qs << morning;
        QTest::newRow("mail, last century")
            << u"2 Jan 98 00:00:00 GMT"_qs << u"1998-01-02T00:00:00.000Z"_qs;
        QTest::newRow("mail, a zone's name") << u"Tue, 25 Aug 2026 22:30:00 EDT"_qs << morning;
        QTest::newRow("mail, west") << u"Tue, 25 Aug 2026 21:00:00 -0530"_qs << morning;
        QTest::newRow("mail, month in full") << u"Wed, 26 August 2026 02:30:00 GMT"_qs << morning;

        QTest::newRow("nothing") << QString() << QString();
        QTest::newRow("words") << u"last week"_qs << QString();
        QTest::newRow("no zone") << u"Wed, 26 Aug 2026 10:30:00"_qs << QString();
        QTest::newRow("unknown zone") << u"Wed, 26 Aug 2026 10:30:00 QQQ"_qs << QString();
        QTest::newRow("no such day") << u"Wed, 31 Feb 2026 10:30:00 GMT"_qs << QString();
        QTest::newRow("no such month") << u"Wed, 26 Ago 2026 10:30:00 GMT"_qs << QString();
        QTest::newRow("no such hour") << u"Wed, 26 Aug 2026 25:30:00 GMT"_qs << QString();
    }

    void readsTheTimesOfFeeds()
    {
        QFETCH(QString, text);
        QTEST(FeedTime::stamp(text).value_or(QString()), "stamp");
    }
};

TEST_SUBJECT(FeedTimeTest)
#include "FeedTimeTest.moc"
