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
    fd_ = ::open(path_.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd_ < 0) {
        openError_ = errno;
        exists_ = ::stat(path_.c_str(), &info) == 0;
    } else {
        exists_ = ::fstat(fd_, &info) == 0;
    }
    size_ = exists_ ? static_cast<uint64_t>(info.st_size) : 0;
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
      size_(other.size_) {}

MediaFile& MediaFile::operator=(MediaFile&& other) noexcept {
    if (this != &other) {
        if (fd_ >= 0)
            ::close(fd_);
        path_ = std::move(other.path_);
        fd_ = std::exchange(other.fd_, -1);
        openError_ = other.openError_;
        exists_ = other.exists_;
        size_ = other.size_;
    }
    return *this;
}

std::string MediaFile::readAt(uint64_t offset, size_t count) const {
    if (fd_ < 0) {
        errno = openError_;
        ThrowFileError("Cannot open", path_);
    }
    return ReadBytesAt(fd_, offset, count, path_);
}

}  // namespace zvx
