#pragma once
// Buffered sequential reading of a text file line by line. A line ends at LF or CR LF;
// the terminator is not part of the line. A last line without a terminator is read
// like any other. Lines of any length are read whole.

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <vector>

namespace zvx {

class LineReader {
  public:
    // Opens the file for reading from the 0-based byte `offset`. Throws FileError.
    explicit LineReader(const std::filesystem::path& path, uint64_t offset = 0);
    ~LineReader();
    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;

    // The next line, valid until the next call; false at end of file.
    bool next(std::string_view& line);
    // 0-based offset of the first byte not read yet.
    uint64_t position() const { return filePos_ - (end_ - begin_); }

  private:
    bool fill();

    int fd_ = -1;
    std::filesystem::path path_;
    std::vector<char> buffer_;
    size_t begin_ = 0;
    size_t end_ = 0;
    uint64_t filePos_ = 0;  // offset just behind what the buffer holds
    bool eof_ = false;
};

}  // namespace zvx
