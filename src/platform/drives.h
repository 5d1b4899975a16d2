#pragma once
// The drives a person picks from: the mounted file systems worth adding, by their mount
// path. A device's root is a directory that is the path of one of them.

#include <filesystem>
#include <string>
#include <vector>

#include "platform/mount_table.h"
#include "platform/volume_label.h"

namespace zvx {

struct Drive {
    std::string path;
    std::string label;
};

// The home folder of the user ($HOME), empty when unset.
std::filesystem::path HomeFolder();

// "/", the home folder, then the mount points under /media, /mnt and /run/media, each
// group sorted by path and each path once, with their volume labels. System mounts
// (/proc, /sys, /dev, the rest of /run, snaps ...) are left out.
std::vector<Drive> MountedDrives(const std::filesystem::path& mountinfo = kMountInfoFile,
                                 const std::filesystem::path& home = HomeFolder(),
                                 const std::filesystem::path& byLabel = kByLabelFolder);

// True when `dir` is the path of one of `drives`; a trailing "/" does not matter.
bool IsDriveRoot(const std::filesystem::path& dir, const std::vector<Drive>& drives);

}  // namespace zvx
