// SPDX-License-Identifier: Apache-2.0

#include "ExportKept.h"

#include "InformationContent.h"
#include "InformationWorkspaceRepository.h"
#include "KeptExport.h"
#include "LocalFileManager.h"
#include "PrintableText.h"

#include <QFileInfo>

#include <cstdlib>
#include <expected>
#include <utility>

namespace {

using CommandLine::Answer;

template <typename Value>
using Found = std::expected<Value, QString>;

QString absolute(const QString& path)
{
    return QFileInfo(path).absoluteFilePath();
}

Found<InformationWorkspaceRepository> repository(const CommandLine::Export& request,
                                                 const LocalFileManager& files)
{
    if (!request.workspace) {
        auto live = InformationWorkspaceRepository::live(files);
        return live ? Found<InformationWorkspaceRepository>(*std::move(live))
                    : std::unexpected(live.error().localizedDescription());
    }
    const InformationWorkspaceRepository named{.filePath = absolute(*request.workspace)};
    const auto document = files.readFile(named.filePath);
    if (document && !*document) {
        return std::unexpected(u"没有“%1”这个文件。"_qs.arg(*request.workspace));
    }
    return named;
}

Found<InformationWorkspace> workspace(const CommandLine::Export& request,
                                      const LocalFileManager& files)
{
    const auto named = repository(request, files);
    if (!named) {
        return std::unexpected(named.error());
    }
    auto loaded = named->load(files);
    if (!loaded) {
        return std::unexpected(
            u"读不出收下的内容：%1"_qs.arg(localizedDescription(loaded.error())));
    }
    return *std::move(loaded);
}

QString reason(const FileError& error)
{
    switch (error.reason) {
    case FileError::Reason::PermissionDenied:
        return u"没有写入权限。"_qs;
    case FileError::Reason::FolderMissing:
        return u"没有这个文件夹。"_qs;
    default:
        return error.localizedDescription();
    }
}

Answer write(const QByteArray& document, const QString& file, const LocalFileManager& files)
{
    const auto written = files.replaceFile(absolute(file), document);
    return written
               ? Answer{u"收下的内容已写到“%1”。\n"_qs.arg(PrintableText::oneLine(file)),
                        EXIT_SUCCESS}
               : CommandLine::failure(u"“%1”没有写成：%2"_qs.arg(file, reason(written.error())));
}

} // namespace

Answer exportKept(const CommandLine::Export& request, const QProcessEnvironment& environment)
{
    const LocalFileManager files(LocalFileManager::applicationSupportDirectory(environment));
    const auto kept = workspace(request, files);
    if (!kept) {
        return CommandLine::failure(kept.error());
    }
    const auto content = InformationContent::atStart(files);
    const auto format = KeptExport::formatOf(request.file).value_or(KeptExport::Format::Markdown);
    const auto document =
        KeptExport::document(format, *kept, content.signals() + content.retiredSignals());
    return request.file == CommandLine::Export::standardOutput
               ? Answer{QString::fromUtf8(document), EXIT_SUCCESS}
               : write(document, request.file, files);
}
