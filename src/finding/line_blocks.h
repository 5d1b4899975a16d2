#pragma once
// A file read from an offset in large blocks of whole lines, so that a search can look
// through a block at once. Reading by read() into one reused buffer costs less than
// mapping the file, whose page faults weigh more than the copy.

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <vector>

#include "platform/buffered_file.h"

namespace zvx {

class LineBlocks : private BufferedFile {
  public:
    // Opens the file for reading from the 0-based `offset`. Throws FileError.
    LineBlocks(const std::filesystem::path& path, uint64_t offset);

    // The next block: whole lines, each ended by its LF, but for a last line without
    // one at the end of the file. Valid until the next call; false at the end.
    bool next(std::string_view& block);
    // The 0-based file offset of the block `next` gave last.
    uint64_t blockOffset() const { return blockOffset_; }

  private:
    uint64_t blockOffset_ = 0;
};

// A line of a block from `start`: its text without the terminator (LF or CR LF; a lone
// CR stays), and where the next line begins.
struct LineSpan {
    std::string_view text;
    size_t next;
};
LineSpan LineAt(std::string_view bytes, size_t start);

}  // namespace zvx
