#pragma once
// A file kept open across many appends and reads, each one system call and nothing
// buffered, so that what is written is in the file at once, as if it had been opened
// and closed around each write. A write that fails part-way leaves no piece of a line
// behind: the file is cut back to the last whole line (or to its length before).

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace zvx {

class OpenFile {
  public:
    // What a failed append keeps of the bytes that reached the file.
    enum class Keep { WholeLines, Nothing };

    // Opens the file for reading and appending; with `create` a missing file is made
    // empty. Throws FileError.
    explicit OpenFile(const std::filesystem::path& path, bool create = false);
    ~OpenFile();
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    // The file's length: what it held when opened and what was appended whole since.
    uint64_t size() const { return length_; }
    // Writes the bytes at the end of the file. When that fails part-way, the file keeps
    // what `keep` says of the bytes written and the rest is cut off again; then
    // FileError, and size() tells what was kept.
    void append(std::string_view bytes, Keep keep = Keep::WholeLines);
    // Cuts the file back to `length`, no more than its size. Throws FileError.
    void truncate(uint64_t length);
    // Up to `count` bytes from the 0-based `offset`; fewer at the end of the file.
    std::string readAt(uint64_t offset, size_t count) const;
    // Cuts off what a failed append left behind, where that could not be done at once,
    // and closes the file. Throws FileError and stays open when the cut fails.
    void close();

  private:
    void cutTail();

    std::filesystem::path path_;
    int fd_ = -1;
    uint64_t length_ = 0;
    bool tail_ = false;  // bytes behind length_ that a failed append left
};

}  // namespace zvx
