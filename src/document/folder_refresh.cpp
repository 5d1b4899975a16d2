#include "document/folder_refresh.h"

#include <algorithm>

#include "common/common.h"
#include "document/progress_steps.h"

namespace zvx {

FolderTree LoadFolderTree(Common& common, const std::filesystem::path& workingCopy) {
    common.setProgress(0);
    std::vector<TocGroup> groups = ReadTocGroups(workingCopy);
    long long count = static_cast<long long>(groups.size());
    ProgressSteps progress(common, count + 1);
    FolderTree tree = BuildFolderTree(groups, [&](long long index) { progress.set(index); });
    common.setProgress(count + 1);
    return tree;
}

FolderTree listak(Common& common, const std::filesystem::path& workingCopy) {
    common.PLUGSTART("ZVXREFRESHF");
    common.screen().status(kRefreshFolderStatus);
    return LoadFolderTree(common, workingCopy);
}

RefreshSelection SelectAfterRefresh(Common& common, int remembered, const FolderTree& tree) {
    if (tree.empty())
        return {};
    RefreshSelection selection;
    selection.node = std::clamp(remembered, 0, tree.size() - 1);
    selection.expand = common.ExpandAfterRefresh;
    common.ExpandAfterRefresh = false;
    return selection;
}

}  // namespace zvx
