#pragma once
// The listings a walk over a directory tree is made of: the sub-directories of a
// directory and its files under a pattern, each sorted by the bytes of the names, so
// that a walk over the same tree always takes the same order. A walk adds regular files
// only, never follows a symbolic link to a directory and stays on the file system it
// started on. A directory that cannot be listed throws FileError: no permission 70, a
// missing directory 76, an I/O error 57.

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace zvx {

// The device number of the file system holding `path` (a link is followed).
dev_t DeviceOf(const std::filesystem::path& path);

// Names of the real directories (no links) in `dir` that lie on `device`.
std::vector<std::string> SubDirectoryNames(const std::filesystem::path& dir, dev_t device);

struct DirectoryListing {
    std::vector<std::string> subDirectories;  // real directories (no links) on the device
    // Regular files, a link to one included, that match the pattern as MatchesFilePattern
    // does ("*.*" every name; a ";"-separated list any of its patterns).
    std::vector<std::string> files;
};

// One pass over a directory for both lists.
DirectoryListing ListDirectory(const std::filesystem::path& dir, dev_t device,
                               std::string_view pattern);

}  // namespace zvx
