// SPDX-License-Identifier: Apache-2.0

#include "InformationUpdateNotice.h"
#include "FormatExamples.h"
#include "Subject.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <limits>

using Components = std::array<qint64, 3>;

namespace {

const QString allowedHost = QStringLiteral("corvanite.example");

QJsonObject complete()
{
    return {{u"schemaVersion"_qs, u"corvanite-information-app-version-v1"_qs},
            {u"version"_qs, u"1.4.0"_qs},
            {u"build"_qs, u"140"_qs},
            {u"downloadUrl"_qs, u"https://corvanite.example/download/app.deb"_qs},
            {u"sha256"_qs, u"abc123"_qs},
            {u"sizeBytes"_qs, 12345678},
            {u"notes"_qs, QJsonObject{{u"zh"_qs, u"修复问题"_qs}, {u"en"_qs, u"Fixes"_qs}}}};
}

QJsonObject with(const QString& key, const QJsonValue& value)
{
    QJsonObject document = complete();
    document.insert(key, value);
    return document;
}

QJsonObject without(const QString& key)
{
    QJsonObject document = complete();
    document.remove(key);
    return document;
}

auto parse(const QJsonObject& document)
{
    return InformationUpdateNotice::parse(QJsonDocument(document).toJson(), allowedHost);
}

} // namespace

class InformationUpdateNoticeTest : public QObject
{
    Q_OBJECT

    using Kind = InformationUpdateNotice::ParseError::Kind;

private Q_SLOTS:
    void theExampleOfTheFormat()
    {
        const auto notice =
            InformationUpdateNotice::parse(formatExample(u"app-version.json"_qs), allowedHost);
        QVERIFY(notice.has_value());
        QCOMPARE(
            *notice,
            (InformationUpdateNotice{
                .version = u"1.2.0"_qs,
                .build = u"120"_qs,
                .downloadURL = QUrl(
                    u"https://corvanite.example/download/corvanite-information_1.2.0_amd64.deb"_qs),
                .sha256 = u"9f86d081884c7d659a2feaa0c55ad015a3bf4f1b2b0b822cd15d6c15b0f00a08"_qs,
                .sizeBytes = 5242880,
                .notesZH = u"今日列表更快展开；修复了往期页面的日期显示。"_qs,
            }));
    }

    void whatIsOptionalMayBeMissing()
    {
        for (const QJsonObject& document : {without(u"build"_qs), with(u"build"_qs, {})}) {
            QCOMPARE(parse(document)->build, QString());
        }
        for (const QJsonObject& document : {without(u"sizeBytes"_qs), with(u"sizeBytes"_qs, {})}) {
            QCOMPARE(parse(document)->sizeBytes, std::nullopt);
        }
        for (const QJsonObject& document :
             {without(u"notes"_qs), with(u"notes"_qs, {}), with(u"notes"_qs, QJsonObject()),
              with(u"notes"_qs, QJsonObject{{u"en"_qs, u"Fixes"_qs}})}) {
            QCOMPARE(parse(document)->notesZH, QString());
        }
    }

    void whatIsUnknownIsIgnored()
    {
        QCOMPARE(parse(with(u"extra"_qs, QJsonObject{{u"x"_qs, 1}})), parse(complete()));
        QCOMPARE(parse(with(u"Version"_qs, u"9.9.9"_qs)), parse(complete()));
    }

    void aWholeNumberMayBeWrittenAsAnother()
    {
        const QByteArray document =
            QJsonDocument(complete()).toJson().replace("12345678", "1234567.8e1");
        QCOMPARE(InformationUpdateNotice::parse(document, allowedHost)->sizeBytes, 12345678);
        QCOMPARE(parse(with(u"sizeBytes"_qs, -1))->sizeBytes, -1);
    }

    void undecodable_data()
    {
        QTest::addColumn<QByteArray>("document");

        QTest::newRow("no bytes") << QByteArray();
        QTest::newRow("no JSON") << QByteArray("<html>");
        QTest::newRow("an array") << QByteArray("[]");
        QTest::newRow("two documents") << QByteArray("{}{}");
        QTest::newRow("not UTF-8")
            << QJsonDocument(complete()).toJson().replace("Fixes", "Fi\xFFxes");
        const auto row = [](const char* name, const QString& key, const QJsonValue& value) {
            QTest::newRow(name) << QJsonDocument(with(key, value)).toJson();
        };
        row("schema as a number", u"schemaVersion"_qs, 1);
        row("version as a number", u"version"_qs, 1.5);
        row("build as a number", u"build"_qs, 140);
        row("link as a list", u"downloadUrl"_qs, QJsonArray());
        row("checksum as true", u"sha256"_qs, true);
        row("size as a text", u"sizeBytes"_qs, u"1"_qs);
        row("size as a fraction", u"sizeBytes"_qs, 1.5);
        row("size beyond 64 bits", u"sizeBytes"_qs, 1e19);
        row("notes as a text", u"notes"_qs, u"x"_qs);
        row("Chinese notes as a number", u"notes"_qs, QJsonObject{{u"zh"_qs, 1}});
        row("English notes as a number", u"notes"_qs, QJsonObject{{u"en"_qs, 1}});
    }

