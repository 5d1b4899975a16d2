#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <gtest/gtest.h>

#include <regex>

#include "platform/drives.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> PathsOf(const std::vector<Drive>& drives) {
    std::vector<std::string> paths;
    for (const Drive& drive : drives)
        paths.push_back(drive.path);
    return paths;
}

// A mount table of a desktop system: the system's own mounts, removable media in an
// unsorted order, one of them mounted twice, a blank in a mount path.
class Drives : public ::testing::Test {
  protected:
    void SetUp() override {
        struct stat rootInfo;
        ASSERT_EQ(::stat("/", &rootInfo), 0);
        std::string root =
            std::to_string(major(rootInfo.st_dev)) + ":" + std::to_string(minor(rootInfo.st_dev));
        fs::create_directories(folder / "dev");
        fs::create_directories(folder / "by-label");
        fs::create_directories(home);
        test::WriteAll(folder / "dev" / "sda1", "");
        test::WriteAll(folder / "dev" / "sdb1", "");
        fs::create_symlink(folder / "dev" / "sda1", folder / "by-label" / "System");
        fs::create_symlink(folder / "dev" / "sdb1", folder / "by-label" / "USB\\x20STICK");
        const std::string table = R"(1 0 ROOT / / rw - ext4 DEV/sda1 rw
2 1 0:21 / /proc rw - proc proc rw
5 1 0:30 / /run/user/1000 rw - tmpfs tmpfs rw
6 1 7:1 / /snap/core/1 ro - squashfs /dev/loop1 ro
7 1 8:2 / /boot/efi rw - vfat /dev/sda2 rw
8 1 8:33 / /mnt/zeta rw - ext4 /dev/sdc1 rw
9 1 8:17 / /media/usb\040stick rw - vfat DEV/sdb1 rw
10 1 8:49 / /mnt/alpha rw - ext4 /dev/sdd1 rw
11 1 11:0 / /run/media/ann/CD ro - iso9660 /dev/sr0 ro
12 1 8:17 / /media/usb\040stick rw - vfat DEV/sdb1 rw
13 1 0:31 / /media rw - tmpfs tmpfs rw
)";
        test::WriteAll(mountinfo,
                       std::regex_replace(std::regex_replace(table, std::regex("ROOT"), root),
                                          std::regex("DEV"), (folder / "dev").string()));
    }
    std::vector<Drive> drives() const {
        return MountedDrives(mountinfo, home, folder / "by-label");
    }

    test::TempFolder folder;
    fs::path mountinfo = folder / "mountinfo";
    fs::path home = folder / "home";
};

TEST_F(Drives, RootHomeAndRemovableMountsEachOnceInTheirOrderAreTheDriveRoots) {
    std::vector<Drive> list = drives();
    EXPECT_EQ(PathsOf(list),
              (std::vector<std::string>{"/", home.string(), "/media/usb stick", "/mnt/alpha",
                                        "/mnt/zeta", "/run/media/ann/CD"}));
    ASSERT_EQ(list.size(), 6u);
    EXPECT_EQ(list[0].label, "System");
    EXPECT_EQ(list[2].label, "USB STICK");
    EXPECT_EQ(list[3].label, "");
    EXPECT_EQ(PathsOf(MountedDrives(mountinfo, "", folder / "by-label"))[1], "/media/usb stick");

    // A drive root is the mount path of a listed drive.
    EXPECT_TRUE(IsDriveRoot("/media/usb stick/", list));
    EXPECT_TRUE(IsDriveRoot("/", list));
    EXPECT_TRUE(IsDriveRoot(home, list));
    EXPECT_FALSE(IsDriveRoot("/media", list));
    EXPECT_FALSE(IsDriveRoot("/mnt/alpha/music", list));
    EXPECT_FALSE(IsDriveRoot("/proc", list));
}

}  // namespace
}  // namespace zvx
