// zvxcat COMMAND [ARGUMENTS]: finds the command, checks its arguments, sets up the
// process and runs it. Exit status 0 on success, 1 on failure, 2 on wrong use, 3 on a
// search that outgrew its limits; any failure, whatever was thrown, ends with a message
// and status 1.

#include <unistd.h>

#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "command_list.h"
#include "console_screen.h"
#include "fatal_error.h"
#include "finding/search_words.h"
#include "tool_session.h"

namespace {

using namespace zvx::cat;

constexpr int kExitUsage = 2;
// A search that outgrew its fixed tables ends as the window program does, with a message.
constexpr int kExitFatal = 3;

int RunCommand(const Command& command, const std::vector<std::string>& args) {
    Arguments arguments = ParseArguments(args, command.flags);
    if (arguments.help) {
        PrintCommandHelp(command, std::cout);
        return 0;
    }
    command.check(arguments);
    ConsoleScreen screen(AnswersFromArguments(arguments), std::cin, std::cerr, isatty(STDIN_FILENO),
                         isatty(STDERR_FILENO));
    ToolSession session(screen);
    command.run(arguments, session.common(), std::cout);
    if (!std::cout.flush())
        throw ToolFailure("cannot write the output");
    return 0;
}

int UsageFailure(const std::string& text, const Command* command) {
    std::cerr << "zvxcat: " << text << "\n";
    if (command)
        PrintCommandHelp(*command, std::cerr);
    else
        std::cerr << "Try 'zvxcat --help'.\n";
    return kExitUsage;
}

int Main(const std::vector<std::string>& args) {
    if (args.empty())
        return UsageFailure("no command given", nullptr);
    if (args[0] == "--help") {
        PrintToolHelp(std::cout);
        return 0;
    }
    const Command* command = FindCommand(args[0]);
    if (!command)
        return UsageFailure("unknown command '" + args[0] + "'", nullptr);
    try {
        return RunCommand(*command, {args.begin() + 1, args.end()});
    } catch (const UsageError& e) {
        return UsageFailure(std::string(command->name) + ": " + e.what(), command);
    } catch (const zvx::SearchOverflow& e) {
        std::cerr << "zvxcat: " << e.what() << "\n";
        return kExitFatal;
    }
}

}  // namespace

int main(int argc, char** argv) {
    EndTerminateWithFailure();
    try {
        return Main({argv + 1, argv + argc});
    } catch (...) {
        PrintFailure(std::current_exception());
        return kExitFailure;
    }
}
