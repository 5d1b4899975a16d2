#include "platform/directory_walk.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>

#include "common/file_pattern.h"
#include "platform/file_error.h"

namespace zvx {

namespace {

struct DirCloser {
    void operator()(DIR* dir) const { ::closedir(dir); }
};
using DirHandle = std::unique_ptr<DIR, DirCloser>;

// A directory that is gone is a path that is not found, as the error dialog names it,
// whether or not its parent still stands.
[[noreturn]] void ThrowListingError(const std::string& operation,
                                    const std::filesystem::path& dir) {
    if (errno == ENOENT)
        throw FileError(76, dir, operation + " " + dir.string() + ": " + std::strerror(ENOENT));
    ThrowFileError(operation, dir);
}

bool IsDotOrDotDot(const char* name) {
    return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
}

// Calls `take(dirFd, entry)` for each entry of the directory but "." and "..".
template <typename Take>
void ForEachEntry(const std::filesystem::path& dir, Take take) {
    DirHandle handle(::opendir(dir.c_str()));
    if (!handle)
        ThrowListingError("Cannot list the directory", dir);
    for (;;) {
        errno = 0;
        const dirent* entry = ::readdir(handle.get());
        if (!entry)
            break;
        if (!IsDotOrDotDot(entry->d_name))
            take(::dirfd(handle.get()), *entry);
    }
    if (errno != 0)
        ThrowListingError("Cannot read the directory", dir);
}

// An entry that vanishes between the listing and this look counts as nothing.
bool StatAt(int dirFd, const char* name, int flags, struct stat& info) {
    return ::fstatat(dirFd, name, &info, flags) == 0;
}

bool IsDirectoryOnDevice(int dirFd, const dirent& entry, dev_t device) {
    if (entry.d_type != DT_DIR && entry.d_type != DT_UNKNOWN)
        return false;
    struct stat info;
    return StatAt(dirFd, entry.d_name, AT_SYMLINK_NOFOLLOW, info) && S_ISDIR(info.st_mode) &&
           info.st_dev == device;
}

bool IsRegularOrLinkToOne(int dirFd, const dirent& entry) {
    if (entry.d_type == DT_REG)
        return true;
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN)
        return false;
    struct stat info;
    return StatAt(dirFd, entry.d_name, 0, info) && S_ISREG(info.st_mode);
}

void SortByBytes(std::vector<std::string>& names) {
    std::sort(names.begin(), names.end());
}

}  // namespace

dev_t DeviceOf(const std::filesystem::path& path) {
    struct stat info;
    if (::stat(path.c_str(), &info) != 0)
        ThrowFileError("Cannot read the attributes of", path);
    return info.st_dev;
}

DirectoryListing ListDirectory(const std::filesystem::path& dir, dev_t device,
                               std::string_view pattern) {
    DirectoryListing listing;
    const FilePattern matcher(pattern);
    ForEachEntry(dir, [&](int dirFd, const dirent& entry) {
        if (IsDirectoryOnDevice(dirFd, entry, device))
            listing.subDirectories.emplace_back(entry.d_name);
        else if (IsRegularOrLinkToOne(dirFd, entry) && matcher.matches(entry.d_name))
            listing.files.emplace_back(entry.d_name);
    });
    SortByBytes(listing.subDirectories);
    SortByBytes(listing.files);
    return listing;
}

std::vector<std::string> SubDirectoryNames(const std::filesystem::path& dir, dev_t device) {
    return ListDirectory(dir, device, "").subDirectories;
}

}  // namespace zvx
