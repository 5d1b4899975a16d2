#include "document/folder_navigation.h"

#include <string>

#include "common/text_case.h"

namespace zvx {

int pathextrude(const FolderTree& tree, std::string_view path) {
    std::string wanted = LowerCase(path);
    for (int i = 0; i < tree.size(); ++i) {
        if (LowerCase(tree.nodes[i].fullPath + "\\") == wanted)
            return i;
    }
    return -1;
}

std::vector<int> SelectedBranch(const FolderTree& tree, int selected) {
    if (selected < 0 || selected >= tree.size())
        return {};
    std::string prefix = LowerCase(tree.nodes[selected].fullPath);
    std::vector<int> branch;
    for (int i = 0; i < tree.size(); ++i) {
        if (LowerCase(tree.nodes[i].fullPath).starts_with(prefix))
            branch.push_back(i);
    }
    branch.push_back(selected);
    return branch;
}

bool CollapseHidesShownFolder(std::string_view shownPath, std::string_view nodePath) {
    return shownPath.size() > nodePath.size() && shownPath.starts_with(nodePath);
}

}  // namespace zvx
