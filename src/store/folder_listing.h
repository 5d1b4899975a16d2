#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

namespace zvx {

// Calls `onEntry` with each entry line of the folder, in file order: the lines from the
// entry offset on whose first eight characters equal the folder ID. One buffered scan.
void ListFolderEntries(const std::filesystem::path& catalogue, std::string_view folderId,
                       const std::function<void(std::string_view line)>& onEntry);

}  // namespace zvx
