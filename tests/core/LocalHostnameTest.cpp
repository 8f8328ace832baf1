// SPDX-License-Identifier: Apache-2.0

#include "LocalHostname.h"
#include "Subject.h"

#include <QTest>

class LocalHostnameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tells_data()
    {
        QTest::addColumn<QString>("host");
        QTest::addColumn<bool>("isUnsafe");

        const auto rows = [](bool isUnsafe, std::initializer_list<const char*> hosts) {
            for (const char* host : hosts) {
                QTest::newRow(*host ? host : "empty") << QString::fromUtf8(host) << isUnsafe;
            }
        };
        // Names.
        rows(true, {"localhost", "a.localhost", "a.b.localhost", "x.local", "printer.local"});
        rows(false, {"", "local", "notlocalhost", "localhost.com", "local.example", "x.localx",
                     "x.notlocal", "intranet", "example.com", "10.example", "0x7f.example"});

        // The edges of each range.
        rows(true, {"0.0.0.0",      "0.255.255.255",   "10.0.0.0",    "10.255.255.255",
                    "100.64.0.0",   "100.127.255.255", "127.0.0.1",   "127.255.255.255",
                    "169.254.0.0",  "169.254.255.255", "172.16.0.0",  "172.31.255.255",
                    "192.0.2.0",    "192.0.2.255",     "192.88.99.0", "192.88.99.255",
                    "192.168.0.0",  "192.168.255.255", "198.18.0.0",  "198.19.255.255",
                    "198.51.100.0", "198.51.100.255",  "203.0.113.0", "203.0.113.255",
                    "224.0.0.0",    "255.255.255.255"});
        rows(false, {"1.0.0.0",      "9.255.255.255",   "11.0.0.0",     "100.63.255.255",
                     "100.128.0.0",  "126.255.255.255", "128.0.0.0",    "169.253.255.255",
                     "169.255.0.0",  "172.15.255.255",  "172.32.0.0",   "192.0.1.255",
                     "192.0.3.0",    "192.88.98.255",   "192.88.100.0", "192.167.255.255",
                     "192.169.0.0",  "198.17.255.255",  "198.20.0.0",   "198.51.99.255",
                     "198.51.101.0", "203.0.112.255",   "203.0.114.0",  "223.255.255.255",
                     "8.8.8.8"});

        // Short and hexadecimal spellings.
        rows(true, {"0", "0x0", "127.1", "127.0.1", "10.1", "192.168.257", "172.1048576",
                    "2130706433", "0x7f000001", "0X7F000001", "0x7f.1", "0x7f.0.0.1",
                    "192.168.0x1.2", "0xc0.0xa8.1.2", "0x000000000000000007f.0.0.1"});
        rows(false, {"8.8", "134744072", "0x08080808", "0x7e.0xff.0xff.0xff", "172.1048575"});

        // A leading zero as padding and as the sign of octal.
        rows(true, {"127.0.0.01", "010.8.8.8", "0177.0.0.1", "0177.1", "017700000001", "012.1.2.3",
                    "000.000.000.000", "0300.0250.1.2", "010.0x8.8.8"});
        rows(false, {"08.8.8.8", "144.100.000.001", "0254.1.1.1x"});

        // No address: too many parts, or a part that is too great.
        rows(false,
             {"1.2.3.4.5", "127.0.0.0.1", "127.0.0.1.0", "1.256.1.1", "256.0.0.1", "0x100000000",
              "4294967296", "127.16777216", "99999999999999999999", "012.377.377.376", "0xg", "0x",
              "127..1", ".127.0.0.1", "+127.0.0.1", "-1", "1e1", "127.0.0.1x"});

        // IPv6.
        rows(true, {"[::]", "[::1]", "[0:0:0:0:0:0:0:1]", "[::0001]", "[::1%25lo]", "[fc00::1]",
                    "[fdff:ffff::1]", "[fe80::1]", "[fe80::1%25eth0]", "[febf::1]", "[ff02::1]",
                    "[2001:db8::1]", "[2001:0db8:ffff::]", "[::ffff:127.0.0.1]",
                    "[::ffff:10.0.0.1]", "[::ffff:7f00:1]", "[0:0:0:0:0:ffff:c0a8:101]",
                    "[::ffff:0.0.0.0]", "[::ffff:192.0.2.1]"});
        rows(false, {"[2606:4700::1111]", "[2606:4700::1111%25eth0]", "[fbff::1]", "[fe00::1]",
                     "[fe7f::1]", "[2001:db7::1]", "[2001:db9::1]", "[2001:db80::1]",
                     "[::ffff:8.8.8.8]", "[::2]", "[::1:1]", "[1::1]"});
        // Of another prefix than that of IPv4 addresses.
        rows(false, {"[::100:7f00:1]", "[::1ff:7f00:1]", "[::ff00:7f00:1]", "[2600::ff:7f00:1]",
                     "[2600::ffff:7f00:1]"});
    }

    void tells()
    {
        QFETCH(QString, host);

        QTEST(isUnsafeLocalHostname(host), "isUnsafe");
    }
};

TEST_SUBJECT(LocalHostnameTest)
#include "LocalHostnameTest.moc"
