// SPDX-License-Identifier: Apache-2.0

// What the data costs, each subject beside the least that such work can cost:
//   data_benchmark FOLDER
// FOLDER holds what full_pack.py writes. A subject is followed by its limit, "<subject> limit",
// whose label says what it does.

#include "ArchiveDigest.h"
#include "FakeSiteClient.h"
#include "InformationIntake.h"
#include "InformationModel.h"
#include "InformationPackCoding.h"
#include "InformationPackSync.h"
#include "InformationProjection.h"
#include "InformationSignalIndex.h"
#include "LocalFileManager.h"
#include "SignalStrata.h"
#include "WeeklyDigest.h"

#include <QFile>
#include <QHashFunctions>

#include <benchmark/benchmark.h>
#include <simdjson.h>

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <list>
#include <memory>
#include <string>

namespace {

constexpr std::array signalCounts{700, 1400, 2800};
constexpr auto plainCopy = "a plain copy of the list";
constexpr auto domParse = "simdjson's DOM parse of the same bytes";

QByteArray read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("%s is missing.", qUtf8Printable(path));
    }
    return file.readAll();
}

template <typename Work>
void add(const std::string& name, const std::string& label, Work work)
{
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
        for (auto _ : state) {
            auto result = work();
            benchmark::DoNotOptimize(result);
        }
        state.SetLabel(label);
    })->UseRealTime();
}

template <typename Work, typename Limit>
void add(const std::string& subject, Work work, const std::string& limitName, Limit limit)
{
    add(subject, std::string(), work);
    add(subject + " limit", limitName, limit);
}

template <typename Element>
auto copying(const QList<Element>& list)
{
    return [&list] {
        QList<Element> copy = list;
        copy.detach();
        return copy;
    };
}

auto parsing(const QByteArray& document)
{
    auto padded = std::make_shared<simdjson::padded_string>(document.constData(),
                                                            static_cast<size_t>(document.size()));
    auto parser = std::make_shared<simdjson::dom::parser>();
    return [padded, parser] { return parser->parse(*padded).error(); };
}

auto writing(const QByteArray& bytes, const QString& folder)
{
    return [&bytes, temporary = (folder + u"/limit.new"_qs).toStdString(),
            final = (folder + u"/limit"_qs).toStdString()] {
        const int file = open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
        const bool written =
            write(file, bytes.constData(), static_cast<size_t>(bytes.size())) == bytes.size() &&
            fsync(file) == 0 && close(file) == 0 && rename(temporary.c_str(), final.c_str()) == 0;
        if (!written) {
            qFatal("%s cannot be written.", final.c_str());
        }
        return written;
    };
}

/// What a reader's machine holds, and what is made of it.
struct Content
{
    explicit Content(const QString& folder)
        : files(folder),
          repository(InformationWorkspaceRepository::live(files).value()),
          pack(read(folder + u"/Corvanite/Information/information-pack.json"_qs)),
          stored(read(repository.filePath)),
          snapshot(InformationPackSync::parse(pack).value()),
          signals(InformationPackCoding::decodeRetired(read(folder + u"/signals.json"_qs)).value()),
          workspace(repository.load(files).value())
    {
    }

    LocalFileManager files;
    InformationWorkspaceRepository repository;
    QByteArray pack;
    QByteArray stored;
    InformationPackSync::Snapshot snapshot;
    /// More than the pack holds.
    QList<InformationSignal> signals;
    InformationWorkspace workspace;
};

void addDocuments(const Content& content, const QString& folder)
{
    add(
        "decode the pack", [&] { return InformationPackSync::parse(content.pack); }, domParse,
        parsing(content.pack));
    add(
        "load the workspace", [&] { return content.repository.load(content.files); }, domParse,
        parsing(content.stored));
    add(
        "save the workspace",
        [&] { return content.repository.save(content.workspace, content.files); },
        "one write, fsync, rename of the same bytes", writing(content.stored, folder));
}

/// Everything that the screens make of a number of signals.
struct Lists
{
    Lists(const Content& content, qsizetype count)
        : signals(content.signals.mid(0, count)),
          workspace(content.workspace),
          asOf(content.snapshot.asOf),
          days(content.snapshot.selectionDays),
          model({.fileManager = content.files,
                 .now = [] { return 0.0; },
                 .seedHistory = days,
                 .site = site,
                 .runningVersion = {}},
                InformationContent(signals, {}, days, asOf),
                WorkspaceJournal(content.repository, content.files))
    {
        model.setSearch(u"版"_qs);
    }

    FakeSiteClient site;
    QList<InformationSignal> signals;
    const InformationWorkspace& workspace;
    const QString& asOf;
    const QList<SelectionDay>& days;
    InformationModel model;
};

void addLists(const Lists& lists)
{
    using namespace InformationProjection;
    const auto& signals = lists.signals;
    const auto& workspace = lists.workspace;
    const auto& days = lists.days;
    const auto addList = [&](const std::string& name, auto work) {
        const std::string count = std::to_string(signals.size());
        add(name + ", " + count + " signals", work, plainCopy, copying(signals));
    };
    addList("today", [&] { return today(signals, workspace); });
    addList("today's focus",
            [&] { return focusedToday(signals, workspace, defaultFocusLimit, lists.asOf, days); });
    addList("the rest of today", [&] {
        return remainingToday(signals, workspace, defaultFocusLimit, lists.asOf, days);
    });
    addList("kept", [&] { return kept(signals, workspace); });
    addList("following", [&] { return following(signals, workspace); });
    addList("a search letter", [&] { return lists.model.keptSignals(); });
    addList("the archive's features", [&] {
        QList<QList<InformationSignal>> features;
        const auto index = indexById(signals);
        for (const SelectionDay& day : days) {
            features.append(ArchiveDigest::focusSignals(day, index));
        }
        return features;
    });
    addList("strata", [&] {
        QList<QList<SignalStrata::Band>> marks;
        for (const InformationSignal& signal : signals) {
            marks.append(SignalStrata::bands(signal.id));
        }
        return marks;
    });
}

void addDigests(const Content& content)
{
    const auto& days = content.snapshot.selectionDays;
    const auto& sources = content.workspace.customSources;
    const std::string dayCount = std::to_string(days.size()) + " days";
    add(
        "archive, " + dayCount, [&] { return ArchiveDigest::daysNewestFirst(days); }, plainCopy,
        copying(days));
    add("weeks, " + dayCount, [&] { return WeeklyDigest::weeks(days); }, plainCopy, copying(days));
    add(
        "intake, " + std::to_string(sources.size()) + " sources",
        [&] {
            const auto intake = InformationIntake::normalize(u"https://example.com/news"_qs);
            return intake && InformationIntake::contains(*intake, sources);
        },
        plainCopy, copying(sources));
}

} // namespace

int main(int argc, char* argv[])
{
    // As in the program.
    QHashSeed::setDeterministicGlobalSeed();
    benchmark::Initialize(&argc, argv);
    if (argc != 2) {
        return EXIT_FAILURE;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    const Content content(folder);
    std::list<Lists> lists;
    addDocuments(content, folder);
    for (const int count : signalCounts) {
        addLists(lists.emplace_back(content, count));
    }
    addDigests(content);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
