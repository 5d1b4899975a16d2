#include "arguments.h"

#include <algorithm>

namespace zvx::cat {

Arguments ParseArguments(const std::vector<std::string>& args,
                         const std::vector<std::string_view>& knownFlags) {
    Arguments parsed;
    bool optionsEnded = false;
    for (const std::string& arg : args) {
        if (optionsEnded || arg.size() < 2 || arg.compare(0, 2, "--") != 0) {
            parsed.positional.push_back(arg);
        } else if (arg == "--") {
            optionsEnded = true;
        } else if (arg == "--help") {
            parsed.help = true;
        } else if (std::find(knownFlags.begin(), knownFlags.end(), arg) != knownFlags.end()) {
            parsed.flags.insert(arg);
        } else {
            throw UsageError("unknown option '" + arg + "'");
        }
    }
    return parsed;
}

void RequirePositionalCount(const Arguments& arguments, size_t least, size_t most) {
    size_t count = arguments.positional.size();
    if (count < least)
        throw UsageError("missing argument");
    if (count > most)
        throw UsageError("too many arguments");
}

std::filesystem::path NativePathArgument(const std::string& text) {
    if (text.empty())
        throw UsageError("an empty path");
    return std::filesystem::absolute(text);
}

}  // namespace zvx::cat
