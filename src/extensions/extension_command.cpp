#include "extensions/extension_command.h"

#include <optional>

#include "common/app_files.h"

namespace zvx {

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

bool EscapableInDoubleQuotes(char c) {
    return c == '"' || c == '\\' || c == '$' || c == '`';
}

}  // namespace

std::vector<std::string> ShellWords(std::string_view line) {
    std::vector<std::string> words;
    std::optional<std::string> word;
    char quote = 0;
    for (size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        const bool hasNext = i + 1 < line.size();
        if (!quote && IsBlank(c)) {
            if (word)
                words.push_back(std::move(*word));
            word.reset();
            continue;
        }
        if (!word)
            word.emplace();
        if (c == quote) {
            quote = 0;
        } else if (!quote && (c == '\'' || c == '"')) {
            quote = c;
        } else if (c == '\\' && hasNext && quote != '\'' &&
                   (!quote || EscapableInDoubleQuotes(line[i + 1]))) {
            word->push_back(line[++i]);
        } else {
            word->push_back(c);
        }
    }
    if (word)
        words.push_back(std::move(*word));
    return words;
}

std::filesystem::path FindWithoutCase(const std::filesystem::path& path) {
    std::filesystem::path found = path.root_path();
    for (const std::filesystem::path& part : path.relative_path()) {
        const std::string name = part.string();
        found =
            name == "." || name == ".." || name.empty() ? found / part : FindInFolder(found, name);
    }
    return found;
}

std::vector<std::string> ExtensionArguments(std::string_view exe,
                                            const std::filesystem::path& pluginsFolder) {
    std::vector<std::string> words = ShellWords(exe);
    if (words.empty())
        return words;
    std::string& program = words.front();
    const bool absolute = program.starts_with('/') || exe.find(":\\") != std::string::npos;
    if (!absolute)
        program = (pluginsFolder / program).string();
    program = FindWithoutCase(program).string();
    return words;
}

}  // namespace zvx
