#include "exchange/merge.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "common/common.h"
#include "common/numeric_value.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"
#include "store/catalogue_format.h"
#include "store/entry_offset.h"
#include "store/folder_id.h"
#include "store/toc.h"

namespace zvx {

namespace {

constexpr const char* kMergedFile = "tmpadd.tmp";
// The ID of entries that come before any line of a known folder.
constexpr std::string_view kNoFolderId = "        ";

// What the passes share: the target's folder paths under the target path (fname_cache),
// the source's IDs with their replacements (id_old, id_new) and the next free ID.
struct MergeState {
    std::string targetPath;
    std::unordered_set<std::string> fnameCache;
    // A source ID that stands twice keeps the replacement of its first row.
    std::unordered_map<std::string, std::string> newIdOf;
    // The cache does not grow during the merge, so a top name always gets the same
    // new name; kept so that many folders below one top folder cost one search.
    std::unordered_map<std::string, std::string> newNameOf;
    long long nextImportId = 0;
};

std::string NormalTargetPath(std::string path) {
    if (path == "\\")
        return "";
    if (!path.empty() && path.back() != '\\')
        path += '\\';
    return path;
}

void WriteGroup(AppendWriter& out, const TocGroup& group) {
    out.writeLine(group.path);
    out.writeLine(group.descriptionLine);
    out.writeLine(group.id);
}

void CountTargetId(MergeState& state, const std::string& id) {
    // IDs are eight digits; a garbage line must not overflow the counter.
    double value = std::min(NumericValue(id), 1e15);
    if (value >= static_cast<double>(state.nextImportId))
        state.nextImportId = RoundHalfEven(value + 1);
}

void CopyTargetToc(LineReader& target, AppendWriter& out, MergeState& state) {
    TocGroup group;
    while (ReadTocGroup(target, group)) {
        WriteGroup(out, group);
        if (group.path.starts_with(state.targetPath))
            state.fnameCache.insert(group.path);
        CountTargetId(state, group.id);
    }
}

// The source path under the target path, its first name made free of the target's.
std::string ImportedPath(MergeState& state, const std::string& path) {
    size_t cut = std::min(path.find('\\'), path.size());
    std::string name = path.substr(0, cut);
    auto [known, isNew] = state.newNameOf.try_emplace(name, name);
    while (isNew && state.fnameCache.count(state.targetPath + known->second + "\\"))
        known->second += " (2)";
    return state.targetPath + known->second + path.substr(cut);
}

// False when the IDs ran out before all folders had one.
bool CopySourceToc(Common& common, LineReader& source, AppendWriter& out, MergeState& state,
                   MergeResult& result) {
    TocGroup group;
    while (ReadTocGroup(source, group)) {
        out.writeLine(ImportedPath(state, group.path));
        out.writeLine(state.targetPath + group.descriptionLine);
        if (state.nextImportId > kFolderIdLimit) {
            common.screen().message("Error", "Error during import: New TOC-IDs are too high.",
                                    MsgButtons::OkOnly, MsgIcon::Critical);
            return false;
        }
        std::string id = FolderIdText(state.nextImportId++);
        state.newIdOf.try_emplace(group.id, id);
        out.writeLine(id);
        ++result.folders;
    }
    return true;
}

void CopyLines(LineReader& from, AppendWriter& out) {
    std::string_view line;
    while (from.next(line))
        out.writeLine(line);
}

// Each line gets the new ID of its folder. A line of an unknown folder keeps the ID of
// the line before, so it joins that line's folder; the ID is looked up only where it
// changes from one line to the next.
uint64_t CopySourceEntries(LineReader& source, AppendWriter& out, const MergeState& state) {
    std::string lastHead;
    std::string id(kNoFolderId);
    std::string_view line;
    uint64_t count = 0;
    while (source.next(line)) {
        std::string_view head = line.substr(0, std::min(line.size(), kFolderIdLength));
        if (head != lastHead) {
            lastHead = head;
            auto found = state.newIdOf.find(lastHead);
            if (found != state.newIdOf.end())
                id = found->second;
        }
        std::string merged = id;
        merged += line.substr(head.size());
        out.writeLine(merged);
        ++count;
    }
    return count;
}

}  // namespace

MergeResult MergeCatalogue(Common& common, const std::filesystem::path& target,
                           const std::filesystem::path& source, std::string targetPath) {
    MergeState state;
    state.targetPath = NormalTargetPath(std::move(targetPath));
    MergeResult result;
    const std::filesystem::path merged = common.workFile(kMergedFile);
    WriteEmptyFile(merged);
    {
        AppendWriter out(merged);
        // Version byte and entry offset all zero; the offset is set at the end.
        out.write(std::string(kHeaderSize, '\0'));
        LineReader targetReader(target, kTocStart);
        LineReader sourceReader(source, kTocStart);
        CopyTargetToc(targetReader, out, state);
        if (!CopySourceToc(common, sourceReader, out, state, result)) {
            out.close();
            return {};
        }
        out.writeLine("");
        CopyLines(targetReader, out);
        result.entries = CopySourceEntries(sourceReader, out, state);
        out.close();
    }
    // Set before the replacement, so that the target changes in one step.
    UpdateEntryOffset(common, merged);
    ReplaceFile(merged, target);
    DeleteFileIfExists(source);
    result.merged = true;
    return result;
}

}  // namespace zvx
