#include "platform/open_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "platform/file_error.h"
#include "platform/file_faults.h"
#include "platform/file_io.h"

namespace zvx {

OpenFile::OpenFile(const std::filesystem::path& path, bool create) : path_(path) {
    fd_ = OpenForWriting(path, O_RDWR | O_APPEND | (create ? O_CREAT : 0));
    if (fd_ < 0)
        ThrowFileError("Cannot open", path);
    struct stat info;
    if (::fstat(fd_, &info) != 0) {
        ::close(fd_);
        ThrowFileError("Cannot read the length of", path);
    }
    length_ = static_cast<uint64_t>(info.st_size);
}

OpenFile::~OpenFile() {
    if (fd_ >= 0)
        ::close(fd_);
}

void OpenFile::append(std::string_view bytes, Keep keep) {
    cutTail();
    const size_t written = WriteSome(fd_, bytes, -1);
    if (written == bytes.size()) {
        length_ += written;
        return;
    }
    const int err = errno;
    size_t kept = 0;
    if (keep == Keep::WholeLines) {
        const size_t lastLf = bytes.substr(0, written).rfind('\n');
        kept = lastLf == std::string_view::npos ? 0 : lastLf + 1;
    }
    length_ += kept;
    tail_ = written > kept;
    if (tail_ && ::ftruncate(fd_, static_cast<off_t>(length_)) == 0)
        tail_ = false;
    errno = err;
    ThrowFileError("Cannot write to", path_);
}

void OpenFile::truncate(uint64_t length) {
    if (length > length_)
        return;
    if (::ftruncate(fd_, static_cast<off_t>(length)) != 0)
        ThrowFileError("Cannot cut back", path_);
    length_ = length;
    tail_ = false;
}

std::string OpenFile::readAt(uint64_t offset, size_t count) const {
    return ReadBytesAt(fd_, offset, count, path_);
}

void OpenFile::close() {
    cutTail();
    if (fd_ >= 0)
        ::close(std::exchange(fd_, -1));
}

void OpenFile::cutTail() {
    if (tail_)
        truncate(length_);
}

}  // namespace zvx
