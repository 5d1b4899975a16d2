#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <gtest/gtest.h>

#include "platform/mount_table.h"
#include "platform/volume_label.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

namespace fs = std::filesystem;

// A mount table in which the test's own folder lies on a device file "usb stick", and a
// label folder naming that device and one more.
class VolumeLabel : public ::testing::Test {
  protected:
    void SetUp() override {
        fs::create_directories(folder / "dev");
        fs::create_directories(byLabel);
        test::WriteAll(folder / "dev" / "usb stick", "");
        test::WriteAll(folder / "dev" / "other", "");
        fs::create_symlink(folder / "dev" / "other", byLabel / "Other");
        fs::create_symlink("../dev/usb stick", byLabel / "My\\x20Music\\x2fRock");
        struct stat info;
        ASSERT_EQ(::stat(folder.path().c_str(), &info), 0);
        writeTable(std::to_string(major(info.st_dev)) + ":" + std::to_string(minor(info.st_dev)));
    }
    void writeTable(const std::string& device) {
        test::WriteAll(mountinfo,
                       "40 27 " + device + " / /media/x rw shared:1 master:2 - ext4 " +
                           (folder / "dev").string() +
                           "/usb\\040stick rw\n22 27 0:21 / /proc rw,relatime - proc proc rw\n");
    }

    test::TempFolder folder;
    fs::path mountinfo = folder / "mountinfo";
    fs::path byLabel = folder / "by-label";
};

TEST_F(VolumeLabel, TheDecodedLabelOfTheDeviceIsKeptUntilCleared) {
    VolumeLabels labels(mountinfo, byLabel);
    test::WriteAll(folder / "song.mp3", "x");
    EXPECT_EQ(labels.labelOf(folder / "song.mp3"), "My Music/Rock");
    writeTable("0:1");
    EXPECT_EQ(labels.labelOf(folder.path()), "My Music/Rock");
    labels.clear();
    EXPECT_EQ(labels.labelOf(folder.path()), "");
}

TEST_F(VolumeLabel, AnythingUnreadableGivesAnEmptyLabel) {
    EXPECT_EQ(VolumeLabels(mountinfo, byLabel).labelOf(folder / "gone"), "");
    EXPECT_EQ(VolumeLabels(folder / "none", byLabel).labelOf(folder.path()), "");
    EXPECT_EQ(VolumeLabels(mountinfo, folder / "none").labelOf(folder.path()), "");
    fs::remove(folder / "dev" / "usb stick");
    EXPECT_EQ(VolumeLabels(mountinfo, byLabel).labelOf(folder.path()), "");
}

TEST(MountTable, EscapesAreDecodedAndBrokenLinesLeftOut) {
    test::TempFolder folder;
    test::WriteAll(folder / "mountinfo",
                   "36 35 8:17 / /media/usb\\040stick\\134x rw - vfat /dev/sdb1 rw\n"
                   "garbage\n"
                   "37 35 x:1 / /mnt/a rw - ext4 /dev/sdc1 rw\n"
                   "38 35 0:50 / /mnt/b rw - tmpfs\n");
    std::vector<MountEntry> table = ReadMountTable(folder / "mountinfo");
    ASSERT_EQ(table.size(), 2u);
    EXPECT_EQ(table[0].device, makedev(8, 17));
    EXPECT_EQ(table[0].mountPath, "/media/usb stick\\x");
    EXPECT_EQ(table[0].source, "/dev/sdb1");
    EXPECT_EQ(table[1].mountPath, "/mnt/b");
    EXPECT_EQ(table[1].source, "");
    EXPECT_EQ(DecodeLabelName("A\\x20B\\xZZ\\x2"), "A B\\xZZ\\x2");
}

}  // namespace
}  // namespace zvx
