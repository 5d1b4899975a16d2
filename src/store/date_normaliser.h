#pragma once
// The date normaliser: every date from a foreign source becomes "mm-dd-yyyy"-shaped.

#include <string>
#include <string_view>

namespace zvx {

// "7.4.2001 12:00:00" gives "4-7-2001"; a two-digit year up to 29 is 20xx, above 19xx;
// a text without "." comes back trimmed.
std::string NormaliseDate(std::string_view text);

}  // namespace zvx
