#pragma once
// A failed file operation, carrying the program's error number for it, so that the
// error dialogs can name it: a missing file 53, a missing folder on its path 76,
// permission 70, I/O error 57, no space 61, busy 55, device not ready 71, device not
// available 68, a path that names no readable file 75.

#include <filesystem>
#include <stdexcept>
#include <string>

namespace zvx {

class FileError : public std::runtime_error {
  public:
    FileError(int number, const std::filesystem::path& path, const std::string& what);
    int number() const { return number_; }
    const std::filesystem::path& path() const { return path_; }

  private:
    int number_;
    std::filesystem::path path_;
};

// A directory, FIFO, socket or device where a file's content is wanted: "path or file
// access error". Such a thing is never opened for reading and never becomes an entry.
inline constexpr int kNotAFileNumber = 75;

// The program's error number for an errno value of the operating system, by meaning;
// always one of the numbers above, 57 for an errno without a nearer meaning.
int ErrorNumberFromErrno(int err);

// Throws a FileError for the current errno, naming the operation and the path.
[[noreturn]] void ThrowFileError(const std::string& operation, const std::filesystem::path& path);

// Throws the FileError kNotAFileNumber for `path`.
[[noreturn]] void ThrowNotAFile(const std::filesystem::path& path);

}  // namespace zvx
