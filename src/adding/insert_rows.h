#pragma once
// The rows of the insert list: a file's name and the folder it lies in. The list may
// hold a file twice; the duplicate check deals with it when the files are inserted.

#include <string>
#include <string_view>
#include <vector>

namespace zvx {

struct InsertRow {
    std::string name;    // with its extension
    std::string folder;  // native, without a trailing "/"; empty for the root

    // The native path of the file.
    std::string fullPath() const;
};

// listmore: one row for a native path; nothing for a path without a file name.
void listmore(std::vector<InsertRow>& rows, std::string_view nativePath);

// AddDialogResult: a row for each path the file dialog gave.
void AddDialogResult(std::vector<InsertRow>& rows, const std::vector<std::string>& paths);

// dataact: removes the rows whose name ends in "." (the "." and ".." of a dropped
// folder) and gives Label1's text.
std::string dataact(std::vector<InsertRow>& rows);

}  // namespace zvx
