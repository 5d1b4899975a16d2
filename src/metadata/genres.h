#pragma once
// The ID3 genre numbers and their names: 0 to 144, with no genre for 119 and 140. An
// entry stores a genre's name, never its number.

#include <span>
#include <string_view>

namespace zvx {

// The genre text of an entry without a genre.
inline constexpr std::string_view kUnknownGenre = "<unknown>";

// The 143 genre names in number order, as the entry editor and the pick values offer
// them.
std::span<const std::string_view> GenreChoices();

// The genre name for an entry from a tag's genre text. An empty text or "<unknown>"
// gives "<unknown>". Otherwise the text's numeric value is looked up, so a text
// without a leading number reads as 0, "Blues"; a number without a genre (119, 140,
// a fraction, below 0 or above 144) gives an empty text.
std::string_view GenreNameFromTag(std::string_view genre);

// The genre name for the information display: like the table, but 0 and every number
// without a genre read "<unknown>". So genre 0 is "Blues" on an entry and "<unknown>"
// in a file's summary, which is intended.
std::string_view GenreDisplayName(int number);

}  // namespace zvx
