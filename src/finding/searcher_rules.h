#pragma once
// The rules of the search window that need no window: what docucache makes of the open
// documents, and where "Jump to ZVX-entry" lands in a document.

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document/folder_tree.h"

namespace zvx {

// Combo2's comparisons in list order: an item's index plus one is its number.
inline constexpr std::array<const char*, 8> kComparisonTexts = {
    "Contains",     "Does Not Contain",    "Is",           "Is NOT",
    "Is More Than", "Is More/Equals Than", "Is Less Than", "Is Less/Equals Than"};
// Combo4's word modes, in the order of WordMode.
inline constexpr std::array<const char*, 3> kWordModeTexts = {"Exact Phrase", "Any Words",
                                                              "All Words"};

// What docucache leaves in the window, from the captions of the used document slots
// (in slot order) and the document Combo3 showed before.
struct DocucachePlan {
    std::vector<std::string> captions;  // Combo3's list
    std::string text;                   // Combo3's text afterwards
    // The remembered document is gone: Option1 is set and searchSplitMode cleared
    // before the preparation.
    bool documentGone = false;
    // The position in `captions` of the document whose SearchInit runs, if any.
    std::optional<size_t> prepare;
    // Command1 ("New Search-Result") is enabled.
    bool searchEnabled = false;
};

// docucache: Combo3 takes back the remembered caption when a document still has it and
// is left empty otherwise (a list box takes no other text), so that a closed
// document empties it. The preparation goes to the first document of that caption.
DocucachePlan docucache(std::vector<std::string> captions, std::string_view remembered);

// The node a jump selects: the first node, in the tree's order, whose FullPath followed
// by "\" is the result row's "ZVX-Folder" text; none for a folder the TOC did not know
// ("<???>") or one the tree no longer has.
std::optional<int> JumpNode(const FolderTree& tree, std::string_view folderText);

}  // namespace zvx
