// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "DataFolder.h"
#include "InformationSeed.h"
#include "InformationWorkspaceCoding.h"
#include "ProgramStart.h"

#include <QTest>

/// Fails the test unless the next start shows what is stored, leaves no temporary file, and can
/// save.
inline void verifyNextStart(const DataFolder& folder)
{
    const QByteArray workspace = folder.content(DataFolder::workspace);
    const auto pack = InformationPackSync::parse(folder.content(DataFolder::pack));
    ProgramStart program(folder.environment());
    auto& model = program.model();

    QCOMPARE(program.parts.instance().standing(), ProgramInstance::Standing::First);
    QCOMPARE(model.errorText(), QString());
    QCOMPARE(folder.leftovers(), QStringList());
    QCOMPARE(folder.content(DataFolder::workspace), workspace);
    QCOMPARE(model.workspace(),
             InformationWorkspaceCoding::decode(workspace).value_or(InformationWorkspace()));
    QCOMPARE(model.packAsOf(), pack ? pack->asOf : InformationSeed::asOf());

    QVERIFY(model.addSource(u"下次打开后的一句话"_qs));
    QCOMPARE(InformationWorkspaceCoding::encode(model.workspace()),
             folder.content(DataFolder::workspace));
}
