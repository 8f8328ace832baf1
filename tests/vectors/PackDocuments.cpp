// SPDX-License-Identifier: Apache-2.0

#include "PackDocuments.h"

#include "InformationPackSync.h"
#include "InformationSeed.h"
#include "MemoryFileManager.h"
#include "PackLoading.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool replacesSeed(const QByteArray& document)
{
    const MemoryFileManager fileManager;
    const QString directory = InformationPackSync::liveDirectory(fileManager).value();
    InformationPackSync::saveSnapshot(document, directory, fileManager).value();
    return InformationPackSync::loadSnapshot(directory, fileManager).has_value();
}

QJsonObject resultsOf(const QByteArray& document)
{
    return {
        {u"bytes"_qs, document.size()},
        {u"packParse"_qs, parsedPack(document)},
        {u"loadRetired"_qs, loadedRetiredSignals(document)},
        {u"replacesSeedAsOf"_qs + InformationSeed::asOf(), replacesSeed(document)},
    };
}

} // namespace

VectorTally checkPackDocuments(const QDir& folder)
{
    VectorTally tally(folder.path());
    const QString expectSuffix = u".expect.json"_qs;
    for (const QString& expectName : folder.entryList({u"*"_qs + expectSuffix}, QDir::Files)) {
        const QString name = expectName.chopped(expectSuffix.size()) + u".json"_qs;
        const QByteArray document = contents(folder.filePath(name));
        const QJsonObject came = resultsOf(document);
        const QJsonObject wanted =
            QJsonDocument::fromJson(contents(folder.filePath(expectName))).object();
        for (const QString& result : came.keys()) {
            tally.compare(name + u' ' + result, QString::fromUtf8(document), wanted.value(result),
                          came.value(result));
        }
    }
    return tally;
}