    void undecodable()
    {
        QFETCH(QByteArray, document);

        const auto notice = InformationUpdateNotice::parse(document, allowedHost);
        QVERIFY(!notice.has_value());
        QCOMPARE(notice.error(),
                 (InformationUpdateNotice::ParseError{Kind::WrongSchemaVersion, std::nullopt}));
    }

    void refused_data()
    {
        QTest::addColumn<QJsonObject>("document");
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<std::optional<QString>>("payload");

        const auto row = [](const char* name, const QJsonObject& document, Kind kind,
                            const std::optional<QString>& payload) {
            QTest::newRow(name) << document << kind << payload;
        };
        row("schema missing", without(u"schemaVersion"_qs), Kind::WrongSchemaVersion, std::nullopt);
        row("schema null", with(u"schemaVersion"_qs, {}), Kind::WrongSchemaVersion, std::nullopt);
        for (const QString& schema : {u""_qs, u"corvanite-information-app-version-v2"_qs,
                                      u"Corvanite-Information-App-Version-v1"_qs,
                                      u"corvanite-information-app-version-v1 "_qs,
                                      u"corvanite-information-app-version-v1\u0000"_qs}) {
            row(qPrintable(u"schema \"%1\""_qs.arg(schema)), with(u"schemaVersion"_qs, schema),
                Kind::WrongSchemaVersion, schema);
        }

        row("version missing", without(u"version"_qs), Kind::MissingField, u"version"_qs);
        for (const QString& version :
             {u""_qs, u"+"_qs, u"1.2"_qs, u"1.2.3-beta"_qs, u"v1.2.3"_qs}) {
            row(qPrintable(u"version \"%1\""_qs.arg(version)), with(u"version"_qs, version),
                Kind::MissingField, u"version"_qs);
        }

        row("link missing", without(u"downloadUrl"_qs), Kind::UntrustedDownloadURL, u""_qs);
        for (const QString& link : {
                 u""_qs,
                 u"http://corvanite.example/x"_qs,
                 u"HTTPS://corvanite.example/x"_qs,
                 u"https://Corvanite.example/x"_qs,
                 u"https://www.corvanite.example/x"_qs,
                 u"https://corvanite.example./x"_qs,
                 u"https://corvanite%2Eexample/x"_qs,
                 u"https://corvanite.examplе/x"_qs,
                 u"https://corvanite.example.evil.example/x"_qs,
                 u"https://corvanite.example@evil.example/x"_qs,
                 u"https://evil.example/corvanite.example"_qs,
                 u"https://evil.example\\@corvanite.example"_qs,
                 u"https://xcorvanite.example/"_qs,
                 u"https://corvanite.example:x/"_qs,
                 u"https://corvanite.example/a b"_qs,
                 u"https:///corvanite.example"_qs,
                 u"https:/corvanite.example/x"_qs,
                 u"https:corvanite.example/x"_qs,
                 u"//corvanite.example/x"_qs,
                 u"corvanite.example/x"_qs,
                 u"file://corvanite.example/x"_qs,
                 u" https://corvanite.example/x"_qs,
             }) {
            row(qPrintable(u"link \"%1\""_qs.arg(link)), with(u"downloadUrl"_qs, link),
                Kind::UntrustedDownloadURL, link);
        }

        row("checksum missing", without(u"sha256"_qs), Kind::MissingField, u"sha256"_qs);
        row("checksum empty", with(u"sha256"_qs, u""_qs), Kind::MissingField, u"sha256"_qs);
    }

    void refused()
    {
        QFETCH(QJsonObject, document);
        QFETCH(Kind, kind);
        QFETCH(std::optional<QString>, payload);

        const auto notice = parse(document);
        QVERIFY(!notice.has_value());
        QCOMPARE(notice.error(), (InformationUpdateNotice::ParseError{kind, payload}));
    }

    void theFirstFailingCheckDecides()
    {
        QJsonObject document{{u"schemaVersion"_qs, u"v0"_qs}};
        QCOMPARE(parse(document).error().kind, Kind::WrongSchemaVersion);
        document.insert(u"schemaVersion"_qs,
                        QString(InformationUpdateNotice::expectedSchemaVersion));
        QCOMPARE(parse(document).error().payload, u"version"_qs);
        document.insert(u"version"_qs, u"1.0.0"_qs);
        QCOMPARE(parse(document).error().kind, Kind::UntrustedDownloadURL);
        document.insert(u"downloadUrl"_qs, u"https://corvanite.example"_qs);
        QCOMPARE(parse(document).error().payload, u"sha256"_qs);
        document.insert(u"sha256"_qs, u"x"_qs);
        QVERIFY(parse(document).has_value());
    }

