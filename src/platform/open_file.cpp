#include "platform/open_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/file_error.h"
#include "platform/file_io.h"

namespace zvx {

OpenFile::OpenFile(const std::filesystem::path& path) : path_(path) {
    fd_ = ::open(path.c_str(), O_RDWR | O_APPEND | O_CLOEXEC);
    if (fd_ < 0)
        ThrowFileError("Cannot open", path);
}

OpenFile::~OpenFile() {
    ::close(fd_);
}

uint64_t OpenFile::size() const {
    struct stat info;
    if (::fstat(fd_, &info) != 0)
        ThrowFileError("Cannot read the length of", path_);
    return static_cast<uint64_t>(info.st_size);
}

void OpenFile::append(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(fd_, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            ThrowFileError("Cannot write to", path_);
        bytes.remove_prefix(static_cast<size_t>(written));
    }
}

std::string OpenFile::readAt(uint64_t offset, size_t count) const {
    return ReadBytesAt(fd_, offset, count, path_);
}

}  // namespace zvx
