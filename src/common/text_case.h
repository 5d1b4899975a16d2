#pragma once
// Upper and lower case, and text compare, as the program applies them: ASCII and the
// letters of Windows-1252 (the Latin-1 letters and š/Š, œ/Œ, ž/Ž, ÿ/Ÿ), one character
// at a time, never by the process locale. A text that is valid UTF-8 is taken as UTF-8
// (a sequence is one character); any other text as Windows-1252, one byte a character.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zvx {

bool IsValidUtf8(std::string_view text);
// A code point of the Basic Multilingual Plane in UTF-8.
std::string EncodeUtf8(uint32_t cp);

// The characters of a text: UTF-8 sequences for a UTF-8 text, single bytes otherwise.
std::vector<std::string_view> Characters(std::string_view text);

std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);

// Case of one character from Characters(); `utf8` tells how its text was read.
std::string UpperChar(std::string_view ch, bool utf8);
std::string LowerChar(std::string_view ch, bool utf8);

// Text compare: equal without regard to case.
bool TextEquals(std::string_view a, std::string_view b);

}  // namespace zvx
