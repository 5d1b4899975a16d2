#pragma once
// What a catalogue entry records of a file besides its length (FileLength): whether it
// is read-only and the date it was last changed. A symbolic link counts by its target.
// Each throws FileError when the file cannot be read: a missing file 53, a missing
// folder on its path 76, no permission 70.

#include <filesystem>
#include <string>

namespace zvx {

// True when the owner has no write permission: the read-only attribute.
bool IsReadOnlyFile(const std::filesystem::path& path);

// The modification date in local time, as "mm-dd-yyyy".
std::string FileDateText(const std::filesystem::path& path);

}  // namespace zvx
