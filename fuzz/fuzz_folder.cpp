#include "fuzz_folder.h"

#include <stdlib.h>

#include <cstdio>
#include <string>
#include <system_error>

namespace zvx::fuzz {

namespace {

std::filesystem::path MakeFolder() {
    std::error_code ec;
    std::filesystem::path base = "/dev/shm";
    if (!std::filesystem::is_directory(base, ec))
        base = std::filesystem::temp_directory_path(ec);
    std::string pattern = (base / "zvxfuzz-XXXXXX").string();
    if (!mkdtemp(pattern.data())) {
        std::perror("zvx fuzz: cannot make a temporary folder");
        std::abort();
    }
    return pattern;
}

class OwnedFolder {
  public:
    OwnedFolder() : path_(MakeFolder()) {}
    ~OwnedFolder() {
        std::error_code ec;
        std::filesystem::remove_all(path_, ec);
    }
    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

}  // namespace

const std::filesystem::path& FuzzFolder() {
    static const OwnedFolder folder;
    return folder.path();
}

}  // namespace zvx::fuzz
