#include "shell/command_line.h"

namespace zvx {

std::string JoinArguments(int argc, char** argv) {
    std::string line;
    for (int i = 1; i < argc; ++i) {
        if (i > 1)
            line += ' ';
        line += argv[i];
    }
    return line;
}

std::string ApplyQuoteRule(std::string commandLine) {
    if (commandLine.starts_with('"'))
        commandLine.erase(0, 1);
    if (commandLine.ends_with('"'))
        commandLine.pop_back();
    return commandLine;
}

std::string AbsoluteDocumentPath(const std::string& path, const std::filesystem::path& cwd) {
    if (path.empty())
        return path;
    std::filesystem::path given(path);
    if (given.is_absolute())
        return path;
    return (cwd / given).lexically_normal().string();
}

}  // namespace zvx
