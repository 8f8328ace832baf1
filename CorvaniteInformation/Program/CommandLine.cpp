// SPDX-License-Identifier: Apache-2.0

#include "CommandLine.h"

#include "KeptExport.h"
#include "PrintableText.h"

#include <cstdlib>

namespace {

constexpr int wrongUse = 2;

const QString exportOption = u"--export-kept"_qs;

QString help()
{
    return u"用法：corvanite-information [选项]\n"
           "\n"
           "打开信息工作台；已经打开时，让它的窗口回到前面。\n"
           "\n"
           "选项：\n"
           "  --export-kept 文件 [资料库]  把收下的内容写到文件（.md、.json、.html；- "
           "为标准输出）；\n"
           "                               写了资料库，就读那一份，例如一份冲突副本\n"
           "  -h, --help                   显示这份说明\n"
           "  -v, --version                显示版本\n"_qs;
}

CommandLine::Answer told(const QString& reason, int exitCode)
{
    return {u"corvanite-information：%1\n"_qs.arg(PrintableText::oneLine(reason)), exitCode};
}

CommandLine::Answer refusal(const QString& reason)
{
    auto answer = told(reason, wrongUse);
    answer.text += u"用 --help 查看用法。\n"_qs;
    return answer;
}

// A session manager starts the programs of the last session again with an option of its own.
bool isRestoredSession(const QStringList& arguments)
{
    return arguments.size() == 2 && arguments.first() == u"-session";
}

CommandLine::Request keptExport(const QStringList& paths)
{
    if (paths.isEmpty() || paths.size() > 2) {
        return refusal(u"--export-kept 后面写一个文件，还可以再写一份资料库。"_qs);
    }
    const QString& file = paths.first();
    if (file != CommandLine::Export::standardOutput && !KeptExport::formatOf(file)) {
        return refusal(u"“%1”不是以 .md、.json 或 .html 结尾。"_qs.arg(file));
    }
    return CommandLine::Export{
        .file = file, .workspace = paths.size() > 1 ? std::optional(paths.last()) : std::nullopt};
}

} // namespace

CommandLine::Request CommandLine::request(const QStringList& arguments, const QString& version)
{
    if (arguments.isEmpty() || isRestoredSession(arguments)) {
        return Window();
    }
    const QString& first = arguments.first();
    if (first == exportOption) {
        return keptExport(arguments.sliced(1));
    }
    if (arguments.size() > 1) {
        return refusal(u"一次只能用一个选项。"_qs);
    }
    if (first == u"--help" || first == u"-h") {
        return Answer{help(), EXIT_SUCCESS};
    }
    if (first == u"--version" || first == u"-v") {
        return Answer{u"Corvanite Information %1\n"_qs.arg(version), EXIT_SUCCESS};
    }
    return refusal(first.startsWith(u'-') ? u"没有“%1”这个选项。"_qs.arg(first)
                                          : u"不接受参数“%1”。"_qs.arg(first));
}

CommandLine::Answer CommandLine::unanswered()
{
    return failure(u"信息工作台已经在运行，但没有回应；这次没有打开窗口。"_qs);
}

CommandLine::Answer CommandLine::failure(const QString& reason)
{
    return told(reason, EXIT_FAILURE);
}
