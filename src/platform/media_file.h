#pragma once
// A media file opened once for the readers of its stream header and its tag: its
// length, and reads at positions, without looking the path up again for each.

#include <cstdint>
#include <filesystem>
#include <string>

namespace zvx {

class MediaFile {
  public:
    // Never throws. A file that cannot be opened keeps the reason for its first read;
    // its length may still be known (a file without read permission). Anything but a
    // regular file (a directory, FIFO, socket or device) is never opened.
    explicit MediaFile(std::filesystem::path path);
    ~MediaFile();
    MediaFile(MediaFile&& other) noexcept;
    MediaFile& operator=(MediaFile&& other) noexcept;

    const std::filesystem::path& path() const { return path_; }
    // Whether asking for the file's length succeeded (MP3FileExists).
    bool exists() const { return exists_; }
    uint64_t size() const { return size_; }
    // Throws the FileError that keeps the file from being read: kNotAFileNumber for
    // anything but a regular file, else the reason the opening failed.
    void requireReadable() const;
    // Up to `count` bytes from the 0-based `offset`, fewer at the end of the file.
    // Throws FileError when the file could not be opened (requireReadable) or read.
    std::string readAt(uint64_t offset, size_t count) const;

  private:
    std::filesystem::path path_;
    int fd_ = -1;
    int openError_ = 0;
    bool exists_ = false;
    bool regular_ = false;
    uint64_t size_ = 0;
};

}  // namespace zvx
