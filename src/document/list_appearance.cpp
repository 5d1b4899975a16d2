#include "document/list_appearance.h"

#include "store/settings.h"

namespace zvx {

namespace {

bool Yes(const Common& common, std::string_view key, std::string_view defaultText) {
    return ReadSetting(common, key, defaultText).isYes();
}

}  // namespace

ListAppearance ReadListAppearance(const Common& common) {
    ListAppearance appearance;
    appearance.showBack = Yes(common, "LISTVIEWSHOWBACK", "NO");
    appearance.selRow = Yes(common, "LISTVIEWSELROW", "YES");
    appearance.showGrid = Yes(common, "LISTVIEWSHOWGRID", "NO");
    appearance.hot = Yes(common, "LISTVIEWHOT", "NO");
    appearance.hover = Yes(common, "LISTVIEWHOVER", "NO");
    return appearance;
}

int ListStyleFromSetting(std::string_view setting) {
    if (setting == "Small Icons")
        return kSmallIconStyle;
    if (setting == "List")
        return kListStyle;
    if (setting == "Large Icons")
        return kLargeIconStyle;
    return kReportStyle;
}

}  // namespace zvx
