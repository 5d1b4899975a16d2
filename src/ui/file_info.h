#pragma once
// The information panel of the file dialogs (FileInfo): what the dialog's current
// selection is, how big, and where.

#include <string>
#include <vector>

namespace zvx {

struct FileInfoTexts {
    // The size: "<no file(s) selected!>", " (N bytes)" of one file, or
    // "N files selected. (S bytes)"; empty for a folder.
    std::string info;
    // "<no file(s) selected!>", "Folder: " with a folder or a file's folder, or
    // "Path: " with the folder of several files.
    std::string folder;
    // "Type: Folder", "<multiple files selected>", or for one file "ZVX-Content-Type: "
    // with the content type of its extension.
    std::string type;
    // For one file the list icon of its content type; 0 (no icon) otherwise.
    int icon = 0;
};

// The texts for the paths the dialog shows: none, one, or several files. Each path
// text ends at its first NUL. A file whose length cannot be read adds nothing.
FileInfoTexts FileInfo(const std::vector<std::string>& paths);

}  // namespace zvx
