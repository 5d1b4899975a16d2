#include "document/folder_tree.h"

#include <algorithm>
#include <tuple>
#include <unordered_set>

#include "common/field_text.h"
#include "store/catalogue_format.h"

namespace zvx {

namespace {

// One item of puflist, split the way BuildTreeLevel splits it.
struct PuflistItem {
    std::string path;
    std::string description;
    int icon = 0;
    std::string id;
};

PuflistItem ItemOf(const TocGroup& group) {
    std::string joined = group.path + '\n' + group.descriptionLine + '\n' + group.id;
    return {group.path, group.description(), group.icon(),
            std::string(Right(joined, kFolderIdLength))};
}

// A remainder below a level's prefix that names a folder of that level: no "\" but
// perhaps a trailing one.
bool OnThisLevel(std::string_view remainder) {
    return remainder.empty() ||
           remainder.substr(0, remainder.size() - 1).find('\\') == std::string_view::npos;
}

// One level of the recursion of BuildTreeLevel: the prefix all its folders begin with,
// the node they go under, and the folder added last on it.
struct Level {
    std::string prefix;
    int parent = -1;
    int last = -1;
    std::string lastPath;
};

// The recursion of BuildTreeLevel as a stack of levels, so that no input can make it
// run deeper than the records allow.
class TreeBuilder {
  public:
    void place(const PuflistItem& item) {
        while (levels_.size() > 1 && !item.path.starts_with(levels_.back().prefix))
            levels_.pop_back();
        while (true) {
            Level& level = levels_.back();
            if (OnThisLevel(std::string_view(item.path).substr(level.prefix.size()))) {
                addOnLevel(levels_.size() - 1, item, level.parent);
                return;
            }
            if (level.last < 0 || !item.path.starts_with(level.lastPath))
                break;
            levels_.push_back({level.lastPath, level.last, -1, ""});
        }
        placeOrphan(item);
    }

    FolderTree take() { return std::move(tree_); }

  private:
    // The parent record is missing: the folder goes under the one added last on this
    // level, else under the level's parent, and counts as added on this level, so that
    // its own descendants find it.
    void placeOrphan(const PuflistItem& item) {
        const Level& level = levels_.back();
        addOnLevel(levels_.size() - 1, item, level.last >= 0 ? level.last : level.parent);
    }

    void addOnLevel(size_t levelIndex, const PuflistItem& item, int parent) {
        std::string key = "#" + item.id;
        if (!keys_.insert(key).second)
            return;
        FolderNode node;
        node.key = std::move(key);
        node.text = LeafName(item.path);
        node.icon = item.icon;
        node.tag = item.description + item.id;
        node.parent = parent;
        node.fullPath = parent < 0 ? node.text : tree_.nodes[parent].fullPath + "\\" + node.text;
        tree_.nodes.push_back(std::move(node));
        levels_[levelIndex].last = tree_.size() - 1;
        levels_[levelIndex].lastPath = item.path;
    }

    FolderTree tree_;
    std::vector<Level> levels_{Level{"", -1, -1, ""}};
    std::unordered_set<std::string> keys_;
};

}  // namespace

std::string FolderNode::id() const {
    return std::string(Right(tag, kFolderIdLength));
}

std::string FolderNode::description() const {
    return tag.substr(0, tag.size() - std::min(tag.size(), kFolderIdLength));
}

std::string LeafName(std::string_view path) {
    if (path.ends_with('\\'))
        path.remove_suffix(1);
    size_t cut = path.rfind('\\');
    return std::string(cut == std::string_view::npos ? path : path.substr(cut + 1));
}

std::vector<TocGroup> SortPuflist(std::vector<TocGroup> groups) {
    std::sort(groups.begin(), groups.end(), [](const TocGroup& a, const TocGroup& b) {
        return std::tie(a.path, a.descriptionLine, a.id) <
               std::tie(b.path, b.descriptionLine, b.id);
    });
    return groups;
}

FolderTree BuildFolderTree(const std::vector<TocGroup>& groups,
                           const std::function<void(long long)>& progress) {
    TreeBuilder builder;
    long long index = 1;
    for (const TocGroup& group : SortPuflist(groups)) {
        builder.place(ItemOf(group));
        ++index;
        if (progress)
            progress(index);
    }
    return builder.take();
}

void RemoveChildren(FolderTree& tree, int node) {
    std::vector<int> newPosition(tree.nodes.size(), -1);
    std::vector<FolderNode> kept;
    for (size_t i = 0; i < tree.nodes.size(); ++i) {
        FolderNode& current = tree.nodes[i];
        bool below =
            current.parent >= 0 && (current.parent == node || newPosition[current.parent] < 0);
        if (below)
            continue;
        current.parent = current.parent < 0 ? -1 : newPosition[current.parent];
        newPosition[i] = static_cast<int>(kept.size());
        kept.push_back(std::move(current));
    }
    tree.nodes = std::move(kept);
}

}  // namespace zvx
