#pragma once
// The track format: a track number with the leading zeros of the renumbering level.

#include <string>
#include <string_view>

namespace zvx {

// The numeric value of the text with at least level+1 digits (level 0 to 3), rounded
// to a whole number; an empty text is 0.
std::string FormatTrack(std::string_view text, int renumberingLevel);

}  // namespace zvx
