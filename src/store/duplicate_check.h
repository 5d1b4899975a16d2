#pragma once
// The duplicate check every adding path and copy or move runs before it writes a line.
// Two entry lines are duplicates when their folder IDs and their name, path and
// medium-ID fields are equal; size and date are only shown.

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace zvx {

class Common;

inline constexpr const char* kKeepOld = "keepold";
inline constexpr const char* kKeepAll = "keepall";
inline constexpr const char* kDelOld = "delold";
inline constexpr const char* kDelAll = "delall";

// What the duplicate check decided for a new line.
struct DuplicateVerdict {
    bool write = true;  // whether the new line is to be written
    // The old line that is to go (0 for none): its number behind the TOC when a scan found
    // it, one more than its number in the run's duplicate index when the index did.
    uint64_t replaced = 0;
    bool byIndex = false;
};

// Decides whether `newLine` is to be written to `file`, changing nothing. On a duplicate
// the user is asked (unless "Keep all" or "Overwrite all" was answered in this run);
// overwriting replaces the old line. In decheck.tmp, the copy that only keeps track of
// what has been seen, a duplicate is replaced silently. While an add run is active for
// the file, its duplicate index answers, with the same questions and the same outcome.
DuplicateVerdict JudgeDuplicate(Common& common, const std::filesystem::path& file,
                                std::string_view newLine);

// The check over the lines that may be duplicates of `newLine` (`count` of them, read by
// `lineAt`, in file order), with the questions and the outcome of the full scan: lines of
// another key are passed over, and the verdict's `replaced` is one more than the position
// of the line that is to go. The indexes that answer instead of a scan go through it.
DuplicateVerdict JudgeCandidates(Common& common, std::string_view newLine, size_t count,
                                 const std::function<std::string(size_t)>& lineAt);

// Strikes out the line the verdict replaces: from the file at once after a scan (throws
// FileError), from the run's index (and from the file when the run ends) otherwise.
// Writers strike only once the new line is written, so that a failed write loses nothing.
void StrikeReplaced(Common& common, const std::filesystem::path& file,
                    const DuplicateVerdict& verdict);

// JudgeDuplicate and StrikeReplaced at once: whether `newLine` is to be written.
bool CheckDuplicate(Common& common, const std::filesystem::path& file, std::string_view newLine);

// Rewrites the file through tempfil2.tmp without the entry lines for which `struck` holds;
// lines are numbered from 1 behind the first empty line, which closes the TOC.
void StrikeOutLines(const Common& common, const std::filesystem::path& file,
                    const std::function<bool(uint64_t number)>& struck);

}  // namespace zvx
