#include "CommandLine.h"

#include <cstdlib>

namespace {

constexpr int wrongUse = 2;

QString help()
{
    return u"用法：corvanite-information [选项]\n"
           "\n"
           "打开信息工作台；已经打开时，让它的窗口回到前面。\n"
           "\n"
           "选项：\n"
           "  -h, --help     显示这份说明\n"
           "  -v, --version  显示版本\n"_qs;
}

CommandLine::Answer refusal(const QString& reason)
{
    return {u"corvanite-information：%1\n用 --help 查看用法。\n"_qs.arg(reason), wrongUse};
}

// A session manager starts the programs of the last session again with an option of its own.
bool isRestoredSession(const QStringList& arguments)
{
    return arguments.size() == 2 && arguments.first() == u"-session";
}

} // namespace

std::optional<CommandLine::Answer> CommandLine::answer(const QStringList& arguments,
                                                       const QString& version)
{
    if (arguments.isEmpty() || isRestoredSession(arguments)) {
        return std::nullopt;
    }
    const QString& first = arguments.first();
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
    return {u"corvanite-information：信息工作台已经在运行，但没有回应；这次没有打开窗口。\n"_qs,
            EXIT_FAILURE};
}
