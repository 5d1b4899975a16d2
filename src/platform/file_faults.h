#pragma once
// Faults of the file layer, for tests: the N-th write, or the N-th opening of a file for
// writing, fails with a chosen errno, as a full disk (ENOSPC), a refused permission
// (EACCES) or a failing device (EIO) would. Every write and every opening for writing of
// the file layer goes through WriteSome and OpenForWriting below; without an armed
// fault they cost one test of a plain flag.

#include <sys/types.h>

#include <filesystem>
#include <string_view>

namespace zvx {

enum class FileFault { Write, OpenForWriting };

// Arms a fault for the life of the object; one at a time in a process.
class InjectedFileFault {
  public:
    // The `nth` operation of `kind` from now on (counted from 1) and the `times - 1`
    // after it fail with `err`. A failing write first puts half of its bytes in the
    // file, as a disk that fills up in the middle of a write does.
    InjectedFileFault(FileFault kind, int nth, int err, int times = 1);
    ~InjectedFileFault();
    InjectedFileFault(const InjectedFileFault&) = delete;
    InjectedFileFault& operator=(const InjectedFileFault&) = delete;

    // Whether an operation failed through it.
    bool fired() const;
};

namespace detail {
extern bool fileFaultArmed;
bool FileFaultFires(FileFault kind);
}  // namespace detail

// Whether the operation of this kind is to fail now; errno is set then.
inline bool FileFaultDue(FileFault kind) {
    return detail::fileFaultArmed && detail::FileFaultFires(kind);
}

// ::open for writing (O_CLOEXEC added, mode 0666 for a new file); -1 with errno.
int OpenForWriting(const std::filesystem::path& path, int flags);

// Writes the bytes at `offset`, or at the file's current position when `offset` is
// negative, as many system calls as it takes. The count written: all of them, or fewer
// with errno set when the write failed part-way.
size_t WriteSome(int fd, std::string_view bytes, off_t offset);

}  // namespace zvx
