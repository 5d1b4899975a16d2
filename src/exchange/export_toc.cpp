#include "exchange/export_toc.h"

#include <algorithm>
#include <cstring>
#include <ctime>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "common/common.h"
#include "common/text_case.h"
#include "document/progress_steps.h"
#include "finding/line_blocks.h"
#include "finding/search_run.h"
#include "platform/file_io.h"
#include "platform/mapped_file.h"
#include "store/catalogue_format.h"
#include "store/entry_offset.h"
#include "store/temp_file.h"
#include "store/toc.h"

namespace zvx {

namespace {

constexpr const char* kOptimizeTempFile = "exptmp.tmp";
constexpr const char* kSearchingUsed = "Optimizing Exported TOC (Searching For Used Folders)...";
constexpr const char* kSearchingParents =
    "Optimizing Exported TOC (Searching For Parental Folders)...";
constexpr const char* kGeneratingToc =
    "Optimizing Exported TOC (Resolving IDs And Generating New TOC)...";
constexpr const char* kCopyingEntries = "Optimizing Exported TOC (Copying Entries)...";

// The used folder IDs in order of first use (aDDid's list), with sets for the test: the
// eight characters of an entry's ID as one number, any other ID as text.
class UsedIds {
  public:
    void add(std::string_view id) {
        if (id.size() == kFolderIdLength) {
            uint64_t key = 0;
            std::memcpy(&key, id.data(), kFolderIdLength);
            // Entries are added folder by folder, so an ID mostly repeats the one before.
            if (hasLast_ && key == lastKey_)
                return;
            hasLast_ = true;
            lastKey_ = key;
            if (!keys_.insert(key).second)
                return;
        } else if (!others_.emplace(id).second) {
            return;
        }
        order_.emplace_back(id);
    }
    const std::vector<std::string>& order() const { return order_; }

  private:
    std::vector<std::string> order_;
    std::unordered_set<uint64_t> keys_;
    uint64_t lastKey_ = 0;
    bool hasLast_ = false;
    std::unordered_set<std::string> others_;
};

// The entry section of the source, from its 0-based start.
struct EntrySection {
    std::filesystem::path file;
    uint64_t start = 0;
};

// Calls `line` for each line of a block: its text without LF or CR LF. False when a line
// does not end in CR LF, as a line copy would then change its bytes.
template <typename Line>
bool ForEachLine(std::string_view block, Line line) {
    bool plain = true;
    for (size_t pos = 0; pos < block.size();) {
        size_t end = block.find('\n', pos);
        const size_t next = end == std::string_view::npos ? block.size() : end + 1;
        if (end == std::string_view::npos || end == pos || block[end - 1] != '\r') {
            plain = false;
            end = end == std::string_view::npos ? block.size() : end;
        } else {
            --end;
        }
        line(block.substr(pos, end - pos));
        pos = next;
    }
    return plain;
}

// The IDs of the entry lines, and whether every line ends in CR LF.
bool ReadUsedIds(Common& common, const EntrySection& entries, UsedIds& used) {
    ProgressSteps progress(common,
                           static_cast<long long>(FileLength(entries.file) - entries.start) + 2);
    LineBlocks blocks(entries.file, entries.start);
    std::string_view block;
    bool plain = true;
    while (blocks.next(block)) {
        plain &= ForEachLine(block, [&](std::string_view line) {
            if (line.size() >= kFolderIdLength)
                used.add(line.substr(0, kFolderIdLength));
        });
        progress.set(static_cast<long long>(blocks.blockOffset() + block.size() - entries.start));
    }
    return plain;
}

// A hash of every start of a text, one character at a time, so that all starts of a path
// are looked up in one pass over it.
class PrefixHash {
  public:
    void add(char c) { value_ = value_ * 1099511628211ULL + static_cast<unsigned char>(c) + 1; }
    uint64_t value() const { return value_; }

  private:
    uint64_t value_ = 14695981039346656037ULL;
};

uint64_t HashOf(std::string_view text) {
    PrefixHash hash;
    for (char c : text)
        hash.add(c);
    return hash.value();
}

// The TOC, read once: the first group of each ID, and the groups by the hash of their
// lower-cased path, for the ancestor test.
class TocIndex {
  public:
    explicit TocIndex(std::vector<TocGroup> groups) : groups_(std::move(groups)) {
        lowerPaths_.reserve(groups_.size());
        for (size_t i = 0; i < groups_.size(); ++i) {
            lowerPaths_.push_back(LowerCase(groups_[i].path));
            byId_.emplace(groups_[i].id, i);
            byPathHash_[HashOf(lowerPaths_[i])].push_back(i);
        }
    }

    const TocGroup& groupAt(size_t index) const { return groups_[index]; }

    const TocGroup* group(const std::string& id) const {
        const auto found = byId_.find(id);
        return found == byId_.end() ? nullptr : &groups_[found->second];
    }

    // The groups, in file order, whose lower-cased path starts the lower-cased path of
    // the ID ("<???>" when the TOC lacks it).
    std::vector<size_t> ancestorsOrSelf(const std::string& id) const {
        const TocGroup* own = group(id);
        const std::string path = LowerCase(own ? own->path : std::string(kUnresolvedFolder));
        std::vector<size_t> found;
        PrefixHash hash;
        for (size_t length = 0;; ++length) {
            collect(path, length, hash.value(), found);
            if (length == path.size())
                break;
            hash.add(path[length]);
        }
        std::sort(found.begin(), found.end());
        return found;
    }