    void portPathAndQueryOfTheLinkAreFree()
    {
        for (const QString& link :
             {u"https://corvanite.example"_qs, u"https://corvanite.example:8443/x"_qs,
              u"https://corvanite.example?x=1"_qs, u"https://corvanite.example/a/../b#c"_qs}) {
            QCOMPARE(parse(with(u"downloadUrl"_qs, link))->downloadURL.toString(), link);
        }
    }

    void equalityAndHashTakeEveryField()
    {
        const InformationUpdateNotice notice = *parse(complete());
        QCOMPARE(qHash(notice), qHash(*parse(complete())));

        const std::array changes{
            with(u"version"_qs, u"1.4.1"_qs),
            with(u"build"_qs, u"141"_qs),
            with(u"downloadUrl"_qs, u"https://corvanite.example/other"_qs),
            with(u"sha256"_qs, u"abc124"_qs),
            with(u"sizeBytes"_qs, 1),
            without(u"sizeBytes"_qs),
            without(u"notes"_qs),
        };
        for (const QJsonObject& change : changes) {
            const InformationUpdateNotice other = *parse(change);
            QVERIFY(other != notice);
            QVERIFY(qHash(other) != qHash(notice));
        }
    }

    void versionComponents_data()
    {
        QTest::addColumn<QString>("version");
        QTest::addColumn<std::optional<Components>>("expected");

        const auto row = [](const QString& version, const std::optional<Components>& expected) {
            QTest::newRow(version.isEmpty() ? "empty" : qPrintable(version)) << version << expected;
        };
        constexpr qint64 most = std::numeric_limits<qint64>::max();
        row(u"1.10.0"_qs, Components{1, 10, 0});
        row(u"01.02.03"_qs, Components{1, 2, 3});
        row(u"1.2.3.9"_qs, Components{1, 2, 3});
        row(u"1.2.3.x"_qs, Components{1, 2, 3});
        row(u"1.2.3."_qs, Components{1, 2, 3});
        row(u"9223372036854775807.0.0"_qs, Components{most, 0, 0});
        row(u"1.9223372036854775808.0"_qs, Components{1, 0, 0});
        // Build metadata.
        row(u"1.2.3+a+b"_qs, Components{1, 2, 3});
        row(u"1.2.3+"_qs, Components{1, 2, 3});
        row(u"+1.2.3"_qs, Components{1, 2, 3});
        row(u"++1.2.3"_qs, std::nullopt);
        row(u"+"_qs, std::nullopt);
        row(u"1.2+3.4"_qs, std::nullopt);
        // Numerals that are no ASCII digits count as 0.
        row(u"1.２.3"_qs, Components{1, 0, 3});
        row(u"1.五.3"_qs, Components{1, 0, 3});
        row(u"1.①.½"_qs, Components{1, 0, 0});
        row(u"𝟏.𝟐.𝟑"_qs, Components{0, 0, 0});
        for (const QString& other :
             {u""_qs, u"1"_qs, u"1.2"_qs, u"1.2."_qs, u"1..3"_qs, u".1.2.3"_qs, u"1.2.3-beta"_qs,
              u"1.2.3a"_qs, u"v1.2.3"_qs, u" 1.2.3"_qs, u"1.2.3 "_qs, u"1.2.-3"_qs, u"1.2.+3"_qs,
              u"1,2,3"_qs, u"1.中.3"_qs}) {
            row(other, std::nullopt);
        }
    }

    void versionComponents()
    {
        QFETCH(QString, version);
        QFETCH(std::optional<Components>, expected);

        QVERIFY(InformationUpdateNotice::versionComponents(version) == expected);
    }

    void isNewer_data()
    {
        QTest::addColumn<QString>("candidate");
        QTest::addColumn<QString>("current");
        QTest::addColumn<bool>("newer");

        const auto row = [](const QString& candidate, const QString& current, bool newer) {
            QTest::newRow(qPrintable(candidate + u" over "_qs + current))
                << candidate << current << newer;
        };
        row(u"1.10.0"_qs, u"1.9.9"_qs, true);
        row(u"1.9.9"_qs, u"1.10.0"_qs, false);
        row(u"2.0.0"_qs, u"1.99.99"_qs, true);
        row(u"1.2.4"_qs, u"1.2.3"_qs, true);
        row(u"1.2.3"_qs, u"1.2.3"_qs, false);
        row(u"2.0.0+build7"_qs, u"2.0.0"_qs, false);
        row(u"1.2.3.9"_qs, u"1.2.3"_qs, false);
        row(u"1.2"_qs, u"1.1.0"_qs, false);
        row(u"1.2.3"_qs, u"1.2"_qs, false);
        row(u"1.3.0-beta"_qs, u"1.2.3"_qs, false);
        row(u"1.2.3"_qs, u""_qs, false);
    }

    void isNewer()
    {
        QFETCH(QString, candidate);
        QFETCH(QString, current);

        QTEST(InformationUpdateNotice::isNewer(candidate, current), "newer");
    }
};

TEST_SUBJECT(InformationUpdateNoticeTest)
#include "InformationUpdateNoticeTest.moc"
