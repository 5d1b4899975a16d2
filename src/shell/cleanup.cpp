#include "shell/cleanup.h"

#include <filesystem>
#include <system_error>
#include <vector>

#include "common/common.h"
#include "common/file_pattern.h"

namespace zvx {

namespace {

std::vector<std::filesystem::path> FilesMatching(const std::filesystem::path& folder,
                                                 const char* pattern) {
    std::vector<std::filesystem::path> files;
    std::error_code ec;
    for (std::filesystem::directory_iterator it(folder, ec), end; !ec && it != end;
         it.increment(ec)) {
        std::error_code typeError;
        if (it->is_regular_file(typeError) &&
            MatchesFilePattern(it->path().filename().string(), pattern))
            files.push_back(it->path());
    }
    return files;
}

}  // namespace

void RemoveTemporaryFiles(const Common& common,
                          const std::function<void(long long done, long long total)>& progress) {
    std::vector<std::filesystem::path> files = FilesMatching(common.workFolder(), "*.zvd");
    std::vector<std::filesystem::path> temporary = FilesMatching(common.workFolder(), "*.tmp");
    files.insert(files.end(), temporary.begin(), temporary.end());

    const long long total = static_cast<long long>(files.size());
    long long done = 0;
    progress(done, total);
    for (const std::filesystem::path& file : files) {
        std::error_code ec;
        std::filesystem::remove(file, ec);
        progress(++done, total);
    }
}

}  // namespace zvx
