#pragma once
// Files and folders that a process holds while it works with them, and the clearing of
// those that a dead process left behind. The holder keeps an exclusive flock on the file
// (on a folder's lock file) from the moment it made it until it is done with it; the
// lock dies with the process, however that ends. A clearing run removes a leftover only
// when it can take that lock itself, so it never touches what a live process holds, and
// it touches only names of the holder's pattern: a prefix and the six letters or digits
// of mkstemp or mkdtemp.

#include <filesystem>
#include <optional>
#include <string_view>

namespace zvx {

// An exclusive flock on an open file, held until the object goes.
class FileHold {
  public:
    FileHold() = default;
    ~FileHold();
    FileHold(FileHold&& other) noexcept;
    FileHold& operator=(FileHold&& other) noexcept;

    // The open file, -1 for none.
    int fd() const { return fd_; }

  private:
    friend std::optional<FileHold> HoldNewFile(int fd, const std::filesystem::path& path);
    explicit FileHold(int fd) : fd_(fd) {}
    int fd_ = -1;
};

// Takes the lock of a file this process has just created, through its open descriptor,
// which the hold owns from then on. None when a clearing run took the file away between
// its creation and the lock: the caller makes another. Where the file system has no
// locks the hold holds none, and no clearing run can take one either.
std::optional<FileHold> HoldNewFile(int fd, const std::filesystem::path& path);

// Makes `lockName` in a folder this process has just made, and holds it, as above.
std::optional<FileHold> HoldNewFolder(const std::filesystem::path& folder,
                                      std::string_view lockName);

// Removes the files of `folder` named `prefix` and six letters or digits that nobody
// holds, and that belong to this user.
void RemoveAbandonedFiles(const std::filesystem::path& folder, std::string_view prefix);

// Removes, with everything in them, the sub-folders of `folder` named `prefix` and six
// letters or digits whose lock file `lockName` nobody holds, and that belong to this
// user. A folder without the lock file is not one of these and stays.
void RemoveAbandonedFolders(const std::filesystem::path& folder, std::string_view prefix,
                            std::string_view lockName);

}  // namespace zvx
