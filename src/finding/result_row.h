#pragma once
// RealShowEntry's row of the result list: the 23 column texts, the icon and the tag of
// one line a search took, and the captions of the list and of the field chooser.

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "common/loaded_settings.h"

namespace zvx {

// Column 1 "Filename", column 2 "ZVX-Folder", columns 3 to 23 the fields 2 to 22.
inline constexpr int kResultColumnCount = 23;
inline constexpr const char* kFolderColumnTitle = "ZVX-Folder";
inline constexpr const char* kAnythingField = "<ANYTHING>";

// The texts of the row of a line's tail (the line behind its folder ID, which begins
// with the separator). The tail is split at each byte 01; the piece before the first
// one is passed over and pieces 1 to 22 fill their columns, so a tail with fewer pieces
// leaves its last columns empty. "ZVX-Folder" reads "<not resolved>". Shown as:
//   Size      digits (with an optional fraction) in zero-padded groups of three,
//             "000 000 000 005"; any other text as stored, left-trimmed;
//   Read-Only "Yes" for "1", otherwise "No";
//   Track     empty for a numeric value of 0, otherwise with VIEWRENUMBERING through
//             the track format;
//   Year      empty for a numeric value of 0;
//   Length, Bitrate, Frequency "n/a" for "0"; Mode "n/a" when empty;
//   the others, Content-Type too, as stored.
std::array<std::string, kResultColumnCount> ResultRowTexts(std::string_view tail,
                                                           const LoadedSettings& settings);

// The icon of the row (the entry list's image list) from its name and stored content
// type.
int ResultRowIcon(std::string_view tail, const LoadedSettings& settings);

// The row's tag: the folder ID followed directly by the tail, the entry line itself, as
// an entry row's tag is.
std::string ResultRowTag(std::string_view folderId, std::string_view tail);

// The captions of the result list's columns in column order.
std::vector<std::string> ResultColumnTitles();
// Combo1's items: "<ANYTHING>", then the captions of the columns but "ZVX-Folder", so
// that an item's index is the number of its field.
std::vector<std::string> SearchFieldChoices();

}  // namespace zvx
