#include "platform/drives.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

namespace zvx {

namespace {

constexpr std::array<std::string_view, 3> kRemovableFolders = {"/media/", "/mnt/", "/run/media/"};

std::string Normal(const std::filesystem::path& path) {
    std::string text = path.lexically_normal().string();
    while (text.size() > 1 && text.back() == '/')
        text.pop_back();
    return text;
}

// The mounts below one folder, sorted by path.
std::vector<const MountEntry*> MountsBelow(const std::vector<MountEntry>& table,
                                           std::string_view folder) {
    std::vector<const MountEntry*> found;
    for (const MountEntry& entry : table) {
        if (entry.mountPath.starts_with(folder) && entry.mountPath.size() > folder.size())
            found.push_back(&entry);
    }
    std::sort(found.begin(), found.end(),
              [](const MountEntry* a, const MountEntry* b) { return a->mountPath < b->mountPath; });
    return found;
}

void AddOnce(std::vector<Drive>& drives, std::string path, std::string label) {
    path = Normal(path);
    bool known = std::any_of(drives.begin(), drives.end(),
                             [&](const Drive& drive) { return drive.path == path; });
    if (!known)
        drives.push_back({std::move(path), std::move(label)});
}

}  // namespace

std::filesystem::path HomeFolder() {
    const char* home = std::getenv("HOME");
    return home ? home : "";
}

std::vector<Drive> MountedDrives(const std::filesystem::path& mountinfo,
                                 const std::filesystem::path& home,
                                 const std::filesystem::path& byLabel) {
    std::vector<MountEntry> table = ReadMountTable(mountinfo);
    VolumeLabels labels(mountinfo, byLabel);
    std::vector<Drive> drives;
    AddOnce(drives, "/", labels.labelOf("/"));
    if (!home.empty())
        AddOnce(drives, home.string(), labels.labelOf(home));
    for (std::string_view folder : kRemovableFolders) {
        for (const MountEntry* entry : MountsBelow(table, folder))
            AddOnce(drives, entry->mountPath, labels.labelOfDevice(entry->device));
    }
    return drives;
}

bool IsDriveRoot(const std::filesystem::path& dir, const std::vector<Drive>& drives) {
    std::string path = Normal(dir);
    return std::any_of(drives.begin(), drives.end(),
                       [&](const Drive& drive) { return drive.path == path; });
}

}  // namespace zvx
