#include "platform/file_error.h"

#include <cerrno>
#include <cstring>

namespace zvx {

FileError::FileError(int number, const std::filesystem::path& path, const std::string& what)
    : std::runtime_error(what), number_(number), path_(path) {}

int ErrorNumberFromErrno(int err) {
    switch (err) {
        case ENOENT:
            return 53;
        case ENOTDIR:
            return 76;
        case EACCES:
        case EPERM:
        case EROFS:
            return 70;
        case EIO:
            return 57;
        case ENOSPC:
        case EDQUOT:
            return 61;
        case EBUSY:
        case ETXTBSY:
            return 55;
        case ENXIO:
        case ENODEV:
        case ENOMEDIUM:
            return 71;
        case EISDIR:
            return 75;
        default:
            return 51;  // internal error
    }
}

void ThrowFileError(const std::string& operation, const std::filesystem::path& path) {
    int err = errno;
    // A missing folder on the way to the file is "path not found", not "file not found".
    int number = ErrorNumberFromErrno(err);
    if (err == ENOENT && path.has_parent_path()) {
        std::error_code ec;
        if (!std::filesystem::exists(path.parent_path(), ec))
            number = 76;
    }
    throw FileError(number, path, operation + " " + path.string() + ": " + std::strerror(err));
}

}  // namespace zvx
