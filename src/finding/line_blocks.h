#pragma once
// A file read from an offset in large blocks of whole lines, so that a search can look
// through a block at once. Reading by read() into one reused buffer costs less than
// mapping the file, whose page faults weigh more than the copy.

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <vector>

namespace zvx {

class LineBlocks {
  public:
    // Opens the file for reading from the 0-based `offset`. Throws FileError.
    LineBlocks(const std::filesystem::path& path, uint64_t offset);
    ~LineBlocks();
    LineBlocks(const LineBlocks&) = delete;
    LineBlocks& operator=(const LineBlocks&) = delete;

    // The next block: whole lines, each ended by its LF, but for a last line without
    // one at the end of the file. Valid until the next call; false at the end.
    bool next(std::string_view& block);
    // The 0-based file offset of the block `next` gave last.
    uint64_t blockOffset() const { return blockOffset_; }

  private:
    bool fill();

    int fd_ = -1;
    std::filesystem::path path_;
    std::vector<char> buffer_;
    size_t begin_ = 0;  // the first byte not given out yet
    size_t end_ = 0;    // behind the last byte read
    uint64_t filePos_;  // the file offset of buffer_[end_]
    uint64_t blockOffset_ = 0;
    bool eof_ = false;
};

// A line of a block from `start`: its text without the terminator (LF or CR LF; a lone
// CR stays), and where the next line begins.
struct LineSpan {
    std::string_view text;
    size_t next;
};
LineSpan LineAt(std::string_view bytes, size_t start);

}  // namespace zvx
