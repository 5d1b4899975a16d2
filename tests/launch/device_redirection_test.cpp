#include "launch/device_redirection.h"

#include <gtest/gtest.h>

namespace zvx::test {
namespace {

TEST(Replaceme, AWindowsPathKeepsItsFolderOnTheNewDrive) {
    const DriveRoots none;
    EXPECT_EQ(replaceme("E:\\music\\a.mp3", "F:", none), "F:\\music\\a.mp3");
    EXPECT_EQ(replaceme("E:\\a", "F:\\", none), "F:\\a");
    EXPECT_EQ(replaceme("c:\\x.y\\a.b.mp3", "F:", none), "F:\\x.y\\a.b.mp3");
    // On a mount path the result is the catalogue form of a native path.
    EXPECT_EQ(replaceme("d:\\music\\a.mp3", "/media/cd", none), "\\media\\cd\\music\\a.mp3");
    EXPECT_EQ(replaceme("d:\\a.mp3", "/media/cd/", none), "\\media\\cd\\a.mp3");
}

TEST(Replaceme, ALinuxPathLeavesTheFolderItsMediumWasMountedOn) {
    const DriveRoots roots{{"/", "/srv/share", "/media/cd"}, "ann"};
    // Media folders are known by their naming, mounted now or not.
    EXPECT_EQ(replaceme("\\media\\CD1\\music\\a.mp3", "/media/usb", roots),
              "\\media\\usb\\music\\a.mp3");
    EXPECT_EQ(replaceme("\\media\\ann\\CD1\\music\\a.mp3", "/mnt/copy", roots),
              "\\mnt\\copy\\music\\a.mp3");
    EXPECT_EQ(replaceme("\\media\\bob\\music\\a.mp3", "/mnt/copy", roots),
              "\\mnt\\copy\\music\\a.mp3");
    EXPECT_EQ(replaceme("\\run\\media\\bob\\CD1\\a.mp3", "/mnt/copy", roots), "\\mnt\\copy\\a.mp3");
    EXPECT_EQ(replaceme("\\mnt\\disk\\a\\b\\c.ogg", "F:", roots), "F:\\a\\b\\c.ogg");
    // A mount path of the table counts as a whole name, never as the front of one.
    EXPECT_EQ(replaceme("\\srv\\share\\music\\a.mp3", "/media/usb", roots),
              "\\media\\usb\\music\\a.mp3");
    EXPECT_EQ(replaceme("\\srv\\shared\\a.mp3", "/media/usb", roots),
              "\\media\\usb\\srv\\shared\\a.mp3");
    // Under no medium the root is the drive.
    EXPECT_EQ(replaceme("\\home\\ann\\a.mp3", "/media/usb", roots),
              "\\media\\usb\\home\\ann\\a.mp3");
    EXPECT_EQ(replaceme("\\media\\a.mp3", "/mnt/x", roots), "\\mnt\\x\\media\\a.mp3");
}

}  // namespace
}  // namespace zvx::test
