#pragma once
// The folder icons: the rows of the icon combo of the folder properties dialog, each a
// label and an icon number, which is the image index in the image lists.

#include <span>

namespace zvx {

struct FolderIconEntry {
    const char* label;
    int number;
};

// The rows in the combo's order; the new-folder dialog preselects the first.
std::span<const FolderIconEntry> FolderIconTable();

// The 0-based row of an icon number, or -1 when no row has it.
int FolderIconRow(int iconNumber);

}  // namespace zvx
