#pragma once
// Buffered sequential reading of a text file line by line. A line ends at LF or CR LF;
// the terminator is not part of the line. A last line without a terminator is read
// like any other. Lines of any length are read whole.

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <vector>

#include "platform/buffered_file.h"

namespace zvx {

class LineReader : private BufferedFile {
  public:
    // Opens the file for reading from the 0-based byte `offset`. Throws FileError.
    explicit LineReader(const std::filesystem::path& path, uint64_t offset = 0);

    // The next line, valid until the next call; false at end of file.
    bool next(std::string_view& line);
    // 0-based offset of the first byte not read yet.
    uint64_t position() const { return filePos_ - (end_ - begin_); }
};

}  // namespace zvx
