#include "platform/line_reader.h"

#include <cstring>

namespace zvx {

namespace {

constexpr size_t kChunk = 1 << 20;

}  // namespace

LineReader::LineReader(const std::filesystem::path& path, uint64_t offset)
    : BufferedFile(path, offset, kChunk) {}

bool LineReader::next(std::string_view& line) {
    size_t searchFrom = begin_;
    for (;;) {
        const char* start = buffer_.data() + searchFrom;
        const void* lf = std::memchr(start, '\n', end_ - searchFrom);
        if (lf) {
            size_t at = static_cast<const char*>(lf) - buffer_.data();
            size_t length = at - begin_;
            if (length > 0 && buffer_[at - 1] == '\r')
                --length;
            line = std::string_view(buffer_.data() + begin_, length);
            begin_ = at + 1;
            return true;
        }
        size_t scanned = end_ - begin_;
        if (!fill())
            break;
        searchFrom = begin_ + scanned;
    }
    if (begin_ == end_)
        return false;
    line = std::string_view(buffer_.data() + begin_, end_ - begin_);
    begin_ = end_;
    return true;
}

}  // namespace zvx
