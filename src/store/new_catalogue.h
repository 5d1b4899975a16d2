#pragma once

#include <filesystem>

namespace zvx {

class Common;

// Writes an empty catalogue: the version byte, the entry offset 8 and the empty line
// that closes an empty TOC, 01 00 00 00 08 0D 0A.
void CreateCatalogue(const Common& common, const std::filesystem::path& path);

}  // namespace zvx
