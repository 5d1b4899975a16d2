#pragma once
// The read-only attribute of a user's file, and the question before a save meets it.
// On this system a file is read-only when its owner has no write permission.

#include <filesystem>

namespace zvx {

class Common;

// True if the length of the file can be read.
bool FileExists(const std::filesystem::path& path);

// True if the file's owner has no write permission.
bool IsReadOnly(const std::filesystem::path& path);

// Sets the read-only attribute by taking every write permission away; throws FileError.
void SetReadOnly(const std::filesystem::path& path);

// CheckWriteProtection: true if the path is not to be written. A missing or writable
// file is fine. A read-only one brings up the question whether to overwrite it; on Yes
// the owner gets write permission back, and if that fails an error is shown and the
// answer is still true.
bool CheckWriteProtection(const Common& common, const std::filesystem::path& path);

}  // namespace zvx
