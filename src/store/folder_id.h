#pragma once
// The two folder-ID allocators: `free` for one folder made by hand (lowest unused
// number), and NextFolderID for the adding runs (a counter above the highest ID).

#include <filesystem>
#include <string>
#include <vector>

namespace zvx {

class Common;
struct TocGroup;

// Eight digits: the rightmost eight of "00000000" followed by the number.
std::string FolderIdText(long long number);

// The lowest number that no group's ID has as its numeric value, as eight digits.
std::string FreeFolderID(const std::vector<TocGroup>& groups);
std::string FreeFolderID(const std::filesystem::path& catalogue);

// Sets the counter of NextFolderID to one above the highest ID of the file's TOC.
void ScanHighestFolderID(Common& common, const std::filesystem::path& catalogue);

// The counter as eight digits, then counts up. Beyond 99999999 it warns and keeps the
// rightmost eight digits.
std::string NextFolderID(Common& common);

}  // namespace zvx
