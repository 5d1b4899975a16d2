#include "platform/file_faults.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace zvx {

namespace detail {
bool fileFaultArmed = false;
}  // namespace detail

namespace {

struct ArmedFault {
    FileFault kind = FileFault::Write;
    int countdown = 0;  // operations of its kind until the first failing one
    int times = 0;      // failing operations left
    int err = 0;
    bool fired = false;
};

ArmedFault armed;

size_t WriteAllOf(int fd, std::string_view bytes, off_t offset) {
    size_t done = 0;
    while (done < bytes.size()) {
        const char* data = bytes.data() + done;
        const size_t left = bytes.size() - done;
        const ssize_t n = offset < 0 ? ::write(fd, data, left)
                                     : ::pwrite(fd, data, left, offset + static_cast<off_t>(done));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0) {
            if (n == 0)
                errno = ENOSPC;
            break;
        }
        done += static_cast<size_t>(n);
    }
    return done;
}

}  // namespace

bool detail::FileFaultFires(FileFault kind) {
    if (kind != armed.kind || armed.times == 0 || --armed.countdown > 0)
        return false;
    --armed.times;
    armed.fired = true;
    errno = armed.err;
    return true;
}

InjectedFileFault::InjectedFileFault(FileFault kind, int nth, int err, int times) {
    armed = {kind, nth, times, err, false};
    detail::fileFaultArmed = true;
}

InjectedFileFault::~InjectedFileFault() {
    detail::fileFaultArmed = false;
    armed = {};
}

bool InjectedFileFault::fired() const {
    return armed.fired;
}

int OpenForWriting(const std::filesystem::path& path, int flags) {
    if (FileFaultDue(FileFault::OpenForWriting))
        return -1;
    return ::open(path.c_str(), flags | O_CLOEXEC, 0666);
}

size_t WriteSome(int fd, std::string_view bytes, off_t offset) {
    if (FileFaultDue(FileFault::Write)) {
        const int err = errno;
        const size_t done = WriteAllOf(fd, bytes.substr(0, bytes.size() / 2), offset);
        errno = err;
        return done;
    }
    return WriteAllOf(fd, bytes, offset);
}

}  // namespace zvx
