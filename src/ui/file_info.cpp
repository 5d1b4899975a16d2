#include "ui/file_info.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>

#include "metadata/content_types.h"
#include "store/split_path.h"

namespace zvx {

namespace {

constexpr const char* kNothingSelected = "<no file(s) selected!>";

// The dialog's text can hold several names separated by NUL: the first counts.
std::filesystem::path PathOf(std::string_view text) {
    return std::filesystem::path(std::string(text.substr(0, text.find('\0'))));
}

std::optional<std::uintmax_t> LengthOf(const std::filesystem::path& path) {
    std::error_code error;
    const std::uintmax_t length = std::filesystem::file_size(path, error);
    if (error)
        return std::nullopt;
    return length;
}

FileInfoTexts OnePath(const std::filesystem::path& path) {
    if (path.empty())
        return {kNothingSelected, kNothingSelected, {}};
    std::error_code error;
    if (std::filesystem::is_directory(path, error))
        return {{}, "Folder: " + path.string(), "Type: Folder"};
    FileInfoTexts texts{{}, "Folder: " + path.parent_path().string(), {}};
    const std::string_view contentType =
        ContentTypeFromExtension(SplitPath(path.filename().string()).extension).contentType;
    texts.type = "ZVX-Content-Type: " + std::string(contentType);
    texts.icon = IconOfContentType(contentType);
    if (const auto length = LengthOf(path))
        texts.info = " (" + std::to_string(*length) + " bytes)";
    return texts;
}

FileInfoTexts SeveralFiles(const std::vector<std::string>& paths) {
    std::uintmax_t sum = 0;
    for (const std::string& text : paths)
        sum += LengthOf(PathOf(text)).value_or(0);
    return {std::to_string(paths.size()) + " files selected. (" + std::to_string(sum) + " bytes)",
            "Path: " + PathOf(paths.front()).parent_path().string(), "<multiple files selected>"};
}

}  // namespace

FileInfoTexts FileInfo(const std::vector<std::string>& paths) {
    if (paths.size() > 1)
        return SeveralFiles(paths);
    return OnePath(paths.empty() ? std::filesystem::path() : PathOf(paths.front()));
}

}  // namespace zvx
