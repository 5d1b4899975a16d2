#include "document/folder_caption.h"

#include "store/catalogue_format.h"

namespace zvx {

std::string status2(std::string_view text) {
    return "Folder: " + std::string(text);
}

FolderCaption folderstats(const FolderTree& tree, int selected) {
    if (selected < 0 || selected >= tree.size())
        return {status2("None"), ""};
    const FolderNode& node = tree.nodes[selected];
    std::string text = node.fullPath;
    if (node.tag.size() > kFolderIdLength)
        text += " (" + node.description() + ")";
    return {status2(text), node.fullPath};
}

}  // namespace zvx
