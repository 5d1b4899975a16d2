#include "platform/mount_table.h"

#include <sys/sysmacros.h>

#include <charconv>
#include <fstream>
#include <optional>

namespace zvx {

namespace {

std::vector<std::string_view> SplitAtBlanks(std::string_view line) {
    std::vector<std::string_view> fields;
    size_t start = 0;
    while (start < line.size()) {
        size_t end = line.find(' ', start);
        if (end == std::string_view::npos)
            end = line.size();
        if (end > start)
            fields.push_back(line.substr(start, end - start));
        start = end + 1;
    }
    return fields;
}

bool IsOctalDigit(char c) {
    return c >= '0' && c <= '7';
}

std::optional<dev_t> DeviceFromText(std::string_view text) {
    size_t colon = text.find(':');
    if (colon == std::string_view::npos)
        return std::nullopt;
    unsigned major = 0, minor = 0;
    const char* end = text.data() + text.size();
    auto [afterMajor, majorError] = std::from_chars(text.data(), text.data() + colon, major);
    auto [afterMinor, minorError] = std::from_chars(text.data() + colon + 1, end, minor);
    if (majorError != std::errc() || minorError != std::errc() ||
        afterMajor != text.data() + colon || afterMinor != end)
        return std::nullopt;
    return makedev(major, minor);
}

// A line reads "id parent major:minor root mount-path options [optional...] - type
// source super-options"; the optional fields vary in number, so the source is found
// behind the lone "-".
std::optional<MountEntry> ParseMountLine(std::string_view line) {
    std::vector<std::string_view> fields = SplitAtBlanks(line);
    if (fields.size() < 5)
        return std::nullopt;
    std::optional<dev_t> device = DeviceFromText(fields[2]);
    if (!device)
        return std::nullopt;
    MountEntry entry{*device, DecodeMountText(fields[4]), ""};
    for (size_t i = 6; i + 2 < fields.size(); ++i) {
        if (fields[i] == "-") {
            entry.source = DecodeMountText(fields[i + 2]);
            break;
        }
    }
    return entry;
}

}  // namespace

std::string DecodeMountText(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 3 < text.size() && IsOctalDigit(text[i + 1]) &&
            IsOctalDigit(text[i + 2]) && IsOctalDigit(text[i + 3])) {
            out += static_cast<char>((text[i + 1] - '0') * 64 + (text[i + 2] - '0') * 8 +
                                     (text[i + 3] - '0'));
            i += 3;
        } else {
            out += text[i];
        }
    }
    return out;
}

std::vector<MountEntry> ReadMountTable(const std::filesystem::path& mountinfo) {
    std::vector<MountEntry> entries;
    std::ifstream in(mountinfo);
    std::string line;
    while (std::getline(in, line)) {
        if (std::optional<MountEntry> entry = ParseMountLine(line))
            entries.push_back(std::move(*entry));
    }
    return entries;
}

}  // namespace zvx
