#include "finding/searcher_rules.h"

#include <algorithm>

namespace zvx {

DocucachePlan docucache(std::vector<std::string> captions, std::string_view remembered) {
    DocucachePlan plan;
    plan.captions = std::move(captions);
    const auto& list = plan.captions;
    if (!remembered.empty() && std::find(list.begin(), list.end(), remembered) != list.end())
        plan.text = remembered;
    plan.documentGone = plan.text != remembered;
    // An empty text names no document: every document has a caption.
    if (!plan.text.empty())
        plan.prepare =
            static_cast<size_t>(std::find(list.begin(), list.end(), plan.text) - list.begin());
    plan.searchEnabled = !plan.text.empty();
    return plan;
}

std::optional<int> JumpNode(const FolderTree& tree, std::string_view folderText) {
    for (int node = 0; node < tree.size(); ++node) {
        const std::string& path = tree.nodes[static_cast<size_t>(node)].fullPath;
        if (folderText.size() == path.size() + 1 && folderText.starts_with(path) &&
            folderText.back() == '\\')
            return node;
    }
    return std::nullopt;
}

}  // namespace zvx
