#include "finding/search_preparation.h"

#include <cstring>
#include <unordered_set>

#include "common/common.h"
#include "common/text_case.h"
#include "document/progress_steps.h"
#include "finding/line_blocks.h"
#include "finding/search_words.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"
#include "store/catalogue_format.h"
#include "store/entry_offset.h"
#include "store/toc.h"

namespace zvx {

namespace {

constexpr const char* kPreparingFull = "Preparing Search (Mode: Full ZVX)...";
constexpr const char* kCreatingTocs = "Preparing Search (Mode: Splitted ZVX - Creating TOCs)...";
constexpr const char* kFilteringEntries =
    "Preparing Search (Mode Splitted ZVX - Filtering Entries)...";

uint64_t IdKey(std::string_view line) {
    uint64_t key = 0;
    std::memcpy(&key, line.data(), kFolderIdLength);
    return key;
}

std::string WithTrailingBackslash(std::string text) {
    if (text.empty() || text.back() != '\\')
        text += '\\';
    return text;
}

// Whether one of the selected folder's sub-tree has the eight characters as its ID. Only
// membership counts, so the first of equal IDs is all that is kept.
class TreeIds {
  public:
    TreeIds(const std::filesystem::path& cfn, const std::string& fullPath) {
        const std::string selected = WithTrailingBackslash(LowerCase(fullPath));
        LineReader reader(cfn, kTocStart);
        TocGroup group;
        size_t places = 0;
        while (ReadTocGroup(reader, group)) {
            if (!LowerCase(WithTrailingBackslash(group.path)).starts_with(selected))
                continue;
            if (++places > kSearchTreeFolderLimit)
                throw SearchOverflow("The selected tree holds more than 64001 folders.");
            // An ID line shorter than eight characters takes a place but matches no line.
            if (group.id.size() >= kFolderIdLength)
                keys_.insert(IdKey(group.id));
        }
    }
    bool contains(std::string_view line) const { return keys_.count(IdKey(line)) > 0; }

  private:
    std::unordered_set<uint64_t> keys_;
};

void WriteNew(const std::filesystem::path& path, std::string_view bytes) {
    WriteEmptyFile(path);
    AppendWriter writer(path);
    writer.write(bytes);
    writer.close();
}

// Step 9: the entry lines of the tree and of the folder, appended behind the TOCs.
void SplitEntries(Common& common, const std::filesystem::path& cfn, const TreeIds& tree,
                  std::string_view folderId, AppendWriter& treeOut, AppendWriter& folderOut) {
    ProgressSteps progress(common, static_cast<long long>(FileLength(cfn)) + 1);
    LineBlocks blocks(cfn, EntrySectionStart(cfn));
    std::string_view block;
    while (blocks.next(block)) {
        for (size_t pos = 0; pos < block.size();) {
            const LineSpan line = LineAt(block, pos);
            pos = line.next;
            progress.set(static_cast<long long>(blocks.blockOffset() + pos) + 1);
            if (line.text.size() < kMinEntryLineLength)
                continue;
            if (tree.contains(line.text))
                treeOut.writeLine(line.text);
            if (line.text.substr(0, kFolderIdLength) == folderId)
                folderOut.writeLine(line.text);
        }
    }
}

}  // namespace

void SplitSearchFiles(Common& common, const std::filesystem::path& cfn,
                      const std::optional<SearchFolder>& selected, const SplitStatusTexts& texts) {
    Screen& screen = common.screen();
    screen.status(texts.creatingTocs);
    const std::filesystem::path tree = common.workFile(kSearchTreeFile);
    const std::filesystem::path folder = common.workFile(kSearchFolderFile);
    const std::string head = SearchHead(cfn);
    WriteNew(tree, head);
    WriteNew(folder, head);
    common.PLUGSTART("ZVXREFRESHS");
    screen.status(texts.filteringEntries);
    if (!selected) {
        screen.status("");
        return;
    }
    const TreeIds ids(cfn, selected->fullPath);
    {
        AppendWriter treeOut(tree);
        AppendWriter folderOut(folder);
        SplitEntries(common, cfn, ids, selected->folderId, treeOut, folderOut);
        treeOut.close();
        folderOut.close();
    }
    UpdateEntryOffset(common, tree);
    UpdateEntryOffset(common, folder);
    common.setProgress(0);
    screen.status("");
}

void SearchInit(Common& common, const std::filesystem::path& cfn, bool splitMode,
                const std::optional<SearchFolder>& selected) {
    common.screen().status(kPreparingFull);
    for (const char* name : {kSearchFullFile, kSearchTreeFile, kSearchFolderFile})
        DeleteFileIfExists(common.workFile(name));
    CopyFileBytes(cfn, common.workFile(kSearchFullFile));
    if (splitMode) {
        SplitSearchFiles(common, cfn, selected, {kCreatingTocs, kFilteringEntries});
        return;
    }
    common.setProgress(0);
    common.screen().status("");
}

}  // namespace zvx
