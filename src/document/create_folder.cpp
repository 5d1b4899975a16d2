#include "common/common.h"
#include "document/folder_existence.h"
#include "document/folder_operations.h"
#include "store/catalogue_rewrite.h"
#include "store/folder_id.h"
#include "store/toc.h"

namespace zvx {

namespace {

// Copies the records, writes the new one behind them, and the entries as they stand.
void AppendFolderRecord(const Common& common, const std::filesystem::path& workingCopy,
                        const TocGroup& record) {
    CatalogueRewrite rewrite(common, workingCopy);
    TocGroup group;
    while (rewrite.nextTocGroup(group))
        rewrite.writeTocGroup(group);
    rewrite.writeTocGroup(record);
    rewrite.endToc();
    std::string_view line;
    while (rewrite.nextEntryLine(line))
        rewrite.writeLine(line);
    rewrite.finish(true);
}

}  // namespace

FolderChange CreateFolder(Common& common, const std::filesystem::path& workingCopy,
                          const FolderTree& tree, int selected, const FolderDialogResult& dialog) {
    std::string path = dialog.name;
    if (!tree.empty() && dialog.asSubFolder && selected >= 0 && selected < tree.size()) {
        path = tree.nodes[selected].fullPath + "\\" + dialog.name;
        common.ExpandAfterRefresh = true;
    }
    if (RefuseExistingFolder(common, tree, path))
        return {};
    std::string id = FreeFolderID(workingCopy);
    AppendFolderRecord(common, workingCopy,
                       MakeTocGroup(path + "\\", dialog.description, dialog.icon, id));
    common.PLUGSTART("FOLDERCREATE");
    return {true, id, ""};
}

}  // namespace zvx
