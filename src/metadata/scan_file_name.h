#pragma once
// Reading artist, title, album, producer and track number out of a file's path, such as
// "07 - Song.mp3" in a folder "Artist - Album", guided by the user's scan scheme.

#include <string>
#include <string_view>

namespace zvx {

class Common;

// Fills common.scan from the path (catalogue form, "\" between names) by the scheme,
// SONGGOTPRIORITY and ALLOWFOLDERSCAN of common.settings. Numbers of up to four digits
// become the track wherever they stand; the other "-" separated parts of the name take
// the fields in the scheme's order, and parts without a place of their own fill the
// first free field. The folder's name gives the album, and "Artist - Album" there also
// the artist when the name gave none. Never fails: odd input leaves fields empty.
void ScanFileName(Common& common, std::string_view cataloguePath);

// The piece of the scheme at `position` (1 upward) of its "-" separated pieces, trimmed
// and upper-cased; the piece behind the last "-" counts, even when empty. "NONE" when
// the scheme has no such position.
std::string ScanSchemeToken(std::string_view scheme, int position);

// The number of digits the text starts with, but at least 2 (0 and 1 are given as 2).
int LeadingDigitCount(std::string_view text);

}  // namespace zvx
