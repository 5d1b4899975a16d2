#pragma once
// Small text rules shared by everything that composes lines.

#include <string>
#include <string_view>

namespace zvx {

// Trimming removes blanks (the space character) only, never tabs or other bytes.
std::string_view LTrim(std::string_view text);
std::string_view RTrim(std::string_view text);
std::string_view Trim(std::string_view text);

// The rightmost `n` characters (bytes) of a text, or all of it when it is shorter.
std::string_view Right(std::string_view text, size_t n);

// A field or TOC line never holds the byte 01, CR or LF: each becomes a blank. Every
// place that composes a catalogue line passes its texts through this.
std::string CleanFieldText(std::string_view text);

}  // namespace zvx
