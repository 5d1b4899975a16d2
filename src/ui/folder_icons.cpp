#include "ui/folder_icons.h"

#include "ui/icons.h"

namespace zvx {

QIcon FolderIcon(int iconNumber) {
    switch (iconNumber) {
        case 1:  // 3.5 Disc
        case 3:  // 5 1/4 Disc
            return ThemeIcon("media-floppy");
        case 4:
            return ThemeIcon("media-optical");
        case 5:
            return ThemeIcon("applications-internet");  // World
        case 6:
            return ThemeIcon("user-trash");
        case 7:   // 5 1/4 Disc-Drive
        case 17:  // 3.5 Disc-Drive
            return ThemeIcon("drive-removable-media");
        case 8:
            return ThemeIcon("media-optical-audio");
        case 11:
            return ThemeIcon("user-desktop");
        case 12:
            return ThemeIcon("drive-harddisk");
        case 13:
            return ThemeIcon("network-server");
        case 14:
            return ThemeIcon("computer");
        case 16:
            return ThemeIcon("folder-remote");
        case 18:
            return ThemeIcon("network-workgroup");  // FTP/Website
        case 19:
            return ThemeIcon("zvx");
        default:
            return ThemeIcon("folder");
    }
}

}  // namespace zvx
