// SPDX-License-Identifier: Apache-2.0

#include "Ipv6Literal.h"
#include "Subject.h"

#include <QTest>

using Address = std::array<quint8, 16>;

class Ipv6LiteralTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reads_data()
    {
        QTest::addColumn<QString>("host");
        QTest::addColumn<std::optional<Address>>("expected");

        const auto row = [](const QString& host, const std::optional<Address>& expected) {
            QTest::newRow(host.isEmpty() ? "empty" : qPrintable(host)) << host << expected;
        };
        constexpr Address loopback{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
        constexpr Address linkLocal{0xFE, 0x80, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
        constexpr Address mapped{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xFF, 192, 168, 1, 2};
        row(u"[::1]"_qs, loopback);
        row(u"[0000:0000:0000:0000:0000:0000:0000:0001]"_qs, loopback);
        row(u"[::0.0.0.1]"_qs, loopback);
        row(u"[FE80::1]"_qs, linkLocal);
        row(u"[fe80::1%25eth0]"_qs, linkLocal);
        row(u"[::ffff:192.168.1.2]"_qs, mapped);
        row(u"[::ffff:c0a8:102]"_qs, mapped);
        for (const QString& other :
             {u""_qs, u"::1"_qs, u"[]"_qs, u"[::1"_qs, u"[g::1]"_qs, u"[12345::1]"_qs,
              u"[1:2:3:4:5:6:7:8:9]"_qs, u"[1::2::3]"_qs, u"[127.0.0.1]"_qs, u"[::ffff:1.2.3]"_qs,
              u"[::ffff:0x7f.0.0.1]"_qs, u"[fe80::1%eth0]"_qs, u"[fe80::1%25]"_qs,
              u"[fe80::1%25a%20b]"_qs, u"[v1.x]"_qs, u"[ ::1]"_qs}) {
            row(other, std::nullopt);
        }
    }

    void reads()
    {
        QFETCH(QString, host);
        QFETCH(std::optional<Address>, expected);

        QVERIFY(ipv6LiteralAddress(host) == expected);
    }
};

TEST_SUBJECT(Ipv6LiteralTest)
#include "Ipv6LiteralTest.moc"
