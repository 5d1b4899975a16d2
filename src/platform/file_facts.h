#pragma once
// What a catalogue entry records of a file: whether it is read-only, its length, the
// date it was last changed, and the file system it lies on (for the volume label). One
// read of the file's attributes gives all of it; a symbolic link counts by its target.

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <string>

namespace zvx {

struct FileFacts {
    bool readOnly = false;  // the owner has no write permission: the read-only attribute
    uint64_t size = 0;
    std::string date;  // the modification date in local time, "mm-dd-yyyy"
    dev_t device = 0;
};

// Throws FileError when the file cannot be read: a missing file 53, a missing folder on
// its path 76, no permission 70. Only a regular file has facts for an entry: a
// directory, FIFO, socket or device throws kNotAFileNumber.
FileFacts ReadFileFacts(const std::filesystem::path& path);

}  // namespace zvx
