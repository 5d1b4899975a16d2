#pragma once
// SelFiltering, the filter loop of a search: the entry lines of a source catalogue that
// pass one field test are appended to the result catalogue, in file order.

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "finding/search_words.h"

namespace zvx {

class Common;

// What the search window's sentence says.
struct SearchSettings {
    int field = 0;       // Combo1's list index: 0 "<ANYTHING>", else the field 1 to 22
    int comparison = 1;  // Combo2's list index plus one: 1 "Contains" to 8 "Is Less/Equals Than"
    WordMode mode = WordMode::ExactPhrase;
    bool caseSensitive = false;  // "Search case-sensitive"
    std::string text;
};

// Called for each line taken, with the line behind its first eight characters (the tail,
// which begins with the separator) and those eight characters (the folder ID).
using ShowEntry = std::function<void(std::string_view tail, std::string_view folderId)>;

// A new search asks whether to stop at every match beyond this many.
inline constexpr size_t kResultQuestionLimit = 2000;
inline constexpr const char* kResultQuestion =
    "The result includes over 2000 entries already.\r\nWould you like to stop the search?";

// Runs the filter over the entry section of `source` (from its entry offset), appending
// each line taken, with CR LF, to `result` and calling `showEntry` for it; returns how
// many were taken. A new search takes the lines the test hits (see SearchLineTest), and
// from the 2001st on asks kResultQuestion (Yes/No) at every line it takes: "Yes" ends
// the run, what was found stands. A removal (`removeMode`) takes exactly the lines a new
// search would not, and never asks; a text without words takes nothing either way.
// Makes sure result and sresult2.tmp exist; status "Search In Progress..." while it
// runs, then progress and status cleared. Throws SearchOverflow for more than 25 words,
// FileError when a file fails.
size_t SelFiltering(Common& common, const std::filesystem::path& source,
                    const std::filesystem::path& result, const SearchSettings& settings,
                    bool removeMode, const ShowEntry& showEntry);

}  // namespace zvx
