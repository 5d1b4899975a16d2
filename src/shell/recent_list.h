#pragma once
// The list of the last ten documents (common.Recentlist, newest first), its menu
// captions, and its keys RECENTFILE1 to RECENTFILE10 in zvx.ini.

#include <string>
#include <string_view>

namespace zvx {

class Common;

inline constexpr int kRecentMax = 10;

// Puts the trimmed path at the top of the list. An empty path changes nothing. Entries
// equal to it in upper case go first, and the oldest go while more than nine remain,
// so the list never holds more than ten. Then rebuilds the menu (onRecentRefresh).
void RecentAdd(Common& common, std::string_view path);

// The caption of the i-th menu entry, counting from 1: the rightmost three characters of
// "000&" and i, a blank, the path. "0&1 path" for the first, "&10 path" for the tenth.
std::string RecentCaption(int i, std::string_view path);

// Fills the list from RECENTFILE1 to RECENTFILE10 in their order, skipping empty values.
void LoadRecentList(Common& common);

// Writes RECENTFILE1 to RECENTFILE10 from the list; a key without an entry gets the
// empty value.
void StoreRecentList(const Common& common);

}  // namespace zvx
