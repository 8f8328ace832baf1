// SPDX-License-Identifier: Apache-2.0

#include "CommandLine.h"

#include "TerminalText.h"

#include <QLatin1StringView>

#include <algorithm>
#include <array>
#include <limits>

namespace {

constexpr qsizetype anyNumber = std::numeric_limits<qsizetype>::max();

struct CommandForm
{
    QLatin1StringView name;
    CommandLine::Command command;
    qsizetype fewestPaths;
    qsizetype mostPaths;
};

constexpr std::array commandForms{
    CommandForm{QLatin1StringView("draft"), CommandLine::Command::Draft, 1, anyNumber},
    CommandForm{QLatin1StringView("check"), CommandLine::Command::Check, 1, anyNumber},
    CommandForm{QLatin1StringView("next"), CommandLine::Command::Next, 2, 2},
    CommandForm{QLatin1StringView("diff"), CommandLine::Command::Diff, 2, 2},
    CommandForm{QLatin1StringView("site"), CommandLine::Command::Site, 1, 1},
    CommandForm{QLatin1StringView("--help"), CommandLine::Command::Help, 0, 0},
    CommandForm{QLatin1StringView("--version"), CommandLine::Command::Version, 0, 0},
};

const QString strictOption = u"--strict"_qs;

} // namespace

std::expected<CommandLine, QString> CommandLine::parse(const QStringList& arguments)
{
    if (arguments.isEmpty()) {
        return std::unexpected(u"没有写要做什么"_qs);
    }
    const auto form = std::ranges::find(commandForms, arguments.front(), &CommandForm::name);
    if (form == commandForms.end()) {
        return std::unexpected(u"不认得“%1”"_qs.arg(TerminalText::of(arguments.front())));
    }
    CommandLine line{.command = form->command, .paths = {}};
    bool onlyPaths = false;
    for (const QString& argument : arguments.sliced(1)) {
        if (onlyPaths || !argument.startsWith(u'-')) {
            line.paths.append(argument);
        } else if (argument == u"--") {
            onlyPaths = true;
        } else if (argument == strictOption && form->command == Command::Check) {
            line.isStrict = true;
        } else {
            return std::unexpected(
                u"%1 不认得“%2”"_qs.arg(QString(form->name), TerminalText::of(argument)));
        }
    }
    if (line.paths.size() < form->fewestPaths || line.paths.size() > form->mostPaths) {
        return std::unexpected(u"%1 后面的路径数目不对"_qs.arg(QString(form->name)));
    }
    return line;
}

QString CommandLine::usage()
{
    return u"用法：\n"
           "  corvanite-edition draft FEED…            从 RSS、Atom、JSON Feed 文件起草卡片\n"
           "  corvanite-edition check FILE… [--strict] 检查信息包、已退出名单、版本文档、信源登记\n"
           "  corvanite-edition next OLD NEW           在 NEW 文件夹里做出接着 OLD 的一版\n"
           "  corvanite-edition diff OLD NEW           说明读者会看到什么变化\n"
           "  corvanite-edition site DIR               把当前文件夹里的一版布置到 DIR\n"
           "  corvanite-edition --help | --version\n"_qs;
}
