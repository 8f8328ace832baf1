// SPDX-License-Identifier: Apache-2.0

#include "TypeScale.h"
#include "Subject.h"

#include <QFontDatabase>
#include <QTest>

class TypeScaleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void titlesAreSerifAndBold_data()
    {
        QTest::addColumn<QByteArray>("step");
        QTest::addColumn<QString>("family");
        QTest::addColumn<bool>("bold");

        const FontFamilies families;
        for (const auto* const title : {"display", "title1", "title2", "title3", "figure"}) {
            QTest::newRow(title) << QByteArray(title) << families.serif() << true;
        }
        for (const auto* const text : {"body", "small", "caption", "meta"}) {
            QTest::newRow(text) << QByteArray(text) << families.sans() << false;
        }
        for (const auto* const text :
             {"bodyBold", "brandName", "smallBold", "captionBold", "metaBold", "eyebrow"}) {
            QTest::newRow(text) << QByteArray(text) << families.sans() << true;
        }
    }

    void titlesAreSerifAndBold()
    {
        QFETCH(const QByteArray, step);
        const TypeScale scale;
        const auto* const style = scale.property(step).value<TextStyle*>();
        QVERIFY(style);
        QTEST(style->font().family(), "family");
        QTEST(style->font().bold(), "bold");
    }

    void asksForWeightsThatAreInstalled()
    {
        const TypeScale scale;
        const auto steps = scale.findChildren<TextStyle*>();
        QVERIFY(steps.size() > 10);
        for (const auto* const step : steps) {
            const QString family = step->font().family();
            QList<int> installed;
            for (const auto& style : QFontDatabase::styles(family)) {
                installed.append(QFontDatabase::weight(family, style));
            }
            QVERIFY2(installed.contains(step->font().weight()),
                     qPrintable(step->font().toString()));
        }
    }
};

TEST_SUBJECT(TypeScaleTest)
#include "TypeScaleTest.moc"
