#include "platform/mapped_file.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/file_error.h"

namespace zvx {

MappedFile::MappedFile(const std::filesystem::path& path) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        ThrowFileError("Cannot open", path);
    struct stat info;
    if (::fstat(fd, &info) != 0) {
        ::close(fd);
        ThrowFileError("Cannot read the length of", path);
    }
    size_ = static_cast<size_t>(info.st_size);
    if (size_ > 0) {
        void* map = ::mmap(nullptr, size_, PROT_READ, MAP_SHARED, fd, 0);
        if (map == MAP_FAILED) {
            ::close(fd);
            ThrowFileError("Cannot map", path);
        }
        data_ = static_cast<const char*>(map);
    }
    ::close(fd);
}

MappedFile::~MappedFile() {
    if (data_)
        ::munmap(const_cast<char*>(data_), size_);
}

}  // namespace zvx
