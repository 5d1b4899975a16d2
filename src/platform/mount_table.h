#pragma once
// The mount table of the running system: for each mounted file system the device number
// that files on it report, the path it is mounted on and the device it came from.

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace zvx {

inline constexpr const char* kMountInfoFile = "/proc/self/mountinfo";

struct MountEntry {
    dev_t device = 0;
    std::string mountPath;
    std::string source;
};

// The entries of a mountinfo file in its order, escapes decoded; empty when it cannot
// be read. Lines that are not well formed are left out.
std::vector<MountEntry> ReadMountTable(const std::filesystem::path& mountinfo);

// Mount paths and sources escape blanks, tabs, line breaks and "\" as "\ooo" (octal).
std::string DecodeMountText(std::string_view text);

}  // namespace zvx
