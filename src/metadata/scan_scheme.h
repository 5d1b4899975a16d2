#pragma once
// The scan scheme: the order of the pieces of a file name, such as "$A - $S".

#include <string_view>

namespace zvx {

// The scheme that stands in for one that is not valid.
inline constexpr const char* kDefaultScanScheme = "$A - $S";

// True when the scheme holds nothing but the tokens $A, $P, $S, $B, $I, "-" and blanks,
// in any case. "$N" is not among them.
bool ValidScanScheme(std::string_view scheme);

}  // namespace zvx
