// SPDX-License-Identifier: Apache-2.0

// Runs example cases: JSON lines of {"fn", "in", "out", "accept"?}, and a folder of whole
// documents. Ends with 0 when all passed and at least one ran.

#include "JsonComparison.h"
#include "PackFolder.h"
#include "VectorFunctions.h"
#include "VectorTally.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include <algorithm>
#include <cstdio>

namespace {

VectorFunctions allFunctions()
{
    VectorFunctions functions;
    addDigestFunctions(functions);
    addIntakeFunctions(functions);
    addLabelFunctions(functions);
    addModelFunctions(functions);
    addPackFunctions(functions);
    addProjectionFunctions(functions);
    addRefreshFunctions(functions);
    addStrataFunctions(functions);
    addUpdateFunctions(functions);
    addWorkspaceFunctions(functions);
    return functions;
}

// Strata are plain arithmetic on small numbers and held closer.
double tolerance(const QString& fn)
{
    return fn.startsWith(u"strata") || fn == u"bandOpacity" ? 1e-9 : 1e-6;
}

bool isAccepted(const QJsonObject& vectorCase, const QJsonValue& came)
{
    const double within = tolerance(vectorCase.value(QLatin1StringView("fn")).toString());
    if (isSameJson(vectorCase.value(QLatin1StringView("out")), came, within)) {
        return true;
    }
    return std::ranges::any_of(
        vectorCase.value(QLatin1StringView("accept")).toArray(),
        [&](const QJsonValue& accepted) { return isSameJson(accepted, came, within); });
}

void runCase(const VectorFunctions& functions, const QString& where, const QByteArray& line,
             VectorTally& tally)
{
    const QJsonObject vectorCase = QJsonDocument::fromJson(line).object();
    const QJsonValue input = vectorCase.value(QLatin1StringView("in"));
    const QJsonValue wanted = vectorCase.value(QLatin1StringView("out"));
    const QString fn = vectorCase.value(QLatin1StringView("fn")).toString();

    const auto function = functions.constFind(fn);
    if (function == functions.cend()) {
        tally.fail(where, input, wanted, u"no function is called \"%1\""_qs.arg(fn));
        return;
    }
    const QJsonValue came = (*function)(input.toObject());
    if (isAccepted(vectorCase, came)) {
        tally.pass();
    } else {
        tally.fail(where, input, wanted, came);
    }
}

VectorTally runFile(const VectorFunctions& functions, const QString& path)
{
    VectorTally tally(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        tally.fail(u"0"_qs, path, u"a file"_qs, file.errorString());
    }
    for (int lineNumber = 1; !file.atEnd(); ++lineNumber) {
        const QByteArray line = file.readLine();
        if (!line.trimmed().isEmpty()) {
            runCase(functions, QString::number(lineNumber), line, tally);
        }
    }
    tally.printCounts();
    return tally;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().sliced(1);

    QList<VectorTally> tallies;
    if (arguments.size() == 2 && arguments.first() == u"--packs") {
        tallies = checkPackFolder(QDir(arguments.last()));
    } else {
        const VectorFunctions functions = allFunctions();
        for (const QString& path : arguments) {
            tallies.append(runFile(functions, path));
        }
    }

    const bool ranAny = std::ranges::any_of(
        tallies, [](const VectorTally& tally) { return tally.passed() + tally.failed() > 0; });
    const bool failedAny =
        std::ranges::any_of(tallies, [](const VectorTally& tally) { return tally.failed() > 0; });
    if (!ranAny) {
        QTextStream(stderr) << "vector_runner FILE... | vector_runner --packs DIR\n";
    }
    return ranAny && !failedAny ? 0 : 1;
}
