#include "platform/volume_label.h"

#include <sys/stat.h>

#include <algorithm>
#include <optional>

namespace zvx {

namespace {

std::optional<int> HexValue(char c) {
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return std::nullopt;
}

std::string SourceOf(const std::vector<MountEntry>& table, dev_t device) {
    auto found = std::find_if(table.begin(), table.end(),
                              [device](const MountEntry& e) { return e.device == device; });
    return found == table.end() ? std::string() : found->source;
}

// A by-label link names the device when it leads to the mounted source, or, where the
// table names a source that does not exist (such as "/dev/root"), to a block device with
// the file system's own device number. Sources such as "tmpfs" are no paths.
bool NamesDevice(const std::filesystem::path& link, const std::string& source, dev_t device) {
    std::error_code ec;
    if (source.starts_with('/') && std::filesystem::equivalent(link, source, ec))
        return true;
    struct stat info;
    return ::stat(link.c_str(), &info) == 0 && S_ISBLK(info.st_mode) && info.st_rdev == device;
}

}  // namespace

VolumeLabels::VolumeLabels(std::filesystem::path mountinfo, std::filesystem::path byLabel)
    : mountinfo_(std::move(mountinfo)), byLabel_(std::move(byLabel)) {}

std::string VolumeLabels::labelOf(const std::filesystem::path& path) {
    struct stat info;
    if (::stat(path.c_str(), &info) != 0)
        return "";
    return labelOfDevice(info.st_dev);
}

std::string VolumeLabels::labelOfDevice(dev_t device) {
    auto known = labels_.find(device);
    if (known != labels_.end())
        return known->second;
    std::string label = readLabel(device);
    labels_.emplace(device, label);
    return label;
}

void VolumeLabels::clear() {
    labels_.clear();
}

std::string VolumeLabels::readLabel(dev_t device) const {
    std::string source = SourceOf(ReadMountTable(mountinfo_), device);
    std::error_code ec;
    for (std::filesystem::directory_iterator it(byLabel_, ec), end; !ec && it != end;
         it.increment(ec)) {
        if (NamesDevice(it->path(), source, device))
            return DecodeLabelName(it->path().filename().string());
    }
    return "";
}

std::string DecodeLabelName(std::string_view name) {
    std::string out;
    out.reserve(name.size());
    for (size_t i = 0; i < name.size(); ++i) {
        if (name[i] == '\\' && i + 3 < name.size() && name[i + 1] == 'x') {
            std::optional<int> high = HexValue(name[i + 2]), low = HexValue(name[i + 3]);
            if (high && low) {
                out += static_cast<char>(*high * 16 + *low);
                i += 3;
                continue;
            }
        }
        out += name[i];
    }
    return out;
}

}  // namespace zvx
