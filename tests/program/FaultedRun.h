// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FaultPlan.h"
#include "ForkedProcess.h"
#include "ReaderActions.h"
#include "StoredFiles.h"

#include <QJsonArray>
#include <QJsonDocument>

/// A run of the program without its window, in a process of its own, in which calls on the data
/// folder fail as planned.
struct FaultedRun
{
    /// After the start, or after an action.
    struct Moment
    {
        /// As ReaderActions names it.
        QJsonObject seen;
        StoredFiles files;
        QStringList leftovers;
        /// How many calls were made until then.
        qsizetype calls;

        QString text(const QString& name) const { return seen.value(name).toString(); }
    };

    /// What is done at a place of the run, be it an action of the reader or something else's.
    using Step = std::function<void(ProgramStart&)>;

    /// Each is its name and that of the file, "temporary" for a temporary one; " !" follows the
    /// faulty ones.
    QStringList calls;
    QList<Moment> moments;
    bool wasKilled = false;
    bool ended = false;

    static FaultedRun of(const DataFolder& folder, const FaultPlan& plan, const QList<Step>& steps,
                         const std::function<void(FakeSiteClient&)>& publish)
    {
        ForkedProcess process([&](const ForkedProcess::Tell& tell) {
            qsizetype number = 0;
            const FileCalls calls(folder.path().toUtf8(), [&](const FileCall& call) {
                const auto verdict = plannedFor(plan, ++number, call);
                const bool isFaulty = verdict.kind != Verdict::Kind::Made;
                tell("call " + call.name + ' ' + labelOf(call) + (isFaulty ? " !\n" : "\n"));
                return verdict;
            });
            ProgramStart program(folder.environment());
            publish(program.site);
            FileCalls::unasked([&] { tell(momentOf(folder, program)); });
            for (const Step& step : steps) {
                step(program);
                FileCalls::unasked([&] { tell(momentOf(folder, program)); });
            }
        });
        FaultedRun run;
        for (const QByteArray& line : process.told().split('\n')) {
            run.take(line);
        }
        run.wasKilled = process.wasKilled();
        run.ended = process.ends();
        return run;
    }

private:
    static Verdict plannedFor(const FaultPlan& plan, qsizetype number, const FileCall& call)
    {
        const auto planned = std::ranges::find(plan, number, &PlannedFault::call);
        if (planned == plan.end() ||
            (planned->fault.kind == Verdict::Kind::MadeByHalf && call.bytes.size() < 2)) {
            return {};
        }
        return planned->fault;
    }

    static QByteArray labelOf(const FileCall& call)
    {
        const QByteArray name = call.path.sliced(call.path.lastIndexOf('/') + 1);
        return name.startsWith(".corvanite-") ? QByteArray("temporary") : name;
    }

    static QByteArray momentOf(const DataFolder& folder, ProgramStart& program)
    {
        return QJsonDocument(
                   QJsonObject{{u"seen"_qs, ReaderActions::seenIn(program)},
                               {u"files"_qs, StoredFiles::in(folder).toJson()},
                               {u"leftovers"_qs, QJsonArray::fromStringList(folder.leftovers())}})
                   .toJson(QJsonDocument::Compact) +
               '\n';
    }

    void take(const QByteArray& line)
    {
        if (line.startsWith("call ")) {
            calls.append(QString::fromUtf8(line.sliced(5)));
        } else if (line.endsWith('}')) {
            const auto moment = QJsonDocument::fromJson(line).object();
            moments.append({moment.value(u"seen"_qs).toObject(),
                            StoredFiles::fromJson(moment.value(u"files"_qs).toObject()),
                            moment.value(u"leftovers"_qs).toVariant().toStringList(),
                            calls.size()});
        }
    }
};
