// SPDX-License-Identifier: Apache-2.0

#include "RandomReader.h"
#include "Subject.h"

#include <QMetaMethod>
#include <QTest>

#include <optional>

namespace {

// What goes through thousands of entries is looked at now and then only.
constexpr int stepsPerKeptList = 10;

} // namespace

/// A reader who does anything in any order for a long time, on a disk that fails now and then.
class RandomWalkTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        bool isNumber = false;
        const unsigned seed = qEnvironmentVariable("CORVANITE_WALK_SEED").toUInt(&isNumber);
        m_seed = isNumber ? seed : 1;
        m_reader.emplace(m_seed);
    }

    void everyActionIsInTheWalk()
    {
        const QMetaObject& type = InformationModel::staticMetaObject;
        for (int index = type.methodOffset(); index < type.methodCount(); ++index) {
            const QMetaMethod method = type.method(index);
            if (method.methodType() == QMetaMethod::Method && !method.isConst()) {
                QVERIFY2(m_reader->actions().contains(QString::fromLatin1(method.name())),
                         method.name().constData());
            }
        }
    }

    void memoryAndDiskAgreeAllTheWay()
    {
        for (int step = 1; step <= WALK_STEPS; ++step) {
            const QString action = m_reader->actOnce();
            if (step % stepsPerKeptList == 0) {
                m_reader->requireKept();
            }
            if (!m_reader->brokenRule().isEmpty()) {
                QFAIL(qUtf8Printable(
                    u"CORVANITE_WALK_SEED=%1, step %2, %3: %4"_qs.arg(m_seed).arg(step).arg(
                        action, m_reader->brokenRule())));
            }
        }
    }

    void theWalkWentEverywhere()
    {
        const auto& counts = m_reader->counts();
        qInfo("%d steps from seed %u: %d saves, %d failed ones, %d undone", WALK_STEPS, m_seed,
              counts.saves, counts.failures, counts.undone);
        const auto& actions = m_reader->actions();
        for (auto action = actions.begin(); action != actions.end(); ++action) {
            QVERIFY2(action->times > 0, qUtf8Printable(action.key() + u" was never done"_qs));
        }
        QVERIFY2(counts.saves > WALK_STEPS / 4, "Too little was saved.");
        QVERIFY2(counts.failures > WALK_STEPS / 50, "Too few saves failed.");
        QVERIFY2(counts.undone > WALK_STEPS / 50, "Too little was undone.");
    }

private:
    unsigned m_seed = 0;
    std::optional<RandomReader> m_reader;
};

TEST_SUBJECT(RandomWalkTest)
#include "RandomWalkTest.moc"
