#include "platform/buffered_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "platform/file_error.h"

namespace zvx {

namespace {

constexpr size_t kSmallChunk = 4096;

// A chunk, or less for a small file: zvx.ini is read once a key, and clearing a whole
// chunk for a few hundred bytes would cost more than the reading. One byte more than
// the file holds lets the first read reach its end without growing the buffer.
size_t FirstChunkSize(int fd, uint64_t offset, size_t chunk) {
    struct stat info;
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode))
        return chunk;
    const uint64_t size = static_cast<uint64_t>(info.st_size);
    const uint64_t left = size > offset ? size - offset : 0;
    return static_cast<size_t>(std::clamp<uint64_t>(left + 1, kSmallChunk, chunk));
}

}  // namespace

BufferedFile::BufferedFile(const std::filesystem::path& path, uint64_t offset, size_t chunk)
    : path_(path), filePos_(offset) {
    fd_ = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd_ < 0)
        ThrowFileError("Cannot open", path);
    ::posix_fadvise(fd_, 0, 0, POSIX_FADV_SEQUENTIAL);
    buffer_.resize(FirstChunkSize(fd_, offset, chunk));
    if (offset > 0 && ::lseek(fd_, static_cast<off_t>(offset), SEEK_SET) < 0) {
        const int err = errno;
        ::close(fd_);
        errno = err;
        ThrowFileError("Cannot seek in", path);
    }
}

BufferedFile::~BufferedFile() {
    if (fd_ >= 0)
        ::close(fd_);
}

bool BufferedFile::fill() {
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

}  // namespace zvx
