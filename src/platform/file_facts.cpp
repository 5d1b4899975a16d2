#include "platform/file_facts.h"

#include <sys/stat.h>

#include <cstdio>
#include <ctime>

#include "platform/file_error.h"

namespace zvx {

namespace {

std::string DateText(std::time_t changed) {
    std::tm local{};
    localtime_r(&changed, &local);
    char text[32];
    std::snprintf(text, sizeof text, "%02d-%02d-%04d", local.tm_mon + 1, local.tm_mday,
                  local.tm_year + 1900);
    return text;
}

}  // namespace

FileFacts ReadFileFacts(const std::filesystem::path& path) {
    struct stat info;
    if (::stat(path.c_str(), &info) != 0)
        ThrowFileError("Cannot read the attributes of", path);
    return {(info.st_mode & S_IWUSR) == 0, static_cast<uint64_t>(info.st_size),
            DateText(info.st_mtime), info.st_dev};
}

}  // namespace zvx
