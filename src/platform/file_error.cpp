#include "platform/file_error.h"

#include <cerrno>
#include <cstring>

namespace zvx {

FileError::FileError(int number, const std::filesystem::path& path, const std::string& what)
    : std::runtime_error(what), number_(number), path_(path) {}

// Every errno has one of the nine numbers whose dialog offers Ignore, so that no odd
// file can end a whole add run that was told to pass over failures.
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
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return 61;
        case EBUSY:
        case ETXTBSY:
        case EAGAIN:
        case EDEADLK:
        case ENOLCK:
        case EMFILE:
        case ENFILE:
            return 55;
        case ENXIO:
        case ENODEV:
        case ENOMEDIUM:
        case EMEDIUMTYPE:
            return 71;
        // A file system that went away under the run: a network share, a stale mount.
        case ESTALE:
        case ENOTCONN:
        case ETIMEDOUT:
        case ENETDOWN:
        case ENETUNREACH:
        case EHOSTDOWN:
        case EHOSTUNREACH:
        case ECONNRESET:
        case ECONNABORTED:
        case EREMOTEIO:
        case ENOLINK:
        case ECOMM:
            return 68;
        // A path that names something, but nothing that can be read as a file.
        case EISDIR:
        case ELOOP:
        case ENAMETOOLONG:
        case EINVAL:
        case EEXIST:
        case ENOTEMPTY:
        case EXDEV:
        case EMLINK:
        case ESPIPE:
        case ENOTSUP:
        case EILSEQ:
            return 75;
        default:
            return 57;  // whatever else failed, failed reading the device
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

void ThrowNotAFile(const std::filesystem::path& path) {
    throw FileError(kNotAFileNumber, path, "Not a regular file: " + path.string());
}

}  // namespace zvx
