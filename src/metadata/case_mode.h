#pragma once
// The case modes of new entries' text fields.

#include <string>
#include <string_view>

namespace zvx {

enum CaseMode {
    kCaseLeaveUntouched = 0,  // "Leave Untouched"
    kCaseFirstLetter = 1,     // "First letter of whole filename"
    kCaseEveryWord = 2,       // "First letter of every Word"
    kCaseCapitals = 3,        // "Capitals Only"
    kCaseLower = 4,           // "Lowecase only"
};

// The text in the given case. In "every word" mode a blank, "(", "[", "-", ")", "]"
// (and "_" when `underscoreSplitsWords`) start a new word. Other modes leave it alone.
std::string ApplyCaseMode(std::string_view text, int mode, bool underscoreSplitsWords);

}  // namespace zvx
