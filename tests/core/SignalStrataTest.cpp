// SPDX-License-Identifier: Apache-2.0

#include "SignalStrata.h"
#include "Subject.h"

#include <QTest>

#include <algorithm>

namespace {

bool isClose(double left, double right)
{
    return qAbs(left - right) < 1e-9;
}

} // namespace

class SignalStrataTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hashesTheUtf8Bytes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<quint32>("hash");

        QTest::newRow("empty") << QString() << 2166136261u;
        QTest::newRow("published test value") << u"foobar"_qs << 0xbf9cf968u;
        QTest::newRow("two bytes") << u"\u00E9"_qs << 513665217u;
        QTest::newRow("three bytes") << u"信"_qs << 2487699167u;
        QTest::newRow("four bytes") << u"\U0010FFFF"_qs << 1103215674u;
        QTest::newRow("characters nought") << QString(2, QChar(0)) << 292984781u;
    }

    void hashesTheUtf8Bytes()
    {
        QFETCH(QString, text);
        QFETCH(quint32, hash);

        QCOMPARE(SignalStrata::fnv1a(text), hash);
    }

    void theEmptyIdHasItsPattern()
    {
        const SignalStrata::Spec spec = SignalStrata::spec({});

        QCOMPARE(spec.bandCount, 5);
        QCOMPARE(spec.accentBand, 0);
        QCOMPARE(spec.breakBand, 3);
        QCOMPARE(spec.shift, 2);
        QVERIFY(isClose(spec.baseOpacity, 0.30));

        const QList<SignalStrata::Band> bands = SignalStrata::bands({});
        QCOMPARE(bands.size(), 5);
        for (const SignalStrata::Band& band : bands) {
            QCOMPARE(band.x, band.index == 3 ? 2.0 : 0.0);
            QCOMPARE(band.width, band.index == 3 ? 46.0 : 48.0);
        }
        QCOMPARE(bands.first().opacity, 0.95);
    }

    void everyPartOfThePatternHasItsBits_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QList<int>>("wanted");
        QTest::addColumn<double>("baseOpacity");

        QTest::newRow("4 bands") << u"a"_qs << QList{4, 3, 1, -2} << 0.34;
        QTest::newRow("5 bands") << u"b"_qs << QList{5, 4, 1, 2} << 0.34;
        QTest::newRow("6 bands") << u"c"_qs << QList{6, 0, 4, 1} << 0.34;
        QTest::newRow("7 bands") << u"信息"_qs << QList{7, 6, 2, 3} << 0.32;
    }

    void everyPartOfThePatternHasItsBits()
    {
        QFETCH(const QString, id);
        QFETCH(const double, baseOpacity);
        const SignalStrata::Spec spec = SignalStrata::spec(id);

        QTEST((QList{spec.bandCount, spec.accentBand, spec.breakBand, spec.shift}), "wanted");
        QVERIFY(isClose(spec.baseOpacity, baseOpacity));
    }

    void bandsFillTheSquareFromTheBottom()
    {
        for (int number = 0; number < 500; ++number) {
            const QString id = u"signal-"_qs + QString::number(number);
            const SignalStrata::Spec spec = SignalStrata::spec(id);
            const QList<SignalStrata::Band> bands = SignalStrata::bands(id);

            QVERIFY(spec.bandCount >= 4 && spec.bandCount <= 7);
            QCOMPARE(bands.size(), spec.bandCount);
            for (int index = 0; index < spec.bandCount; ++index) {
                const SignalStrata::Band& band = bands.at(index);
                QCOMPARE(band.index, index);
                QVERIFY(isClose(band.y, 48.0 - 48.0 / spec.bandCount * (index + 1)));
                QVERIFY(isClose(band.height, 48.0 / spec.bandCount - 1.5));
                QVERIFY(band.x >= 0 && band.x + band.width <= 48);
                QCOMPARE(band.opacity, SignalStrata::bandOpacity(index, spec));
            }
        }
    }

    void aNegativeShiftShortensTheBreakBand()
    {
        // Found by trying ids: shift -3, break band apart from the accent band.
        const QString id = idWith([](const SignalStrata::Spec& spec) {
            return spec.shift == -3 && spec.accentBand != spec.breakBand;
        });
        const SignalStrata::Band band =
            SignalStrata::bands(id).at(SignalStrata::spec(id).breakBand);

        QCOMPARE(band.x, 0.0);
        QCOMPARE(band.width, 45.0);
    }

    void theAccentBandNeverStandsOutOfLine()
    {
        const QString id = idWith([](const SignalStrata::Spec& spec) {
            return spec.shift != 0 && spec.accentBand == spec.breakBand;
        });

        const QList<SignalStrata::Band> bands = SignalStrata::bands(id);
        QVERIFY(std::ranges::all_of(
            bands, [](const SignalStrata::Band& band) { return band.x == 0 && band.width == 48; }));
    }

    void plainBandsStepThroughThreeCappedShades()
    {
        const SignalStrata::Spec spec{
            .bandCount = 7, .accentBand = 1, .breakBand = 0, .shift = 0, .baseOpacity = 0.38};

        const QList<double> wanted{0.48, 0.95, 0.38, 0.48, 0.58, 0.38, 0.48};
        for (int band = 0; band < spec.bandCount; ++band) {
            QVERIFY(isClose(SignalStrata::bandOpacity(band, spec), wanted.at(band)));
        }

        SignalStrata::Spec strong = spec;
        strong.baseOpacity = 0.6;
        QCOMPARE(SignalStrata::bandOpacity(0, strong), 0.62);
    }

private:
    template <typename Predicate>
    static QString idWith(Predicate isWanted)
    {
        for (int number = 0;; ++number) {
            const QString id = QString::number(number);
            if (isWanted(SignalStrata::spec(id))) {
                return id;
            }
        }
    }
};

TEST_SUBJECT(SignalStrataTest)
#include "SignalStrataTest.moc"
