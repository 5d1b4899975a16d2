#pragma once
// A file's bytes mapped into memory for reading, as long as the file was when mapped,
// so that reading many lines back costs no system call each.

#include <filesystem>
#include <string_view>

namespace zvx {

class MappedFile {
  public:
    // Maps the whole file. Throws FileError.
    explicit MappedFile(const std::filesystem::path& path);
    ~MappedFile();
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;

    std::string_view bytes() const { return {data_, size_}; }

  private:
    const char* data_ = nullptr;
    size_t size_ = 0;
};

}  // namespace zvx
