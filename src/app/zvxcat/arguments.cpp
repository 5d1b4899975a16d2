#include "arguments.h"

#include <algorithm>

namespace zvx::cat {

Arguments ParseArguments(const std::vector<std::string>& args,
                         const std::vector<std::string_view>& knownFlags) {
    auto known = [&](std::string_view flag) {
        return std::find(knownFlags.begin(), knownFlags.end(), flag) != knownFlags.end();
    };
    Arguments parsed;
    bool optionsEnded = false;
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        size_t equals = arg.find('=');
        if (optionsEnded || arg.size() < 2 || arg.compare(0, 2, "--") != 0) {
            parsed.positional.push_back(arg);
        } else if (arg == "--") {
            optionsEnded = true;
        } else if (arg == "--help") {
            parsed.help = true;
        } else if (known(arg) && !arg.ends_with('=')) {
            parsed.flags.insert(arg);
        } else if (known(arg + "=")) {
            if (i + 1 == args.size())
                throw UsageError("option '" + arg + "' needs a value");
            parsed.values[arg].push_back(args[++i]);
        } else if (equals != std::string::npos && known(arg.substr(0, equals + 1))) {
            parsed.values[arg.substr(0, equals)].push_back(arg.substr(equals + 1));
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
    // One spelling a path: "./a", "a//b" and "x/../a" name what "a" names, so that an
    // entry's path and the duplicate check see the same text.
    std::filesystem::path path = std::filesystem::absolute(text).lexically_normal();
    if (!path.has_filename() && path != path.root_path())
        path = path.parent_path();
    return path;
}

std::filesystem::path NativeFileArgument(const std::string& text) {
    const size_t slash = text.rfind('/');
    const std::string name = slash == std::string::npos ? text : text.substr(slash + 1);
    if (name != "." && name != "..")
        return NativePathArgument(text);
    return NativePathArgument(slash == std::string::npos ? "." : text.substr(0, slash + 1)) / name;
}

}  // namespace zvx::cat
