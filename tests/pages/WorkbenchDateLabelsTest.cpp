// SPDX-License-Identifier: Apache-2.0

#include "WorkbenchDateLabels.h"
#include "Subject.h"

#include <QTest>

class WorkbenchDateLabelsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void label_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("expected");

        const auto row = [](const QString& value, const QString& expected) {
            QTest::newRow(qPrintable(value)) << value << expected;
        };
        row(u"2026-08-27T04:01:03.784Z"_qs, u"8月27日"_qs);
        row(u"2026-08-27T04:01:03Z"_qs, u"8月27日"_qs);
        row(u"2026-08-27T15:59:59Z"_qs, u"8月27日"_qs);
        row(u"2026-08-27T16:00:00Z"_qs, u"8月28日"_qs);
        row(u"2026-12-31T16:00:00Z"_qs, u"1月1日"_qs);
        row(u"2026-08-28T00:30:00+09:00"_qs, u"8月27日"_qs);
        // A day is itself in every time zone.
        row(u"2026-08-27"_qs, u"8月27日"_qs);
        row(u"2026-01-01"_qs, u"1月1日"_qs);
        row(u"2024-02-29"_qs, u"2月29日"_qs);
        for (const QString& unread :
             {u""_qs, u"T"_qs, u"bad"_qs, u"2026-13-01"_qs, u"2026-02-29"_qs, u"2025-02-31"_qs,
              u"2026-8-7"_qs, u"2026-08-27 "_qs, u"2026-08-27-"_qs, u"2026-08-27T"_qs,
              u"2026-08-27T04:01:03"_qs, u"2026-08-27t04:01:03Z"_qs, u"8 月 27 日"_qs}) {
            row(unread, unread);
        }
    }

    void label()
    {
        QFETCH(QString, value);

        QTEST(WorkbenchDateLabels::label(value), "expected");
    }
};

TEST_SUBJECT(WorkbenchDateLabelsTest)
#include "WorkbenchDateLabelsTest.moc"