  private:
    void collect(std::string_view path, size_t length, uint64_t hash,
                 std::vector<size_t>& found) const {
        const auto bucket = byPathHash_.find(hash);
        if (bucket == byPathHash_.end())
            return;
        for (size_t index : bucket->second) {
            if (lowerPaths_[index] == path.substr(0, length))
                found.push_back(index);
        }
    }

    std::vector<TocGroup> groups_;
    std::vector<std::string> lowerPaths_;
    std::unordered_map<std::string, size_t> byId_;
    std::unordered_map<uint64_t, std::vector<size_t>> byPathHash_;
};

// The ancestors are added for the IDs the entries use, not for ancestors added on the
// way: their own ancestors are among those already.
void AddAncestors(const TocIndex& toc, UsedIds& used) {
    const std::vector<std::string> snapshot = used.order();
    for (const std::string& id : snapshot) {
        for (size_t index : toc.ancestorsOrSelf(id))
            used.add(toc.groupAt(index).id);
    }
}

// Appends every entry line with CR LF; with `newId` its first eight characters replaced.
void CopyEntryLines(const EntrySection& entries, AppendWriter& to, std::string_view newId = {}) {
    LineBlocks blocks(entries.file, entries.start);
    std::string_view block;
    std::string changed;
    while (blocks.next(block)) {
        ForEachLine(block, [&](std::string_view line) {
            if (newId.empty()) {
                to.writeLine(line);
                return;
            }
            changed.assign(newId);
            if (line.size() > kFolderIdLength)
                changed.append(line.substr(kFolderIdLength));
            to.writeLine(changed);
        });
    }
}

void MakeNewToc(Common& common, const EntrySection& entries, const std::filesystem::path& target,
                std::string_view today) {
    PrepareTempFile(common);
    CopyHeaderToTempFile(common, entries.file);
    {
        AppendWriter out(common.workFile(kTempFile));
        out.writeLine(kExportedFolderPath);
        // "-" is the icon character of icon number 5.
        out.writeLine("Exported with ZVX (" + std::string(today) + ")-");
        out.writeLine(kExportedFolderId);
        out.writeLine("");
        CopyEntryLines(entries, out, kExportedFolderId);
        out.close();
    }
    ReplaceFromTempFile(common, target);
    UpdateEntryOffset(common, target);
}

void OptimizeToc(Common& common, const EntrySection& entries, const std::filesystem::path& target) {
    Screen& screen = common.screen();
    screen.status(kSearchingUsed);
    UsedIds used;
    const bool plain = ReadUsedIds(common, entries, used);
    screen.status(kSearchingParents);
    common.setProgress(0);
    const TocIndex toc(ReadTocGroups(entries.file));
    AddAncestors(toc, used);
    screen.status(kGeneratingToc);
    const std::filesystem::path rebuilt = common.workFile(kOptimizeTempFile);
    WriteEmptyFile(rebuilt);
    {
        AppendWriter out(rebuilt);
        out.write(std::string{static_cast<char>(kCurrentFormatVersion), 0, 0, 0, 0});
        for (const std::string& id : used.order()) {
            if (const TocGroup* group = toc.group(id)) {
                out.writeLine(group->path);
                out.writeLine(group->descriptionLine);
                out.writeLine(group->id);
            }
        }
        screen.status(kCopyingEntries);
        out.writeLine("");
        if (!plain)
            CopyEntryLines(entries, out);
        out.close();
    }
    // Lines that end in CR LF already are copied as they stand, inside the kernel.
    if (plain)
        AppendFileRange(entries.file, entries.start, rebuilt);
    UpdateEntryOffset(common, rebuilt);
    ReplaceFile(rebuilt, target);
    common.setProgress(0);
    screen.status("");
}

}  // namespace

std::optional<ExportTocMode> ExportTocModeOf(std::string_view word) {
    if (word == "all")
        return ExportTocMode::All;
    if (word == "optimize")
        return ExportTocMode::Optimize;
    if (word == "new")
        return ExportTocMode::New;
    return std::nullopt;
}

std::string TodayShortDate() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char text[64];
    const size_t length = std::strftime(text, sizeof text, "%x", &local);
    return std::string(text, length);
}

void ApplyExportToc(Common& common, const std::filesystem::path& file,
                    const std::filesystem::path& backup, ExportTocMode mode,
                    std::string_view today) {
    if (mode == ExportTocMode::All) {
        CopyFileBytes(backup, file);
        UpdateEntryOffset(common, file);
        return;
    }
    // The modes read the untouched copy itself, from where the offset set anew points,
    // rather than a copy of it.
    const uint64_t offset = DecodeEntryOffset(EncodeEntryOffset(FindTocEnd(backup)));
    const EntrySection entries{backup, offset > 0 ? offset - 1 : 0};
    if (mode == ExportTocMode::New)
        MakeNewToc(common, entries, file, today);
    else
        OptimizeToc(common, entries, file);
}

}  // namespace zvx
