// SPDX-License-Identifier: Apache-2.0

#include "BusyReader.h"
#include "Footprint.h"
#include "InformationWorkspaceCoding.h"
#include "LiveObjects.h"
#include "RuleBook.h"
#include "SignalCardRow.h"
#include "Subject.h"

#include <QTest>

#include <ctime>

namespace {

using Surface = InformationModel::Surface;

struct Hour
{
    const char* name;
    /// What the clock does before it, in seconds.
    double jump;
    const char* timeZone;
    int cards;
    /// Where the reader is whenever time has passed.
    Surface surface;
};

constexpr double hourLength = 3600;

const QList<Hour> hours{
    {"the morning", 0, "Asia/Shanghai", 300, Surface::Today},
    {"the hour after it", 0, "Asia/Shanghai", 60, Surface::Weekly},
    {"a sleep later", 4.5 * hourLength, "Asia/Shanghai", 20, Surface::Today},
    {"while summer time ends in New York", 0, "America/New_York", 200, Surface::Weekly},
    {"the clock set back", -2 * hourLength, "America/New_York", 90, Surface::Today},
    {"the clock set right in Berlin", 2 * hourLength, "Europe/Berlin", 250, Surface::Weekly},
    {"asleep over midnight in Beijing", 7.75 * hourLength, "Asia/Shanghai", 10, Surface::Weekly},
    {"the clock set back over midnight", -1.5 * hourLength, "Asia/Shanghai", 60, Surface::Weekly},
};

// It ends with the same to be seen as the last one.
constexpr qsizetype earlyHour = 1;

constexpr int actionsAnHour = LIFE_ACTIONS / 8;
constexpr int actionsAFrame = 25;

void setTimeZone(const QByteArray& name)
{
    qputenv("TZ", name);
    ::tzset();
}

} // namespace

/// The program left open for eight hours on a day when the clock does everything that clocks do,
/// with a reader who never rests.
class LongLifeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        LiveObjects::watch();
        m_program.emplace();
        m_reader.emplace(*m_program, 1);
        m_program->sync(hours.first().cards);
        m_reader->goEverywhere();
    }

    void cleanupTestCase()
    {
        m_reader.reset();
        m_program.reset();
        setTimeZone(m_timeZone);
    }

    void everyHourIsRight_data()
    {
        QTest::addColumn<qsizetype>("number");
        for (qsizetype number = 0; number < hours.size(); ++number) {
            QTest::newRow(hours.at(number).name) << number;
        }
    }

    void everyHourIsRight()
    {
        QFETCH(const qsizetype, number);
        const Hour& hour = hours.at(number);
        setTimeZone(hour.timeZone);
        letPass(hour.jump, hour.surface);
        m_program->sync(hour.cards);
        m_rules.require(model().signals().size() == hour.cards, "the new pack is not shown");
        m_reader->goEverywhere();
        actFor(hourLength / 2);
        m_reader->putAway();
        letPass(0, hour.surface);
        actFor(hourLength / 2);
        m_reader->putAway();
        requireStored();
        m_footprints.append(Footprint::takenAtRest());
        tell(m_footprints.last());
        QCOMPARE(m_rules.broken(), QString());
        QCOMPARE(m_program->window().warnings(), QStringList());
    }

    void everythingWasDone()
    {
        const auto& actions = m_reader->actions();
        for (auto action = actions.begin(); action != actions.end(); ++action) {
            QVERIFY2(action->times > 0, qUtf8Printable(action.key() + u" was never done"_qs));
        }
    }

    void memoryStaysFlat()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("The sanitizers allocate by themselves, and keep what is freed.");
#endif
        QVERIFY(isFlat(m_footprints.at(earlyHour).memory, m_footprints.last().memory));
    }

    // Not to the last one: what a control moves with is made when it first moves.
    void theObjectsStayAsMany()
    {
        QVERIFY(isFlat(m_footprints.at(earlyHour).objects, m_footprints.last().objects));
    }

    void nothingIsLeftOpen_data()
    {
        QTest::addColumn<qsizetype>("early");
        QTest::addColumn<qsizetype>("late");
        const auto& early = m_footprints.at(earlyHour).counts;
        for (auto count = early.begin(); count != early.end(); ++count) {
            QTest::newRow(qPrintable(count.key()))
                << count.value() << m_footprints.last().counts.value(count.key());
        }
    }

    void nothingIsLeftOpen()
    {
        QFETCH(const qsizetype, early);
        QFETCH(const qsizetype, late);
        QVERIFY2(late <= early, qPrintable(u"%1, and then %2"_qs.arg(early).arg(late)));
    }

private:
    static bool isFlat(qint64 early, qint64 late)
    {
        constexpr qint64 mostGrowthPercent = 5;
        return (late - early) * 100 <= early * mostGrowthPercent;
    }

    InformationModel& model() { return m_program->model(); }

    void actFor(double seconds)
    {
        constexpr int actions = actionsAnHour / 2;
        for (int action = 0; action < actions; ++action) {
            m_program->passTime(seconds / actions);
            m_reader->actOnce();
            if (action % actionsAFrame == 0) {
                m_program->window().settle();
            }
            m_rules.require(!model().hasErrorMessage(), "something went wrong");
        }
    }

    /// Time passes while the reader is in another window, and what was shown is right at once when
    /// the reader comes back; the other surfaces are when the reader goes there.
    void letPass(double seconds, Surface surface)
    {
        for (const auto before : {Surface::Today, Surface::Weekly, surface}) {
            model().setSurface(before);
            m_program->window().settle();
        }
        m_program->window().turnAway([this, seconds] { m_program->passTime(seconds); });
        requireRightTime();
        for (const auto after : {Surface::Today, Surface::Weekly, Surface::Today}) {
            model().setSurface(after);
            m_program->window().settle();
            requireRightTime();
        }
    }

    void requireRightTime()
    {
        if (model().surface() == Surface::Weekly) {
            requireRightWeek();
        } else {
            requireRightAge();
        }
    }

    void requireRightWeek()
    {
        const bool isRunning =
            m_program->window().find(u"本周 · 进行中"_qs, QAccessible::StaticText);
        m_rules.require(isRunning == (m_program->now() < LivingProgram::weekEnd),
                        "a week is shown as running that is not, or the other way round");
    }

    void requireRightAge()
    {
        const auto first = model().focusedSignals().value(0);
        auto* const card = m_program->window().find(first.title, QAccessible::ListItem);
        const auto age =
            SignalCardRow::from(first, {}, first.relativeObservedLabel(m_program->now())).timeLabel;
        m_rules.require(card && ScreenReader::description(card).contains(age),
                        "a card does not say how long ago it was checked");
    }

    void requireStored()
    {
        m_rules.require(m_program->stored() ==
                            InformationWorkspaceCoding::encode(model().workspace()),
                        "the disk does not hold what is shown");
    }

    static void tell(const Footprint& footprint)
    {
        QString counts = u", %1 objects"_qs.arg(footprint.objects);
        for (auto count = footprint.counts.begin(); count != footprint.counts.end(); ++count) {
            counts += u", %1 %2"_qs.arg(count.value()).arg(count.key());
        }
        qInfo("%.2f MiB%s", static_cast<double>(footprint.memory) / (1024 * 1024),
              qPrintable(counts));
    }

    const QByteArray m_timeZone = qgetenv("TZ");
    std::optional<LivingProgram> m_program;
    std::optional<BusyReader> m_reader;
    RuleBook m_rules;
    QList<Footprint> m_footprints;
};

TEST_SUBJECT(LongLifeTest)
#include "LongLifeTest.moc"
