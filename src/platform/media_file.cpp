#include "platform/media_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "platform/file_error.h"
#include "platform/file_io.h"

namespace zvx {

MediaFile::MediaFile(std::filesystem::path path) : path_(std::move(path)) {
    struct stat info;
    exists_ = ::stat(path_.c_str(), &info) == 0;
    if (!exists_) {
        openError_ = errno;
        return;
    }
    size_ = static_cast<uint64_t>(info.st_size);
    // Opening a FIFO for reading waits for a writer, and opening a device may act on it:
    // only a regular file is opened. O_NONBLOCK keeps the open from waiting should the
    // name have become a FIFO since.
    regular_ = S_ISREG(info.st_mode);
    if (!regular_)
        return;
    fd_ = ::open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd_ < 0) {
        openError_ = errno;
    } else if (::fstat(fd_, &info) == 0 && !S_ISREG(info.st_mode)) {
        regular_ = false;
        ::close(fd_);
        fd_ = -1;
    }
}

MediaFile::~MediaFile() {
    if (fd_ >= 0)
        ::close(fd_);
}

MediaFile::MediaFile(MediaFile&& other) noexcept
    : path_(std::move(other.path_)),
      fd_(std::exchange(other.fd_, -1)),
      openError_(other.openError_),
      exists_(other.exists_),
      regular_(other.regular_),
      size_(other.size_) {}

MediaFile& MediaFile::operator=(MediaFile&& other) noexcept {
    if (this != &other) {
        if (fd_ >= 0)
            ::close(fd_);
        path_ = std::move(other.path_);
        fd_ = std::exchange(other.fd_, -1);
        openError_ = other.openError_;
        exists_ = other.exists_;
        regular_ = other.regular_;
        size_ = other.size_;
    }
    return *this;
}

void MediaFile::requireReadable() const {
    if (exists_ && !regular_)
        ThrowNotAFile(path_);
    if (fd_ < 0) {
        errno = openError_;
        ThrowFileError("Cannot open", path_);
    }
}

std::string MediaFile::readAt(uint64_t offset, size_t count) const {
    requireReadable();
    return ReadBytesAt(fd_, offset, count, path_);
}

}  // namespace zvx
