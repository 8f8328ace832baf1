// The program without its window, for tests that kill it and fail its system calls. It does the
// action that each line of its input names and answers with one line of what it believes.
//
//     saving_program SITE-FOLDER

#include "FileTree.h"
#include "InformationWorkspaceCoding.h"
#include "ProgramStart.h"

#include <QCoreApplication>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <functional>
#include <iostream>
#include <string>

namespace {

QJsonArray idsOf(const QList<InformationSignal>& signals)
{
    QJsonArray ids;
    for (const InformationSignal& signal : signals) {
        ids.append(signal.id);
    }
    return ids;
}

QByteArray belief(ProgramStart& program)
{
    const InformationModel& model = program.model();
    return QJsonDocument(QJsonObject{
                             {u"standing"_qs,
                              QVariant::fromValue(program.parts.instance().standing()).toString()},
                             {u"error"_qs, model.errorText()},
                             {u"receipt"_qs, model.receiptText()},
                             {u"syncNote"_qs, model.packSyncNoteText()},
                             {u"packAsOf"_qs, model.packAsOf()},
                             {u"retired"_qs, idsOf(model.retiredSignals())},
                             {u"workspace"_qs, QString::fromUtf8(InformationWorkspaceCoding::encode(
                                                   model.workspace()))},
                         })
        .toJson(QJsonDocument::Compact);
}

void answer(const QByteArray& line)
{
    std::puts(line.constData());
    std::fflush(stdout);
}

QHash<std::string, std::function<void(InformationModel&)>> actions()
{
    const auto card = [](const InformationModel& model) { return model.signals().first().id; };
    return {
        {"keep", [card](auto& model) { model.toggleKeep(card(model)); }},
        {"remove", [card](auto& model) { model.removeKept(card(model)); }},
        {"note", [card](auto& model) { model.updateNote(card(model), u"写下的备注"_qs); }},
        {"see", [card](auto& model) { model.markSeen(card(model)); }},
        {"reduce", [card](auto& model) { model.reduceSimilar(card(model)); }},
        {"add", [](auto& model) { model.addSource(u"一句想跟踪的话"_qs); }},
        {"add another", [](auto& model) { model.addSource(u"另一句想跟踪的话"_qs); }},
        {"remove source",
         [](auto& model) { model.removeSource(model.workspace().customSources.first().id); }},
        {"reset", [](auto& model) { model.resetPreferences(); }},
        {"undo", [](auto& model) { model.undoLastAction(); }},
        {"refresh", [](auto& model) { model.refreshPackFromSite(); }},
        {"dismiss the error", [](auto& model) { model.dismissError(); }},
    };
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    ProgramStart program(QProcessEnvironment::systemEnvironment());
    for (const auto path : {SiteClient::packPath, SiteClient::retiredSignalsPath}) {
        program.site.answers.insert(path, SiteReply{contentOf(arguments.at(1) + path), 200});
    }
    answer(belief(program));
    const auto known = actions();
    for (std::string name; std::getline(std::cin, name);) {
        known.value(name)(program.model());
        answer(belief(program));
    }
    return EXIT_SUCCESS;
}
