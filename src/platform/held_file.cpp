#include "platform/held_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

namespace zvx {

namespace {

// The random part of a name that mkstemp or mkdtemp made.
constexpr size_t kRandomLength = 6;

bool HasHoldersPattern(std::string_view name, std::string_view prefix) {
    if (name.size() != prefix.size() + kRandomLength || !name.starts_with(prefix))
        return false;
    name.remove_prefix(prefix.size());
    return std::all_of(name.begin(), name.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    });
}

enum class Lock { Taken, HeldElsewhere, Unsupported };

Lock TryLock(int fd) {
    int result;
    do {
        result = ::flock(fd, LOCK_EX | LOCK_NB);
    } while (result != 0 && errno == EINTR);
    if (result == 0)
        return Lock::Taken;
    return errno == EWOULDBLOCK ? Lock::HeldElsewhere : Lock::Unsupported;
}

// Whether the open file still stands under the name, not removed or replaced.
bool StillNamed(int fd, const std::filesystem::path& path) {
    struct stat open {
    }, named{};
    return ::fstat(fd, &open) == 0 && ::lstat(path.c_str(), &named) == 0 &&
           open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

bool OwnRegularFile(int fd) {
    struct stat info {};
    return ::fstat(fd, &info) == 0 && S_ISREG(info.st_mode) && info.st_uid == ::geteuid();
}

bool OwnFolder(const std::filesystem::path& path) {
    struct stat info {};
    return ::lstat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode) && info.st_uid == ::geteuid();
}

// Removes `leftover` (the lock file itself, or its folder) while holding `lockFile`, when
// no one else holds it.
void RemoveIfAbandoned(const std::filesystem::path& lockFile,
                       const std::filesystem::path& leftover) {
    // Non-blocking, so that a FIFO of the same name cannot stop the run.
    int fd = ::open(lockFile.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
        return;
    if (OwnRegularFile(fd) && TryLock(fd) == Lock::Taken && StillNamed(fd, lockFile)) {
        std::error_code ec;
        std::filesystem::remove_all(leftover, ec);
    }
    ::close(fd);
}

// Calls `visit` with each entry of the folder named in the holder's pattern. A folder
// that cannot be read is passed over: clearing never fails the run that does it.
template <typename Visit>
void ForEachHoldersName(const std::filesystem::path& folder, std::string_view prefix, Visit visit) {
    std::error_code ec;
    std::filesystem::directory_iterator it(folder, ec);
    for (const std::filesystem::directory_iterator end; !ec && it != end; it.increment(ec)) {
        if (HasHoldersPattern(it->path().filename().string(), prefix))
            visit(it->path());
    }
}

}  // namespace

FileHold::~FileHold() {
    if (fd_ >= 0)
        ::close(fd_);
}

FileHold::FileHold(FileHold&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}

FileHold& FileHold::operator=(FileHold&& other) noexcept {
    if (this != &other) {
        if (fd_ >= 0)
            ::close(fd_);
        fd_ = std::exchange(other.fd_, -1);
    }
    return *this;
}

std::optional<FileHold> HoldNewFile(int fd, const std::filesystem::path& path) {
    FileHold hold(fd);
    if (TryLock(fd) == Lock::HeldElsewhere || !StillNamed(fd, path))
        return std::nullopt;
    return hold;
}

std::optional<FileHold> HoldNewFolder(const std::filesystem::path& folder,
                                      std::string_view lockName) {
    const std::filesystem::path lockFile = folder / lockName;
    int fd = ::open(lockFile.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (fd < 0)
        return std::nullopt;
    return HoldNewFile(fd, lockFile);
}

void RemoveAbandonedFiles(const std::filesystem::path& folder, std::string_view prefix) {
    ForEachHoldersName(folder, prefix,
                       [](const std::filesystem::path& path) { RemoveIfAbandoned(path, path); });
}

void RemoveAbandonedFolders(const std::filesystem::path& folder, std::string_view prefix,
                            std::string_view lockName) {
    ForEachHoldersName(folder, prefix, [&](const std::filesystem::path& path) {
        if (OwnFolder(path))
            RemoveIfAbandoned(path / lockName, path);
    });
}

}  // namespace zvx
