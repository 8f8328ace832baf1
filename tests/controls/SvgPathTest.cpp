// SPDX-License-Identifier: Apache-2.0

#include "SvgPath.h"
#include "Subject.h"

#include <QMetaProperty>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>
#include <QtMath>

#include <memory>

namespace {

// Qt measures curves by straight lines.
constexpr double tolerance = 0.05;

bool isNear(QPointF one, QPointF other)
{
    return QPointF(one - other).manhattanLength() < tolerance;
}

} // namespace

class SvgPathTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goesThrough_data()
    {
        QTest::addColumn<QString>("data");
        QTest::addColumn<double>("length");
        QTest::addColumn<QPointF>("middle");
        QTest::addColumn<QPointF>("end");

        const auto newRow = [](const char* name, const QString& data, double length, QPointF middle,
                               QPointF end) {
            QTest::newRow(name) << data << length << middle << end;
        };
        newRow("a line", u"M1 2L1 12"_qs, 10, {1, 7}, {1, 12});
        newRow("across and up", u"M5 5H9V1"_qs, 8, {9, 5}, {9, 1});
        newRow("closed", u"M0 0H4V4H0Z"_qs, 16, {4, 4}, {0, 0});
        newRow("a curve", u"M0 0C0 0 8 0 8 0"_qs, 8, {4, 0}, {8, 0});
        newRow("an arc, swept", u"M2 0A2 2 0 0 1 0 2"_qs, M_PI, {M_SQRT2, M_SQRT2}, {0, 2});
        newRow("not swept", u"M2 0A2 2 0 0 0 0 2"_qs, M_PI, {2 - M_SQRT2, 2 - M_SQRT2}, {0, 2});
        newRow("large, swept", u"M2 0A2 2 0 1 1 0 2"_qs, 3 * M_PI, {2 + M_SQRT2, 2 + M_SQRT2},
               {0, 2});
        newRow("large, not swept", u"M2 0A2 2 0 1 0 0 2"_qs, 3 * M_PI, {-M_SQRT2, -M_SQRT2},
               {0, 2});
        newRow("half a circle", u"M4 0A2 2 0 1 1 0 0"_qs, 2 * M_PI, {2, 2}, {0, 0});
        newRow("a radius too short for both ends", u"M4 0A1 1 0 1 1 0 0"_qs, 2 * M_PI, {2, 2},
               {0, 0});
    }

    void goesThrough()
    {
        QFETCH(const QString, data);
        QFETCH(const double, length);
        QFETCH(const QPointF, middle);
        QFETCH(const QPointF, end);

        const auto path = SvgPath::parse(data);
        QVERIFY(path);
        QVERIFY2(std::abs(path->length() - length) < tolerance,
                 qPrintable(QString::number(path->length())));
        QVERIFY(isNear(path->pointAtPercent(0.5), middle));
        QVERIFY(isNear(path->currentPosition(), end));
    }

    void strokesMayStandApart()
    {
        const auto path = SvgPath::parse(u"M0 0H4M10 0H14");
        QVERIFY(path);
        QCOMPARE(path->length(), 8);
        QVERIFY(!path->intersects(QRectF(5, -1, 4, 2)));
    }

    void takesNothingElse_data()
    {
        QTest::addColumn<QString>("data");

        for (const auto& data :
             {u"1 2L3 4"_qs, u"m1 2"_qs, u"M1"_qs, u"M1 2 3"_qs, u"M1 2Q3 4 5 6"_qs, u"M1 x"_qs,
              u"M0 0A2 3 0 0 1 4 0"_qs, u"M0 0A2 2 9 0 1 4 0"_qs, u"M0 0A2 2 0 2 1 4 0"_qs,
              u"M0 0A2 2 0 0 5 4 0"_qs, u"M4 0A2 2 0 0 1 4 0"_qs, u"M0 0Z1"_qs}) {
            QTest::newRow(qPrintable(data)) << data;
        }
    }

    void takesNothingElse()
    {
        QFETCH(const QString, data);
        QVERIFY(!SvgPath::parse(data));
    }

    void everyIconIsRead()
    {
        QQmlEngine engine;
        engine.addImportPath(u":/qt/qml"_qs);
        QQmlComponent component(&engine);
        component.setData("import QtQml\nimport CorvaniteInformation.Controls\n"
                          "QtObject { readonly property QtObject paths: IconPaths }",
                          {});
        const std::unique_ptr<QObject> holder(component.create());
        QVERIFY2(holder, qPrintable(component.errorString()));
        const auto* const paths = holder->property("paths").value<QObject*>();
        const auto* const type = paths->metaObject();
        const int first = QObject::staticMetaObject.propertyCount();
        QVERIFY(type->propertyCount() > first + 20);
        for (int i = first; i < type->propertyCount(); ++i) {
            const auto property = type->property(i);
            const auto path = SvgPath::parse(property.read(paths).toString());
            QVERIFY2(path, property.name());
            const QRectF place = path->boundingRect();
            const QRectF grid(0, 0, 24, 24);
            QVERIFY2(grid.contains(place.topLeft()) && grid.contains(place.bottomRight()),
                     property.name());
        }
    }
};

TEST_SUBJECT(SvgPathTest)
#include "SvgPathTest.moc"
