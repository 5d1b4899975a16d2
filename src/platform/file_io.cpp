#include "platform/file_io.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <optional>
#include <system_error>
#include <utility>

#include "platform/file_error.h"
#include "platform/file_faults.h"
#include "platform/held_file.h"

namespace zvx {

namespace {

// Buffer of a copy and of AppendWriter: large writes, few system calls.
constexpr size_t kBlockSize = 1 << 20;

class Fd {
  public:
    Fd(const std::filesystem::path& path, int flags, const char* operation) {
        const bool writing = (flags & O_ACCMODE) != O_RDONLY;
        fd_ = writing ? OpenForWriting(path, flags) : ::open(path.c_str(), flags | O_CLOEXEC);
        if (fd_ < 0)
            ThrowFileError(operation, path);
    }
    ~Fd() {
        if (fd_ >= 0)
            ::close(fd_);
    }
    int get() const { return fd_; }

  private:
    int fd_;
};

void WriteAll(int fd, std::string_view bytes, off_t offset, const std::filesystem::path& path) {
    if (WriteSome(fd, bytes, offset) != bytes.size())
        ThrowFileError("Cannot write", path);
}

std::filesystem::path FolderOf(const std::filesystem::path& path) {
    return path.has_parent_path() ? path.parent_path() : ".";
}

void SyncFolderOf(const std::filesystem::path& path) {
    int fd = ::open(FolderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
}

// A copy beside a target is named after it: the target's name, this, and six random
// letters or digits.
constexpr const char* kBesideInfix = ".part-";
// Fresh names to try when a clearing run takes one away before it is held.
constexpr int kBesideAttempts = 8;

// A flushed copy beside its target, held under its lock until it has been renamed.
struct BesideCopy {
    std::filesystem::path path;
    FileHold hold;
};

// A flushed copy of `source` under a fresh name in the target's folder, held from its
// creation on, so that no other process clears it. Copies that dead processes left
// beside the target, held by nobody, are cleared first.
BesideCopy CopyBeside(const std::filesystem::path& source, const std::filesystem::path& target) {
    RemoveAbandonedFiles(FolderOf(target), target.filename().string() + kBesideInfix);
    for (int attempt = 0; attempt < kBesideAttempts; ++attempt) {
        std::string name = target.string() + kBesideInfix + "XXXXXX";
        int fd = FileFaultDue(FileFault::OpenForWriting) ? -1 : ::mkstemp(name.data());
        if (fd < 0)
            ThrowFileError("Cannot create a file beside", target);
        std::optional<FileHold> hold = HoldNewFile(fd, name);
        if (!hold)
            continue;
        try {
            CopyFileBytes(source, name);
            ::fsync(hold->fd());
        } catch (...) {
            ::unlink(name.c_str());
            throw;
        }
        return {name, std::move(*hold)};
    }
    errno = EEXIST;
    ThrowFileError("Cannot create a file beside", target);
}

// Renames the flushed copy over the target, removing the copy when that fails. The
// copy's lock ends only after the rename.
void RenameOver(BesideCopy beside, const std::filesystem::path& target) {
    if (::rename(beside.path.c_str(), target.c_str()) != 0) {
        int err = errno;
        ::unlink(beside.path.c_str());
        errno = err;
        ThrowFileError("Cannot replace", target);
    }
    SyncFolderOf(target);
}

// The file a symbolic link points to, so that the link itself survives a replacement.
std::filesystem::path FollowLink(const std::filesystem::path& path) {
    std::error_code ec;
    if (!std::filesystem::is_symlink(path, ec))
        return path;
    std::filesystem::path real = std::filesystem::canonical(path, ec);
    return ec ? path : real;
}

}  // namespace

std::string ReadFileBytes(const std::filesystem::path& path, uint64_t offset, size_t count) {
    Fd fd(path, O_RDONLY, "Cannot open");
    return ReadBytesAt(fd.get(), offset, count, path);
}

std::string ReadBytesAt(int fd, uint64_t offset, size_t count, const std::filesystem::path& path) {
    std::string bytes(count, '\0');
    size_t got = 0;
    while (got < count) {
        ssize_t n = ::pread(fd, bytes.data() + got, count - got, static_cast<off_t>(offset + got));
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            ThrowFileError("Cannot read", path);
        if (n == 0)
            break;
        got += static_cast<size_t>(n);
    }
    bytes.resize(got);
    return bytes;
}

void WriteFileBytes(const std::filesystem::path& path, uint64_t offset, std::string_view bytes) {
    Fd fd(path, O_WRONLY | O_CREAT, "Cannot open");
    WriteAll(fd.get(), bytes, static_cast<off_t>(offset), path);
}

void WriteEmptyFile(const std::filesystem::path& path) {
    Fd fd(path, O_WRONLY | O_CREAT | O_TRUNC, "Cannot create");
}

void TouchFile(const std::filesystem::path& path) {
    Fd fd(path, O_WRONLY | O_CREAT, "Cannot open");
}

void DeleteFileIfExists(const std::filesystem::path& path) {
    if (::unlink(path.c_str()) != 0 && errno != ENOENT)
        ThrowFileError("Cannot delete", path);
}

uint64_t FileLength(const std::filesystem::path& path) {
    std::error_code ec;
    uint64_t size = std::filesystem::file_size(path, ec);
    if (ec) {
        errno = ec.value();
        ThrowFileError("Cannot read the size of", path);
    }
    return size;
}

// The copy takes the permissions of `from`, as a file system copy does.
namespace {

// Copies `in` from `inOffset` to its end into `out` at `outOffset`: inside the kernel
// where the file systems allow it, otherwise (or while a test injects write faults)
// through a buffer.
void CopyRange(const Fd& in, uint64_t inOffset, const Fd& out, uint64_t outOffset,
               const std::filesystem::path& from, const std::filesystem::path& to) {
    auto inPos = static_cast<off_t>(inOffset);
    auto outPos = static_cast<off_t>(outOffset);
    while (!detail::fileFaultArmed) {
        const ssize_t copied =
            ::copy_file_range(in.get(), &inPos, out.get(), &outPos, kBlockSize * 64, 0);
        if (copied == 0)
            return;
        if (copied < 0 && errno != EXDEV && errno != ENOSYS && errno != EINVAL &&
            errno != EOPNOTSUPP)
            ThrowFileError("Cannot copy to", to);
        if (copied < 0)
            break;
    }
    std::string block;
    for (;; inPos += static_cast<off_t>(block.size()), outPos += static_cast<off_t>(block.size())) {
        block = ReadBytesAt(in.get(), static_cast<uint64_t>(inPos), kBlockSize, from);
        if (block.empty())
            return;
        WriteAll(out.get(), block, outPos, to);
    }
}

}  // namespace

void CopyFileBytes(const std::filesystem::path& from, const std::filesystem::path& to) {
    Fd in(from, O_RDONLY, "Cannot open");
    struct stat info;
    if (::fstat(in.get(), &info) != 0)
        ThrowFileError("Cannot read the attributes of", from);
    Fd out(to, O_WRONLY | O_CREAT | O_TRUNC, "Cannot copy to");
    CopyRange(in, 0, out, 0, from, to);
    if (::fchmod(out.get(), info.st_mode & 07777) != 0)
        ThrowFileError("Cannot set the mode of", to);
}

void AppendFileRange(const std::filesystem::path& from, uint64_t offset,
                     const std::filesystem::path& to) {
    Fd in(from, O_RDONLY, "Cannot open");
    Fd out(to, O_WRONLY, "Cannot write");
    struct stat info;
    if (::fstat(out.get(), &info) != 0)
        ThrowFileError("Cannot read the attributes of", to);
    CopyRange(in, offset, out, static_cast<uint64_t>(info.st_size), from, to);
}

void ReplaceFile(const std::filesystem::path& source, const std::filesystem::path& target) {
    {
        Fd fd(source, O_RDONLY, "Cannot open");
        ::fsync(fd.get());
    }
    if (::rename(source.c_str(), target.c_str()) == 0) {
        SyncFolderOf(target);
        return;
    }
    if (errno != EXDEV)
        ThrowFileError("Cannot replace", target);
    // Another file system: copy beside the target first, so the rename stays atomic.
    RenameOver(CopyBeside(source, target), target);
    ::unlink(source.c_str());
}

void CopyFileSafely(const std::filesystem::path& from, const std::filesystem::path& to) {
    std::filesystem::path target = FollowLink(to);
    BesideCopy beside = CopyBeside(from, target);
    struct stat old {};
    if (::stat(target.c_str(), &old) == 0)
        ::chmod(beside.path.c_str(), old.st_mode & 07777);
    RenameOver(std::move(beside), target);
}

AppendWriter::AppendWriter(const std::filesystem::path& path) : path_(path) {
    fd_ = OpenForWriting(path, O_WRONLY | O_CREAT | O_APPEND);
    if (fd_ < 0)
        ThrowFileError("Cannot open", path);
    buffer_.reserve(kBlockSize);
}

AppendWriter::~AppendWriter() {
    if (fd_ >= 0)
        ::close(fd_);
}

void AppendWriter::write(std::string_view bytes) {
    if (buffer_.size() + bytes.size() > kBlockSize)
        flush();
    if (bytes.size() >= kBlockSize)
        WriteAll(fd_, bytes, -1, path_);
    else
        buffer_.append(bytes);
}

void AppendWriter::writeLine(std::string_view line) {
    write(line);
    write("\r\n");
}

void AppendWriter::flush() {
    if (buffer_.empty())
        return;
    WriteAll(fd_, buffer_, -1, path_);
    buffer_.clear();
}

void AppendWriter::close() {
    if (fd_ < 0)
        return;
    flush();
    if (::close(std::exchange(fd_, -1)) != 0)
        ThrowFileError("Cannot write", path_);
}

}  // namespace zvx
