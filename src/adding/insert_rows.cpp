#include "adding/insert_rows.h"

#include <algorithm>

namespace zvx {

std::string InsertRow::fullPath() const {
    return folder + "/" + name;
}

void listmore(std::vector<InsertRow>& rows, std::string_view nativePath) {
    const size_t slash = nativePath.rfind('/');
    if (slash == std::string_view::npos || slash + 1 == nativePath.size())
        return;
    rows.push_back(
        {std::string(nativePath.substr(slash + 1)), std::string(nativePath.substr(0, slash))});
}

void AddDialogResult(std::vector<InsertRow>& rows, const std::vector<std::string>& paths) {
    for (const std::string& path : paths)
        listmore(rows, path);
}

std::string dataact(std::vector<InsertRow>& rows) {
    std::erase_if(rows, [](const InsertRow& row) { return row.name.ends_with('.'); });
    if (rows.size() == 1)
        return "Currently is 1 file selected for inserting.";
    return "Currently are " + std::to_string(rows.size()) + " files selected for inserting.";
}

}  // namespace zvx
