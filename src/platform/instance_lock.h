#pragma once
// One running window program per application folder. The first process takes an
// exclusive lock on a file in the folder and holds it for its whole life; a later
// process in the same folder fails to take it and so knows that an instance is running.
// Two application folders are two independent installs. The lock dies with the
// process, so a crash leaves nothing that blocks the next start.

#include <filesystem>

namespace zvx {

// Its name must match neither "*.tmp" nor "*.zvd", which the clean-up deletes.
inline constexpr const char* kInstanceLockFile = "zvx.lock";

class InstanceLock {
  public:
    InstanceLock() = default;
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    // Takes the lock of `folder`. False when another instance holds it. A lock file
    // that cannot be made at all (an unwritable folder) tells nothing about other
    // instances: then true, with no lock held.
    bool acquire(const std::filesystem::path& folder);
    // True while this object holds the lock.
    bool held() const { return fd_ >= 0; }

  private:
    int fd_ = -1;
};

}  // namespace zvx
