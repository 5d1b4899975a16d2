#include "common/file_pattern.h"

#include <algorithm>

#include "common/field_text.h"
#include "common/text_case.h"

namespace zvx {

namespace {

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

char AsciiUpper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// Glob match by the usual two-pointer walk with one backtrack point. `same(n, p)` tells
// whether name character n matches pattern character p.
template <class Same>
bool Glob(size_t nameSize, size_t patternSize, auto isStar, auto isAny, Same same) {
    size_t n = 0, p = 0, starP = std::string::npos, starN = 0;
    while (n < nameSize) {
        if (p < patternSize && isStar(p)) {
            starP = p++;
            starN = n;
        } else if (p < patternSize && (isAny(p) || same(n, p))) {
            ++p;
            ++n;
        } else if (starP != std::string::npos) {
            p = starP + 1;
            n = ++starN;
        } else {
            return false;
        }
    }
    while (p < patternSize && isStar(p))
        ++p;
    return p == patternSize;
}

std::vector<std::string> UpperCharacters(std::string_view text) {
    std::vector<std::string> out;
    bool utf8 = IsValidUtf8(text);
    for (std::string_view ch : Characters(text))
        out.push_back(UpperChar(ch, utf8));
    return out;
}

}  // namespace

FilePattern::FilePattern(std::string_view patterns) {
    size_t start = 0;
    while (start <= patterns.size()) {
        size_t end = patterns.find(';', start);
        if (end == std::string_view::npos)
            end = patterns.size();
        std::string_view pattern = Trim(patterns.substr(start, end - start));
        if (pattern == "*.*" || pattern == "*")
            all_ = true;
        if (!pattern.empty()) {
            One one{UpperCharacters(pattern), {}, IsAscii(pattern)};
            if (one.ascii)
                std::transform(pattern.begin(), pattern.end(), std::back_inserter(one.asciiUpper),
                               AsciiUpper);
            patterns_.push_back(std::move(one));
        }
        start = end + 1;
    }
}

bool FilePattern::matches(std::string_view name) const {
    if (all_)
        return true;
    const bool asciiName = IsAscii(name);
    std::vector<std::string> upperName;
    for (const One& one : patterns_) {
        if (asciiName && one.ascii) {
            const std::string& p = one.asciiUpper;
            if (Glob(
                    name.size(), p.size(), [&](size_t i) { return p[i] == '*'; },
                    [&](size_t i) { return p[i] == '?'; },
                    [&](size_t n, size_t i) { return AsciiUpper(name[n]) == p[i]; }))
                return true;
            continue;
        }
        if (upperName.empty())
            upperName = UpperCharacters(name);
        const std::vector<std::string>& p = one.characters;
        if (Glob(
                upperName.size(), p.size(), [&](size_t i) { return p[i] == "*"; },
                [&](size_t i) { return p[i] == "?"; },
                [&](size_t n, size_t i) { return upperName[n] == p[i]; }))
            return true;
    }
    return false;
}

bool MatchesFilePattern(std::string_view name, std::string_view patterns) {
    return FilePattern(patterns).matches(name);
}

}  // namespace zvx
