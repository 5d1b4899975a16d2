#pragma once
// A file read sequentially from an offset into one reused, growing buffer: what the line
// reader and the search's block reader share. The buffer holds the bytes from begin_ to
// end_ that the reader has not given out yet.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <vector>

namespace zvx {

class BufferedFile {
  public:
    BufferedFile(const BufferedFile&) = delete;
    BufferedFile& operator=(const BufferedFile&) = delete;

  protected:
    // Opens the file for reading from the 0-based `offset`, with a buffer of `chunk`
    // bytes, or less for a small file. Throws FileError.
    BufferedFile(const std::filesystem::path& path, uint64_t offset, size_t chunk);
    ~BufferedFile();

    // Moves the rest not given out to the front, grows the buffer when a line fills it,
    // and reads more. False when nothing more could be read. Throws FileError.
    bool fill();

    int fd_ = -1;
    std::filesystem::path path_;
    std::vector<char> buffer_;
    size_t begin_ = 0;      // the first byte not given out yet
    size_t end_ = 0;        // behind the last byte read
    uint64_t filePos_ = 0;  // the file offset of buffer_[end_]
    bool eof_ = false;
};

}  // namespace zvx
