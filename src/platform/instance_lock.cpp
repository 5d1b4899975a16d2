#include "platform/instance_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace zvx {

InstanceLock::~InstanceLock() {
    if (fd_ >= 0)
        ::close(fd_);
}

bool InstanceLock::acquire(const std::filesystem::path& folder) {
    if (fd_ >= 0)
        return true;
    // Close-on-exec: a program started from here must not keep the lock after we end.
    int fd = ::open((folder / kInstanceLockFile).c_str(), O_RDONLY | O_CREAT | O_CLOEXEC, 0666);
    if (fd < 0)
        return true;
    int result;
    do {
        result = ::flock(fd, LOCK_EX | LOCK_NB);
    } while (result != 0 && errno == EINTR);
    if (result != 0) {
        bool heldElsewhere = errno == EWOULDBLOCK;
        ::close(fd);
        return !heldElsewhere;
    }
    fd_ = fd;
    return true;
}

}  // namespace zvx
