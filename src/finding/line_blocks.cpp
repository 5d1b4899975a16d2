#include "finding/line_blocks.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "platform/file_error.h"

namespace zvx {

namespace {

constexpr size_t kBlockSize = size_t(4) << 20;
constexpr size_t kSmallBlock = 4096;

// A block, or less for a small file, whose reading would cost less than clearing a
// whole block; one byte more than the file holds reaches its end at the first read.
size_t FirstBlockSize(int fd, uint64_t offset) {
    struct stat info;
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode))
        return kBlockSize;
    const uint64_t size = static_cast<uint64_t>(info.st_size);
    const uint64_t left = size > offset ? size - offset : 0;
    return static_cast<size_t>(std::clamp<uint64_t>(left + 1, kSmallBlock, kBlockSize));
}

}  // namespace

LineBlocks::LineBlocks(const std::filesystem::path& path, uint64_t offset)
    : path_(path), filePos_(offset) {
    fd_ = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd_ < 0)
        ThrowFileError("Cannot open", path);
    ::posix_fadvise(fd_, 0, 0, POSIX_FADV_SEQUENTIAL);
    buffer_.resize(FirstBlockSize(fd_, offset));
}

LineBlocks::~LineBlocks() {
    ::close(fd_);
}

// Moves what was not given out to the front, grows the buffer when one line fills it,
// and reads more. False when nothing more could be read.
bool LineBlocks::fill() {
    if (eof_)
        return false;
    std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
    end_ -= begin_;
    begin_ = 0;
    if (end_ == buffer_.size())
        buffer_.resize(buffer_.size() * 2);
    ssize_t got;
    do {
        got = ::pread(fd_, buffer_.data() + end_, buffer_.size() - end_,
                      static_cast<off_t>(filePos_));
    } while (got < 0 && errno == EINTR);
    if (got < 0)
        ThrowFileError("Cannot read", path_);
    if (got == 0) {
        eof_ = true;
        return false;
    }
    end_ += static_cast<size_t>(got);
    filePos_ += static_cast<uint64_t>(got);
    return true;
}

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
