#pragma once
// How an entry list looks: the appearance switches (ApplyListAppearance applies them)
// and the list style.

#include <string_view>

namespace zvx {

class Common;

// The appearance keys, each on only for "YES".
struct ListAppearance {
    bool showBack = false;  // LISTVIEWSHOWBACK: the main window's background picture
    bool selRow = true;     // LISTVIEWSELROW: FullRowSelect
    bool showGrid = false;  // LISTVIEWSHOWGRID: GridLines
    bool hot = false;       // LISTVIEWHOT: HotTracking
    bool hover = false;     // LISTVIEWHOVER: HoverSelection
};

ListAppearance ReadListAppearance(const Common& common);

// The list styles, as the list control numbers them.
inline constexpr int kLargeIconStyle = 0;
inline constexpr int kSmallIconStyle = 1;
inline constexpr int kListStyle = 2;
inline constexpr int kReportStyle = 3;

// ListStyleFromSetting: "Small Icons" 1, "List" 2, "Large Icons" 0, anything else 3
// (report).
int ListStyleFromSetting(std::string_view setting);

}  // namespace zvx
