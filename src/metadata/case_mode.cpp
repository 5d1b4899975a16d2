#include "metadata/case_mode.h"

#include "common/text_case.h"

namespace zvx {

namespace {

bool SplitsWords(std::string_view ch, bool underscore) {
    if (ch.size() != 1)
        return false;
    switch (ch[0]) {
        case ' ':
        case '(':
        case '[':
        case '-':
        case ')':
        case ']':
            return true;
        case '_':
            return underscore;
        default:
            return false;
    }
}

std::string EveryWord(std::string_view text, bool underscore) {
    bool utf8 = IsValidUtf8(text);
    bool insideWord = false;
    std::string out;
    out.reserve(text.size());
    for (std::string_view ch : Characters(text)) {
        if (SplitsWords(ch, underscore)) {
            out += ch;
            insideWord = false;
        } else {
            out += insideWord ? LowerChar(ch, utf8) : UpperChar(ch, utf8);
            insideWord = true;
        }
    }
    return out;
}

std::string FirstLetter(std::string_view text) {
    bool utf8 = IsValidUtf8(text);
    std::string out;
    bool first = true;
    for (std::string_view ch : Characters(text)) {
        out += first ? UpperChar(ch, utf8) : LowerChar(ch, utf8);
        first = false;
    }
    return out;
}

}  // namespace

std::string ApplyCaseMode(std::string_view text, int mode, bool underscoreSplitsWords) {
    switch (mode) {
        case kCaseFirstLetter:
            return FirstLetter(text);
        case kCaseEveryWord:
            return EveryWord(text, underscoreSplitsWords);
        case kCaseCapitals:
            return UpperCase(text);
        case kCaseLower:
            return LowerCase(text);
        default:
            return std::string(text);
    }
}

}  // namespace zvx
