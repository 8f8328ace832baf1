// SPDX-License-Identifier: Apache-2.0

#include "KeptExport.h"

#include "KeptBookmarks.h"
#include "KeptJson.h"
#include "KeptMarkdown.h"

#include <array>
#include <utility>

namespace {

constexpr std::array<std::pair<QLatin1StringView, KeptExport::Format>, 4> endings{{
    {QLatin1StringView(".md"), KeptExport::Format::Markdown},
    {QLatin1StringView(".json"), KeptExport::Format::Json},
    {QLatin1StringView(".html"), KeptExport::Format::Bookmarks},
    {QLatin1StringView(".htm"), KeptExport::Format::Bookmarks},
}};

} // namespace

std::optional<KeptExport::Format> KeptExport::formatOf(const QString& fileName)
{
    for (const auto& [ending, format] : endings) {
        if (fileName.endsWith(ending, Qt::CaseInsensitive)) {
            return format;
        }
    }
    return std::nullopt;
}

QByteArray KeptExport::document(Format format, const InformationWorkspace& workspace,
                                const QList<InformationSignal>& signals)
{
    const auto threads = ExportedThread::listOf(workspace, signals);
    switch (format) {
    case Format::Markdown:
        return keptMarkdown(threads, workspace.customSources);
    case Format::Json:
        return keptJson(threads, workspace.customSources);
    case Format::Bookmarks:
        return keptBookmarks(threads, workspace.customSources);
    }
    std::unreachable();
}
