// SPDX-License-Identifier: Apache-2.0

#include "FuzzTarget.h"
#include "InformationSeed.h"
#include "Invariant.h"
#include "SampleModel.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

namespace {

const QString path = u"/support/Corvanite/Information/workspace-v1.json"_qs;

template <typename Value>
bool isUnique(const QList<Value>& list)
{
    return QSet<Value>(list.begin(), list.end()).size() == list.size();
}

void checkEncoding(const InformationWorkspace& workspace)
{
    const QByteArray encoded = InformationWorkspaceCoding::encode(workspace);
    const auto decoded = InformationWorkspaceCoding::decode(encoded);
    invariant(decoded && *decoded == workspace, "what is written reads as what it was");
    invariant(InformationWorkspaceCoding::encode(*decoded) == encoded,
              "what is read is written as it was");
    invariant(QJsonDocument::fromJson(encoded).object().size() == 7,
              "another reader sees the seven keys");
}

void checkMigration(const InformationWorkspace& workspace)
{
    const auto catalog = InformationSeed::retiredSignals() + InformationSeed::signals();
    const auto current = migrated(workspace, catalog);
    const bool isSupported =
        workspace.version >= 1 && workspace.version <= InformationWorkspace::currentVersion;
    invariant(current.has_value() == isSupported, "the versions 1 to 3 are supported");
    if (current) {
        invariant(current->version == InformationWorkspace::currentVersion,
                  "a migrated workspace is of the current version");
        invariant(migrated(*current, catalog) == current, "migration happens once");
        checkEncoding(*current);
    }
}

// A model over the stored document, and what its first action leaves there.
void checkStart(const QByteArray& document, bool isReadable)
{
    SampleModel sample;
    sample.files.files.insert(path, document);
    const auto model = sample.make();
    invariant(model->hasErrorMessage() != isReadable, "a start tells of a file it cannot read");
    model->toggleKeep(sample.signals.first());
    const QByteArray after = sample.files.files.value(path);
    if (isReadable) {
        invariant(after == InformationWorkspaceCoding::encode(model->workspace()),
                  "the file holds what the model holds");
    } else {
        invariant(after == document, "a file that cannot be read is never written over");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray document = inputBytes(data, size);
    const auto workspace = InformationWorkspaceCoding::decode(document);
    if (!workspace) {
        invariant(workspace.error().localizedDescription.startsWith(u"信息资料库文件"),
                  "a refusal is a sentence for the reader");
        checkStart(document, false);
        return 0;
    }
    invariant(isUnique(workspace->following) && isUnique(workspace->hidden) &&
                  isUnique(workspace->reducedLanes) && isUnique(workspace->seenTargets) &&
                  workspace->seenTargets.size() <= InformationWorkspace::maximumSeenTargets,
              "lists are clean");
    checkEncoding(*workspace);
    checkMigration(*workspace);
    checkStart(document, workspace->version >= 1 &&
                             workspace->version <= InformationWorkspace::currentVersion);
    return 0;
}
