#pragma once
// The code-page rule of catalogue text: a text that is valid UTF-8 is UTF-8, any other is
// Windows-1252 (catalogues written on Windows).

#include <string>
#include <string_view>

namespace zvx {

// The text in UTF-8: as it stands when it is valid UTF-8, else each byte read as
// Windows-1252 (the bytes that code page leaves undefined keep their Latin-1 value).
std::string TextAsUtf8(std::string_view text);
// Each byte read as Windows-1252, in UTF-8.
std::string Windows1252AsUtf8(std::string_view text);

}  // namespace zvx
