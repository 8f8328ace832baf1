// SPDX-License-Identifier: Apache-2.0

#include "KeptExport.h"
#include "FormatExamples.h"
#include "InformationPackSync.h"
#include "InformationWorkspaceCoding.h"
#include "Subject.h"

#include <QTest>

using KeptExport::Format;

class KeptExportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theNameSaysTheFormat_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<std::optional<Format>>("format");

        const auto row = [](const char* name, std::optional<Format> format) {
            QTest::newRow(name) << QString::fromUtf8(name) << format;
        };
        row("收下.md", Format::Markdown);
        row("/a.b/kept.JSON", Format::Json);
        row("kept.html", Format::Bookmarks);
        row("kept.htm", Format::Bookmarks);
        row("kept.txt", std::nullopt);
        row("kept", std::nullopt);
        row("md", std::nullopt);
        row("kept.md.bak", std::nullopt);
    }

    void theNameSaysTheFormat()
    {
        QFETCH(const QString, name);
        QFETCH(const std::optional<Format>, format);

        QCOMPARE(KeptExport::formatOf(name), format);
    }

    void writesTheExamples_data()
    {
        QTest::addColumn<QString>("example");

        QTest::newRow("Markdown") << u"kept-export.md"_qs;
        QTest::newRow("JSON") << u"kept-export.json"_qs;
        QTest::newRow("bookmarks") << u"kept-export.html"_qs;
    }

    void writesTheExamples()
    {
        QFETCH(const QString, example);
        const auto workspace =
            InformationWorkspaceCoding::decode(formatExample(u"kept-workspace.json"_qs)).value();
        const auto signals = InformationPackSync::parse(examplePack()).value().signals;

        const auto document =
            KeptExport::document(KeptExport::formatOf(example).value(), workspace, signals);

        QCOMPARE(QString::fromUtf8(document), QString::fromUtf8(formatExample(example)));
    }

    void anEmptyWorkspaceGivesAnEmptyDocument()
    {
        QCOMPARE(KeptExport::document(Format::Markdown, {}, {}), QByteArray("# 已收下\n"));
        QCOMPARE(KeptExport::document(Format::Json, {}, {}),
                 QByteArray("{\n  \"schemaVersion\": \"corvanite-kept-export-v1\",\n"
                            "  \"threads\": [],\n  \"customSources\": []\n}\n"));
    }
};

TEST_SUBJECT(KeptExportTest)
#include "KeptExportTest.moc"
