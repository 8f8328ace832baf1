// SPDX-License-Identifier: Apache-2.0

#include "BodyLength.h"
#include "Subject.h"

#include <QTest>

using Announced = std::optional<qint64>;
class BodyLengthTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBodyShorterThanAnnouncedIsCutShort_data()
    {
        QTest::addColumn<Announced>("announced");
        QTest::addColumn<QByteArray>("encoding");
        QTest::addColumn<qint64>("received");
        QTest::addColumn<bool>("isCutShort");

        const auto row = [](const char* name, Announced announced, const QByteArray& encoding,
                            qint64 received, bool isCutShort) {
            QTest::newRow(name) << announced << encoding << received << isCutShort;
        };
        row("whole", 10, {}, 10, false);
        row("empty as announced", 0, {}, 0, false);
        row("one byte short", 10, {}, 9, true);
        row("nothing came", 10, {}, 0, true);
        row("longer than announced", 10, {}, 11, false);
        row("not announced", std::nullopt, {}, 0, false);
        row("unpacked to more", 10, "gzip", 30, false);
        row("unpacked to less", 30, "br", 10, false);
    }

    void aBodyShorterThanAnnouncedIsCutShort()
    {
        QFETCH(const Announced, announced);
        QFETCH(const QByteArray, encoding);
        QFETCH(const qint64, received);

        QTEST(BodyLength::isCutShort(announced, encoding, received), "isCutShort");
    }
};

TEST_SUBJECT(BodyLengthTest)
#include "BodyLengthTest.moc"
