#include "platform/file_facts.h"

#include <sys/stat.h>

#include <ctime>
#include <string>

#include "platform/file_error.h"

namespace zvx {

namespace {

std::string DateText(std::time_t changed) {
    std::tm local{};
    localtime_r(&changed, &local);
    auto two = [](int value) {
        return std::string{char('0' + value / 10), char('0' + value % 10)};
    };
    std::string year = std::to_string(local.tm_year + 1900);
    if (year.size() < 4)
        year.insert(0, 4 - year.size(), '0');
    return two(local.tm_mon + 1) + "-" + two(local.tm_mday) + "-" + year;
}

}  // namespace

FileFacts ReadFileFacts(const std::filesystem::path& path) {
    struct stat info;
    if (::stat(path.c_str(), &info) != 0)
        ThrowFileError("Cannot read the attributes of", path);
    if (!S_ISREG(info.st_mode))
        ThrowNotAFile(path);
    return {(info.st_mode & S_IWUSR) == 0, static_cast<uint64_t>(info.st_size),
            DateText(info.st_mtime), info.st_dev};
}

}  // namespace zvx
