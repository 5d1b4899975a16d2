#pragma once
// The duplicate check of a copy or move against tempfile.tmp, answered from memory.
//
// The pass tells it every line it writes, in order. It keeps those that a line written to
// the target could be a duplicate of (the lines that begin like the target), as places
// in the working copy, chained by a hash of their duplicate key, and reads them back
// only to ask about them. The lines struck out by "Overwrite" are noted by their number
// and leave tempfile.tmp in one rewrite at the end. This gives what the full check of
// tempfile.tmp gives as long as tempfile.tmp is regular (EntryPass::regular), when that
// check reads exactly the entry lines written so far.

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/mapped_file.h"

namespace zvx {

class Common;

class CopyTargetIndex {
  public:
    CopyTargetIndex(std::filesystem::path cfn, std::string_view target);

    // The next line written: the working copy's line at `offset` as it stands, or,
    // `retargeted`, with the target in place of its first eight characters.
    void written(uint64_t offset, std::string_view line, bool retargeted);
    // The check of `newLine`: whether it is to be written. Asks as the full check would;
    // the line it replaces is struck.
    bool check(Common& common, std::string_view newLine);
    // Rewrites `temp` without the struck lines, if any. Throws FileError.
    void strikeOut(const Common& common, const std::filesystem::path& temp) const;

  private:
    struct Line {
        uint64_t offset;  // in the working copy
        uint64_t number;  // among the entry lines of tempfile.tmp, from 1
        size_t older;     // the previous line with the same hash, or kNone
        uint32_t length;
        bool retargeted;
        bool struck;
    };
    static constexpr size_t kNone = SIZE_MAX;

    std::string retargeted(std::string_view line) const;
    std::string text(const Line& line);
    std::vector<size_t> candidates(std::string_view newLine) const;

    std::filesystem::path cfn_;
    std::string target_;
    // The first eight characters every line written to the target has; none when the
    // target is shorter, and then every line is kept.
    std::string prefix_;
    std::unique_ptr<MappedFile> mapped_;  // made at the first reading back
    uint64_t count_ = 0;                  // lines written so far
    std::vector<Line> lines_;
    std::unordered_map<uint64_t, size_t> newest_;  // hash -> its last line
    std::vector<uint64_t> struck_;
};

}  // namespace zvx
