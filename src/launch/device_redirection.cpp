#include "launch/device_redirection.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>

#include "platform/catalogue_path.h"
#include "platform/mount_table.h"
#include "store/split_path.h"

namespace zvx {

namespace {

// The names of a Linux path in catalogue form, each with the length of the path up to
// its end: "\media\cd" gives media (6) and cd (9).
struct Name {
    std::string_view text;
    size_t end;
};

std::vector<Name> NamesOf(std::string_view path) {
    std::vector<Name> names;
    size_t start = 1;
    while (start < path.size()) {
        size_t end = std::min(path.find('\\', start), path.size());
        if (end > start)
            names.push_back({path.substr(start, end - start), end});
        start = end + 1;
    }
    return names;
}

// The folder the desktop mounts a medium on, by its naming, or 0 names.
size_t MediaFolderLength(std::string_view folder, const std::string& userName) {
    const std::vector<Name> names = NamesOf(folder);
    auto is = [&](size_t i, std::string_view text) {
        return names.size() > i && names[i].text == text;
    };
    size_t count = 0;
    if (is(0, "run") && is(1, "media"))
        count = 4;
    else if (is(0, "media"))
        count = !userName.empty() && is(1, userName) && names.size() > 2 ? 3 : 2;
    else if (is(0, "mnt"))
        count = 2;
    return count > 0 && names.size() >= count ? names[count - 1].end : 0;
}

bool LiesIn(std::string_view path, std::string_view folder) {
    return path.starts_with(folder) &&
           (path.size() == folder.size() || path[folder.size()] == '\\');
}

std::string_view FolderOf(std::string_view path) {
    const size_t last = path.rfind('\\');
    return last == std::string_view::npos ? std::string_view() : path.substr(0, last);
}

}  // namespace

DriveRoots CurrentDriveRoots() {
    DriveRoots roots;
    for (const MountEntry& entry : ReadMountTable(kMountInfoFile))
        roots.mountPaths.push_back(entry.mountPath);
    if (const passwd* user = getpwuid(geteuid()))
        roots.userName = user->pw_name;
    return roots;
}

std::string DrivePart(std::string_view path, const DriveRoots& roots) {
    if (!path.starts_with('\\'))
        return SplitPath(path).drive;
    const std::string_view folder = FolderOf(path);
    size_t length = MediaFolderLength(folder, roots.userName);
    for (const std::string& mount : roots.mountPaths) {
        const std::string root = CataloguePathFromNative(mount);
        if (root.size() > 1 && LiesIn(folder, root))
            length = std::max(length, root.size());
    }
    return std::string(folder.substr(0, length));
}

std::string replaceme(std::string_view path, std::string_view device, const DriveRoots& roots) {
    const SplitPathResult parts = SplitPath(path);
    // A device that holds a "\" is a drive in catalogue form ("F:\"); any other is native.
    std::string moved = device.find('\\') == std::string_view::npos
                            ? CataloguePathFromNative(device)
                            : std::string(device);
    if (!moved.ends_with('\\'))
        moved += '\\';
    std::string_view folder = parts.folder;
    folder.remove_prefix(std::min(DrivePart(path, roots).size(), folder.size()));
    while (folder.starts_with('\\'))
        folder.remove_prefix(1);
    if (!folder.empty())
        moved += std::string(folder) + "\\";
    return moved + parts.fileName();
}

}  // namespace zvx
