#include "finding/line_blocks.h"

#include <cstring>

namespace zvx {

namespace {

constexpr size_t kBlockSize = size_t(4) << 20;

}  // namespace

LineBlocks::LineBlocks(const std::filesystem::path& path, uint64_t offset)
    : BufferedFile(path, offset, kBlockSize) {}

bool LineBlocks::next(std::string_view& block) {
    for (;;) {
        const char* start = buffer_.data() + begin_;
        if (const void* lf = memrchr(start, '\n', end_ - begin_)) {
            const size_t length = static_cast<size_t>(static_cast<const char*>(lf) - start) + 1;
            block = std::string_view(start, length);
            blockOffset_ = filePos_ - (end_ - begin_);
            begin_ += length;
            return true;
        }
        if (!fill())
            break;
    }
    if (begin_ == end_)
        return false;
    block = std::string_view(buffer_.data() + begin_, end_ - begin_);
    blockOffset_ = filePos_ - (end_ - begin_);
    begin_ = end_;
    return true;
}

LineSpan LineAt(std::string_view bytes, size_t start) {
    const char* begin = bytes.data() + start;
    const size_t rest = bytes.size() - start;
    const void* lf = std::memchr(begin, '\n', rest);
    if (!lf)
        return {std::string_view(begin, rest), bytes.size()};
    size_t length = static_cast<size_t>(static_cast<const char*>(lf) - begin);
    const size_t next = start + length + 1;
    if (length > 0 && begin[length - 1] == '\r')
        --length;
    return {std::string_view(begin, length), next};
}

}  // namespace zvx
