#include "platform/line_reader.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "platform/file_error.h"

namespace zvx {

namespace {

constexpr size_t kChunk = 1 << 20;
constexpr size_t kSmallChunk = 4096;

// A chunk, or less for a small file: zvx.ini is read once a key, and clearing a whole
// chunk for a few hundred bytes would cost more than the reading. One byte more than
// the file holds lets the first read reach its end without growing the buffer.
size_t FirstChunkSize(int fd, uint64_t offset) {
    struct stat info;
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode))
        return kChunk;
    uint64_t size = static_cast<uint64_t>(info.st_size);
    uint64_t left = size > offset ? size - offset : 0;
    return static_cast<size_t>(std::clamp<uint64_t>(left + 1, kSmallChunk, kChunk));
}

}  // namespace

LineReader::LineReader(const std::filesystem::path& path, uint64_t offset)
    : path_(path), filePos_(offset) {
    fd_ = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd_ < 0)
        ThrowFileError("Cannot open", path);
    ::posix_fadvise(fd_, 0, 0, POSIX_FADV_SEQUENTIAL);
    buffer_.resize(FirstChunkSize(fd_, offset));
    if (offset > 0 && ::lseek(fd_, static_cast<off_t>(offset), SEEK_SET) < 0) {
        int err = errno;
        ::close(fd_);
        errno = err;
        ThrowFileError("Cannot seek in", path);
    }
}

LineReader::~LineReader() {
    if (fd_ >= 0)
        ::close(fd_);
}

// Moves the unread rest to the front, grows the buffer when a line fills it, and
// reads more. False when nothing more could be read.
bool LineReader::fill() {
    if (eof_)
        return false;
    if (begin_ > 0) {
        std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
        end_ -= begin_;
        begin_ = 0;
    }
    if (end_ == buffer_.size())
        buffer_.resize(buffer_.size() * 2);
    ssize_t got;
    do {
        got = ::read(fd_, buffer_.data() + end_, buffer_.size() - end_);
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
