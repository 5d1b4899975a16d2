#pragma once
// Whole-file operations the store builds on. Every failure throws FileError.

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace zvx {

// Up to `count` bytes from the 0-based `offset`; fewer at the end of the file.
std::string ReadFileBytes(const std::filesystem::path& path, uint64_t offset, size_t count);
// The same from an open file descriptor; `path` names the file in an error.
std::string ReadBytesAt(int fd, uint64_t offset, size_t count, const std::filesystem::path& path);
// Writes bytes in place at the 0-based `offset`, extending the file if needed.
void WriteFileBytes(const std::filesystem::path& path, uint64_t offset, std::string_view bytes);
// Creates the file empty, whatever stood there.
void WriteEmptyFile(const std::filesystem::path& path);
// Makes sure the file exists, leaving its content alone.
void TouchFile(const std::filesystem::path& path);
void DeleteFileIfExists(const std::filesystem::path& path);
uint64_t FileLength(const std::filesystem::path& path);
void CopyFileBytes(const std::filesystem::path& from, const std::filesystem::path& to);
// Appends the bytes of `from` from the 0-based `offset` to its end to the end of `to`.
void AppendFileRange(const std::filesystem::path& from, uint64_t offset,
                     const std::filesystem::path& to);

// Replaces `target` by `source`, which is gone afterwards. Crash-safe: the new content
// is written beside the target, flushed to disk, and renamed over it, so that at every
// moment either the old or the new file stands under the target's name.
void ReplaceFile(const std::filesystem::path& source, const std::filesystem::path& target);

// Copies `from` over `to`, crash-safely in the same way: the copy is written beside `to`,
// flushed and renamed over it, so that the old `to` stays whole until the new one is
// complete. An existing `to` keeps its permissions, and a symbolic link is followed.
// The copy, `to` + ".part-" + six random characters, is held under a lock until it is
// renamed; copies of that name that dead processes left are cleared first.
void CopyFileSafely(const std::filesystem::path& from, const std::filesystem::path& to);

// Appends to a file (creating it) through a large buffer. A failed write leaves the file
// with part of what was written; the writers of whole new files use it.
class AppendWriter {
  public:
    explicit AppendWriter(const std::filesystem::path& path);
    ~AppendWriter();
    AppendWriter(const AppendWriter&) = delete;
    AppendWriter& operator=(const AppendWriter&) = delete;

    void write(std::string_view bytes);
    // Writes the line and CR LF.
    void writeLine(std::string_view line);
    // Flushes and closes; reports a failed write.
    void close();

  private:
    void flush();

    std::filesystem::path path_;
    int fd_ = -1;
    std::string buffer_;
};

}  // namespace zvx
