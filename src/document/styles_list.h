#pragma once
// styles.lst: the style names the entry editor offers, one a line, in the application
// folder.

#include <filesystem>

namespace zvx {

class Common;

inline constexpr const char* kStylesListFile = "styles.lst";

// The file, found in the application folder without regard to case.
std::filesystem::path StylesListFile(const Common& common);

// WriteDefaultStyles: writes styles.lst with the shipped style names, CR LF lines,
// replacing what stood there. Throws FileError.
void WriteDefaultStyles(const Common& common);

}  // namespace zvx
