#include <algorithm>
#include <optional>

#include "common/common.h"
#include "common/field_text.h"
#include "document/folder_existence.h"
#include "document/folder_operations.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"
#include "store/catalogue_format.h"
#include "store/entry_offset.h"
#include "store/temp_file.h"

namespace zvx {

namespace {

// What a rename and a change of properties write.
struct PropertyChange {
    std::string oldPath;          // FullPath of the folder
    std::string newPath;          // parent path + new name
    std::string id;               // the folder's ID, from its Tag
    std::string descriptionLine;  // new description + icon character
};

std::optional<std::string> NextLine(LineReader& reader) {
    std::string_view line;
    if (!reader.next(line))
        return std::nullopt;
    return std::string(line);
}

// The path test has no separator in it: the old path Music also takes Music2\, whose
// remainder 2\ makes it a child of the renamed folder.
std::string RenamedPath(const PropertyChange& change, const std::string& pathLine) {
    if (!pathLine.starts_with(change.oldPath))
        return pathLine;
    std::string remainder = pathLine.substr(change.oldPath.size());
    return remainder.starts_with('\\') ? change.newPath + remainder
                                       : change.newPath + "\\" + remainder;
}

// Reads the TOC by position: a line that starts before the entry offset is a path line
// with its two companions, everything behind it is copied as it stands.
void RewriteProperties(const Common& common, const std::filesystem::path& workingCopy,
                       const PropertyChange& change) {
    uint64_t entryOffset = ReadEntryOffset(workingCopy);
    PrepareTempFile(common);
    CopyHeaderToTempFile(common, workingCopy);
    LineReader reader(workingCopy, kTocStart);
    AppendWriter writer(common.workFile(kTempFile));
    while (std::optional<std::string> path = NextLine(reader)) {
        if (reader.position() + 1 >= entryOffset) {
            writer.writeLine(*path);
            continue;
        }
        std::optional<std::string> description = NextLine(reader);
        std::optional<std::string> id = NextLine(reader);
        writer.writeLine(RenamedPath(change, *path));
        bool ofFolder = id && id->substr(0, kFolderIdLength) == change.id;
        if (description)
            writer.writeLine(ofFolder ? change.descriptionLine : *description);
        if (id)
            writer.writeLine(*id);
    }
    writer.close();
    // The offset is right before the one replacement, so that a failure at any write
    // leaves the working copy as it was.
    UpdateEntryOffset(common, common.workFile(kTempFile));
    ReplaceFromTempFile(common, workingCopy);
}

}  // namespace

FolderChange ChangeFolderProperties(Common& common, const std::filesystem::path& workingCopy,
                                    const FolderTree& tree, int selected,
                                    const FolderDialogResult& dialog) {
    if (selected < 0 || selected >= tree.size())
        return {};
    const FolderNode& node = tree.nodes[selected];
    std::string parentPath = node.fullPath.substr(
        0, node.fullPath.size() - std::min(node.text.size(), node.fullPath.size()));
    PropertyChange change{
        node.fullPath, CleanFieldText(parentPath + dialog.name), node.id(),
        CleanFieldText(dialog.description) + static_cast<char>(kIconCharBase + dialog.icon)};
    // A change of case alone needs no test.
    if (!SameFolderPath(dialog.name, node.text) &&
        RefuseExistingFolder(common, tree, parentPath + dialog.name))
        return {};
    RewriteProperties(common, workingCopy, change);
    return {true, "", ""};
}

}  // namespace zvx
