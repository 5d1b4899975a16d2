#include "document/folder_icon_table.h"

#include <array>

namespace zvx {

namespace {

constexpr std::array<FolderIconEntry, 16> kFolderIcons{{
    {"Folder", 10},
    {"Network/Remote Folder", 16},
    {"3.5 Disc", 1},
    {"5 1/4 Disc", 3},
    {"CD(-ROM)/DVD", 4},
    {"Audio/MP CD", 8},
    {"3.5 Disc-Drive", 17},
    {"5 1/4 Disc-Drive", 7},
    {"HD-Drive", 12},
    {"Network Device", 13},
    {"FTP/Website", 18},
    {"Computer", 14},
    {"Trashcan", 6},
    {"Desktop", 11},
    {"World", 5},
    {"ZVX-Logo", 19},
}};

}  // namespace

std::span<const FolderIconEntry> FolderIconTable() {
    return kFolderIcons;
}

int FolderIconRow(int iconNumber) {
    for (size_t row = 0; row < kFolderIcons.size(); ++row) {
        if (kFolderIcons[row].number == iconNumber)
            return static_cast<int>(row);
    }
    return -1;
}

}  // namespace zvx
