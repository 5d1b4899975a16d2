#include <unordered_set>

#include "common/common.h"
#include "common/text_case.h"
#include "document/folder_operations.h"
#include "document/progress_steps.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"
#include "store/catalogue_format.h"
#include "store/entry_offset.h"
#include "store/temp_file.h"
#include "store/toc.h"

namespace zvx {

namespace {

using DeadIds = std::unordered_set<std::string>;

std::string WithBackslash(std::string text) {
    if (!text.ends_with('\\'))
        text += '\\';
    return text;
}

// First pass: the records of other folders go to tempfile.tmp, closed by the empty line;
// gives the IDs of the records dropped.
DeadIds CopyOtherFolders(const Common& common, const std::filesystem::path& workingCopy,
                         const std::string& selectedPath) {
    std::string dropped = LowerCase(WithBackslash(selectedPath));
    DeadIds dead;
    size_t deadCount = 0;
    LineReader reader(workingCopy, kTocStart);
    AppendWriter writer(common.workFile(kTempFile));
    TocGroup group;
    while (ReadTocGroup(reader, group)) {
        if (LowerCase(WithBackslash(group.path)).starts_with(dropped)) {
            if (++deadCount > kDeadIdLimit)
                throw FolderListFull();
            dead.insert(group.id.substr(0, kFolderIdLength));
            continue;
        }
        writer.writeLine(group.path);
        writer.writeLine(group.descriptionLine);
        writer.writeLine(group.id);
    }
    writer.writeLine("");
    writer.close();
    return dead;
}

// Second pass: the lines from the old TOC end on, without those of the dropped folders.
void CopyOtherEntries(Common& common, const std::filesystem::path& workingCopy, uint64_t oldTocEnd,
                      const DeadIds& dead) {
    std::filesystem::path temp = common.workFile(kTempFile);
    UpdateEntryOffset(common, temp);
    long long entryOffset = static_cast<long long>(ReadEntryOffset(temp));
    common.screen().status("Searching and deleting contained files...");
    ProgressSteps progress(common,
                           static_cast<long long>(FileLength(workingCopy)) - entryOffset + 1);
    LineReader reader(workingCopy, oldTocEnd > 0 ? oldTocEnd - 1 : 0);
    AppendWriter writer(temp);
    std::string_view line;
    while (reader.next(line)) {
        progress.set(static_cast<long long>(reader.position()) + 1 - entryOffset);
        if (line.empty() || !dead.count(std::string(line.substr(0, kFolderIdLength))))
            writer.writeLine(line);
    }
    writer.close();
}

}  // namespace

bool ConfirmFolderDelete(const Common& common) {
    return common.screen().message("",
                                   "Are you sure that you want delete the selected Folder,\r"
                                   "all its Sub-Folders and ALL contained entries?",
                                   MsgButtons::YesNo, MsgIcon::None) == MsgAnswer::Yes;
}

FolderChange DeleteFolder(Common& common, const std::filesystem::path& workingCopy,
                          const FolderTree& tree, int selected) {
    if (selected < 0 || selected >= tree.size())
        return {};
    common.screen().status("Deleting selected folder(s)...");
    uint64_t oldTocEnd = ReadEntryOffset(workingCopy);
    PrepareTempFile(common);
    CopyHeaderToTempFile(common, workingCopy);
    DeadIds dead = CopyOtherFolders(common, workingCopy, tree.nodes[selected].fullPath);
    CopyOtherEntries(common, workingCopy, oldTocEnd, dead);
    // The offset is right before the one replacement, so that a failure at any write
    // leaves the working copy as it was.
    UpdateEntryOffset(common, common.workFile(kTempFile));
    ReplaceFromTempFile(common, workingCopy);
    common.PLUGSTART("ZVXFOLDERDEL");
    return {true, "", ""};
}

}  // namespace zvx
