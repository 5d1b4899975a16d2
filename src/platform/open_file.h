#pragma once
// A file kept open across many appends and reads, each one system call and nothing
// buffered, so that what is written is in the file at once, as if it had been opened
// and closed around each write.

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace zvx {

class OpenFile {
  public:
    // Opens an existing file for reading and appending. Throws FileError.
    explicit OpenFile(const std::filesystem::path& path);
    ~OpenFile();
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    uint64_t size() const;
    // Writes the bytes at the end of the file.
    void append(std::string_view bytes);
    // Up to `count` bytes from the 0-based `offset`; fewer at the end of the file.
    std::string readAt(uint64_t offset, size_t count) const;

  private:
    std::filesystem::path path_;
    int fd_ = -1;
};

}  // namespace zvx
