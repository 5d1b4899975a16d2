// Any bytes, taken as a catalogue file, go through every reader of the catalogue store.
// The readers may fail only with FileError, they must agree on where the TOC ends, and
// a copy through the rewrite pattern keeps the TOC groups and the lines behind them.
// The folder tree builds from any TOC.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/common.h"
#include "document/folder_caption.h"
#include "document/folder_tree.h"
#include "fuzz_check.h"
#include "fuzz_folder.h"
#include "platform/file_error.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"
#include "silent_screen.h"
#include "store/catalogue_format.h"
#include "store/catalogue_info.h"
#include "store/catalogue_rewrite.h"
#include "store/duplicate_check.h"
#include "store/entry_line.h"
#include "store/entry_offset.h"
#include "store/folder_id.h"
#include "store/folder_listing.h"
#include "store/toc.h"

namespace {

using zvx::fuzz::Require;
using Path = std::filesystem::path;

void WriteInput(const Path& path, std::string_view bytes) {
    zvx::WriteEmptyFile(path);
    zvx::WriteFileBytes(path, 0, bytes);
}

bool SameGroups(const std::vector<zvx::TocGroup>& a, const std::vector<zvx::TocGroup>& b) {
    if (a.size() != b.size())
        return false;
    for (size_t i = 0; i < a.size(); ++i) {
        if (a[i].path != b[i].path || a[i].descriptionLine != b[i].descriptionLine ||
            a[i].id != b[i].id)
            return false;
    }
    return true;
}

// The lines from a 1-based position to the end of the file.
std::vector<std::string> LinesFrom(const Path& path, uint64_t position) {
    std::vector<std::string> lines;
    zvx::LineReader reader(path, position > 0 ? position - 1 : 0);
    std::string_view line;
    while (reader.next(line))
        lines.emplace_back(line);
    return lines;
}

// The TOC as InspectCatalogue, ReadTocGroups, FindTocEnd and FreeFolderID see it.
std::vector<zvx::TocGroup> ReadToc(const Path& catalogue) {
    const zvx::CatalogueInfo info = zvx::InspectCatalogue(catalogue);
    std::vector<zvx::TocGroup> groups = zvx::ReadTocGroups(catalogue);
    Require(info.folders == groups.size(), "InspectCatalogue counts every TOC group");
    Require(info.tocEnd == zvx::FindTocEnd(catalogue), "InspectCatalogue finds the TOC's end");
    Require(info.entryOffset == zvx::ReadEntryOffset(catalogue), "one entry offset");
    Require(zvx::FreeFolderID(catalogue).size() == zvx::kFolderIdLength,
            "a free folder ID has eight digits");
    return groups;
}

// Lists the folder; returns its first entry line.
std::optional<std::string> ListFolder(const Path& catalogue, std::string_view id) {
    std::optional<std::string> first;
    zvx::ListFolderEntries(catalogue, id, [&](std::string_view line) {
        Require(zvx::SplitEntryLine(line)[0] == id, "a listed line belongs to the folder");
        if (!first)
            first = std::string(line);
    });
    return first;
}

// Copies the catalogue through the rewrite pattern without a change.
void RewriteUnchanged(const zvx::Common& common, const Path& catalogue) {
    zvx::CatalogueRewrite rewrite(common, catalogue);
    zvx::TocGroup group;
    while (rewrite.nextTocGroup(group))
        rewrite.writeTocGroup(group);
    rewrite.endToc();
    std::string_view line;
    while (rewrite.nextEntryLine(line))
        rewrite.writeLine(line);
    rewrite.finish(true);
}

void CheckRewrite(const zvx::Common& common, const Path& catalogue,
                  const std::vector<zvx::TocGroup>& groups) {
    const Path copy = common.workFile("copy.zvx");
    zvx::CopyFileBytes(catalogue, copy);
    const std::vector<std::string> entries = LinesFrom(copy, zvx::FindTocEnd(copy));
    RewriteUnchanged(common, copy);
    Require(SameGroups(zvx::ReadTocGroups(copy), groups), "a rewrite keeps the TOC groups");
    const uint64_t tocEnd = zvx::FindTocEnd(copy);
    Require(zvx::ReadEntryOffset(copy) == tocEnd, "a rewrite sets the entry offset");
    Require(LinesFrom(copy, tocEnd) == entries, "a rewrite keeps the entry lines");
}

// A line already in the file is a duplicate: "keepold" leaves the file alone, while in
// decheck.tmp the old line is struck out silently.
void CheckDuplicates(zvx::Common& common, const Path& catalogue, std::string_view bytes,
                     const std::string& line) {
    common.DuplicateChoice.clear();
    Require(!zvx::CheckDuplicate(common, catalogue, line), "keepold refuses a duplicate");
    Require(zvx::ReadFileBytes(catalogue, 0, bytes.size() + 1) == bytes,
            "keepold leaves the file alone");
    const Path decheck = common.workFile(zvx::kDecheckFile);
    WriteInput(decheck, bytes);
    Require(zvx::CheckDuplicate(common, decheck, line), "decheck.tmp takes every line");
}

// The tree builder takes any records: a node for each record at most, each parent
// standing before its children, and the folder caption for every node.
void CheckTree(const std::vector<zvx::TocGroup>& groups) {
    const zvx::FolderTree tree = zvx::BuildFolderTree(groups);
    Require(tree.nodes.size() <= groups.size(), "one node a record at most");
    for (int i = 0; i < tree.size(); ++i) {
        Require(tree.nodes[i].parent < i, "a parent stands before its children");
        Require(zvx::folderstats(tree, i).tag == tree.nodes[i].fullPath, "a caption per node");
    }
}

void Exercise(zvx::Common& common, const Path& catalogue, std::string_view bytes) {
    const std::vector<zvx::TocGroup> groups = ReadToc(catalogue);
    CheckTree(groups);
    std::optional<std::string> firstEntry = ListFolder(catalogue, "00000000");
    if (!groups.empty()) {
        std::optional<std::string> listed = ListFolder(catalogue, groups.front().id);
        if (listed)
            firstEntry = listed;
    }
    CheckRewrite(common, catalogue, groups);
    if (firstEntry)
        CheckDuplicates(common, catalogue, bytes, *firstEntry);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static zvx::fuzz::SilentScreen screen;
    const Path& folder = zvx::fuzz::FuzzFolder();
    zvx::Common common(folder, folder, screen);
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const Path catalogue = folder / "fuzz.zvx";
    try {
        WriteInput(catalogue, bytes);
        Exercise(common, catalogue, bytes);
    } catch (const zvx::FileError&) {
        // A file the readers cannot make sense of may fail with FileError, nothing else.
    }
    return 0;
}
