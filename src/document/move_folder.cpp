#include <algorithm>

#include "common/common.h"
#include "common/field_text.h"
#include "common/text_case.h"
#include "document/folder_operations.h"
#include "store/catalogue_rewrite.h"
#include "store/toc.h"

namespace zvx {

namespace {

std::string WithBackslash(std::string text) {
    if (!text.ends_with('\\'))
        text += '\\';
    return text;
}

void Refuse(const Common& common, const std::string& text) {
    common.screen().message("Error", text, MsgButtons::OkOnly, MsgIcon::Critical);
}

bool TargetHoldsName(const FolderTree& tree, const std::string& candidate) {
    return std::any_of(tree.nodes.begin(), tree.nodes.end(),
                       [&](const FolderNode& node) { return node.fullPath + "\\" == candidate; });
}

// The refusals, in their order. The same-name test comes before the test for an empty
// target, so that a cancelled dialog with a root folder selected meets it.
bool MoveAllowed(const Common& common, const FolderTree& tree, const std::string& source,
                 const std::string& parent, std::string_view leafName,
                 const std::string& moveTarget) {
    if (TargetHoldsName(tree, WithBackslash(moveTarget + std::string(leafName)))) {
        Refuse(common,
               "A Folder with the same name does already exist in the specified target-folder.");
        return false;
    }
    if (moveTarget.empty())
        return false;
    std::string target = LowerCase(moveTarget);
    if (target == LowerCase(parent)) {
        Refuse(common,
               "Yo cannot copy / move an object if target and source are the same objects!");
        return false;
    }
    if (target.starts_with(LowerCase(source))) {
        Refuse(common, "A Folder cannot be a Sub-Folder of itself!");
        return false;
    }
    return true;
}

// The folder and everything below it gets the target in place of the parent path.
void RewriteMovedPaths(const Common& common, const std::filesystem::path& workingCopy,
                       const std::string& source, const std::string& parent,
                       const std::string& moveTarget) {
    std::string moved = LowerCase(source);
    CatalogueRewrite rewrite(common, workingCopy);
    TocGroup group;
    while (rewrite.nextTocGroup(group)) {
        if (LowerCase(group.path).starts_with(moved)) {
            std::string rest = group.path.substr(std::min(parent.size(), group.path.size()));
            if (rest.starts_with('\\'))
                rest.erase(0, 1);
            group.path = CleanFieldText(moveTarget + rest);
        }
        rewrite.writeTocGroup(group);
    }
    rewrite.endToc();
    std::string_view line;
    while (rewrite.nextEntryLine(line))
        rewrite.writeLine(line);
    rewrite.finish(true);
}

}  // namespace

void ShowPreparingFolderMove(const Common& common) {
    common.screen().status("Preparing the \"Move Folder\"-Dialogue.");
}

FolderChange extrememoving(Common& common, const std::filesystem::path& workingCopy,
                           const FolderTree& tree, std::string_view sourcePath,
                           std::string_view leafName, std::string moveTarget) {
    std::string source = WithBackslash(std::string(sourcePath));
    std::string parent = WithBackslash(std::string(
        sourcePath.substr(0, sourcePath.size() - std::min(leafName.size(), sourcePath.size()))));
    if (!MoveAllowed(common, tree, source, parent, leafName, moveTarget))
        return {};
    common.screen().status("Moving Folder...");
    if (moveTarget == "\\")
        moveTarget.clear();
    if (parent == "\\")
        parent.clear();
    RewriteMovedPaths(common, workingCopy, source, parent, moveTarget);
    common.screen().status("");
    common.PLUGSTART("ZVXFOLDERMOVE");
    return {true, "", moveTarget};
}

}  // namespace zvx
