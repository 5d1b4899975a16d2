#pragma once
// The duplicate check every adding path and copy or move runs before it writes a line.
// Two entry lines are duplicates when their folder IDs and their name, path and
// medium-ID fields are equal; size and date are only shown.

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string_view>

namespace zvx {

class Common;

inline constexpr const char* kKeepOld = "keepold";
inline constexpr const char* kKeepAll = "keepall";
inline constexpr const char* kDelOld = "delold";
inline constexpr const char* kDelAll = "delall";

// Whether `newLine` is to be written to `file`. On a duplicate the user is asked
// (unless "Keep all" or "Overwrite all" was answered in this run); overwriting strikes
// the old line out of the file. In decheck.tmp, the copy that only keeps track of what
// has been seen, a duplicate is struck out silently. While an add run is active for the
// file, its duplicate index answers, with the same questions and the same outcome.
bool CheckDuplicate(Common& common, const std::filesystem::path& file, std::string_view newLine);

// Rewrites the file through tempfil2.tmp without the entry lines for which `struck` holds;
// lines are numbered from 1 behind the first empty line, which closes the TOC.
void StrikeOutLines(const Common& common, const std::filesystem::path& file,
                    const std::function<bool(uint64_t number)>& struck);

}  // namespace zvx
