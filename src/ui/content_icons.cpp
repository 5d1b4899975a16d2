#include "ui/content_icons.h"

#include <array>

#include "ui/icons.h"

namespace zvx {

namespace {

QString ThemeNameOf(int iconIndex) {
    switch (iconIndex) {
        case 1:
            return "audio-x-generic";
        case 2:
            return "dialog-password";
        case 3:
            return "dialog-information";
        case 4:
            return "text-x-generic";
        case 5:
            return "text-x-generic-template";
        case 8:
            return "video-x-generic";
        case 9:
            return "application-x-executable";
        case 10:
            return "image-x-generic";
        case 11:
            return "zvx";
        case 13:
            return "x-office-presentation";
        case 14:
            return "x-office-spreadsheet";
        case 15:
            return "text-html";
        case 16:
            return "applications-graphics";
        case 17:
            return "package-x-generic";
        case 20:
            return "help-browser";
        default:
            return "unknown";
    }
}

}  // namespace

const QIcon& ContentIcon(int iconIndex) {
    static std::array<QIcon, 21> icons;
    static std::array<bool, 21> made{};
    const size_t slot = iconIndex >= 0 && iconIndex <= 20 ? static_cast<size_t>(iconIndex) : 18;
    if (!made[slot]) {
        icons[slot] = ThemeIcon(ThemeNameOf(static_cast<int>(slot)));
        made[slot] = true;
    }
    return icons[slot];
}

}  // namespace zvx
