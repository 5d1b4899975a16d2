#include "shell/file_pattern.h"

#include <string>
#include <vector>

#include "shell/field_text.h"
#include "shell/text_case.h"

namespace zvx {

namespace {

// Glob match over characters, by the usual two-pointer walk with one backtrack point.
bool MatchOne(const std::vector<std::string>& name, const std::vector<std::string>& pattern) {
    size_t n = 0, p = 0, starP = std::string::npos, starN = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == "*") {
            starP = p++;
            starN = n;
        } else if (p < pattern.size() && (pattern[p] == "?" || pattern[p] == name[n])) {
            ++p;
            ++n;
        } else if (starP != std::string::npos) {
            p = starP + 1;
            n = ++starN;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == "*")
        ++p;
    return p == pattern.size();
}

std::vector<std::string> UpperCharacters(std::string_view text) {
    std::vector<std::string> out;
    bool utf8 = IsValidUtf8(text);
    for (std::string_view ch : Characters(text))
        out.push_back(UpperChar(ch, utf8));
    return out;
}

}  // namespace

bool MatchesFilePattern(std::string_view name, std::string_view patterns) {
    std::vector<std::string> upperName = UpperCharacters(name);
    size_t start = 0;
    while (start <= patterns.size()) {
        size_t end = patterns.find(';', start);
        if (end == std::string_view::npos)
            end = patterns.size();
        std::string_view pattern = Trim(patterns.substr(start, end - start));
        if (pattern == "*.*" || pattern == "*")
            return true;
        if (!pattern.empty() && MatchOne(upperName, UpperCharacters(pattern)))
            return true;
        start = end + 1;
    }
    return false;
}

}  // namespace zvx
