#pragma once
// Moving a catalogued file to another device (replaceme): the file keeps its folder below
// the root of the medium it was catalogued from, and only the device changes.

#include <string>
#include <string_view>
#include <vector>

namespace zvx {

// What tells where the medium of a Linux path begins.
struct DriveRoots {
    // The mount paths of the running system, native ("/media/cd").
    std::vector<std::string> mountPaths;
    // The login name of the user, for the desktop's mount folders below /media/USER.
    std::string userName;
};

// The mount table of the running system and the user's login name.
DriveRoots CurrentDriveRoots();

// The drive part of a path in catalogue form. A path that begins with "\" is a Linux
// path: its drive part is the longest folder it lies in that is either a mount path
// other than "/" or a folder the desktop mounts media on (\media\NAME, \mnt\NAME,
// \run\media\USER\NAME, and \media\USER\NAME for the user's own name), so that a medium
// that is not mounted now is still recognised; empty when none fits (the root). Any other
// path has the drive part of SplitPath: up to and including its first ":".
std::string DrivePart(std::string_view path, const DriveRoots& roots);

// `path` (catalogue form) moved to `device`, a native mount path or a Windows drive
// ("F:", "F:\"); the result is in catalogue form. `E:\music\a.mp3` on "F:" is
// `F:\music\a.mp3`; `d:\music\a.mp3` on "/media/cd" is `\media\cd\music\a.mp3`.
std::string replaceme(std::string_view path, std::string_view device, const DriveRoots& roots);

}  // namespace zvx
