#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "platform/directory_walk.h"
#include "support/file_error_number.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

namespace fs = std::filesystem;
using test::ErrorNumberOf;
using Names = std::vector<std::string>;

// A directory with sub-directories, files and the odd things a disk holds: links to a
// file, to a directory and to nothing, a fifo, and a directory named like a file.
class DirectoryWalk : public ::testing::Test {
  protected:
    void SetUp() override {
        fs::create_directories(elsewhere);
        fs::create_directories(root);
        test::WriteAll(elsewhere / "real.mp3", "x");
        for (const char* dir : {"b", "a", "C", "\xC3\xA4", "Zed", "folder.mp3"})
            fs::create_directory(root / dir);
        for (const char* file : {"x.MP3", "y.wav", "z.ogg", "noext"})
            test::WriteAll(root / file, "x");
        fs::create_directory_symlink(elsewhere, root / "linked");
        fs::create_symlink(elsewhere / "real.mp3", root / "link.mp3");
        fs::create_symlink(elsewhere / "gone.mp3", root / "dangling.mp3");
        fs::create_directory_symlink(elsewhere, root / "dirlink.mp3");
        ASSERT_EQ(::mkfifo((root / "pipe.mp3").c_str(), 0600), 0);
    }

    test::TempFolder folder;
    fs::path root = folder / "root";
    fs::path elsewhere = folder / "elsewhere";
};

TEST_F(DirectoryWalk, SubDirectoriesAreRealDirectoriesInByteOrder) {
    EXPECT_EQ(SubDirectoryNames(root, DeviceOf(root)),
              (Names{"C", "Zed", "a", "b", "folder.mp3", "\xC3\xA4"}));
    // Directories of another file system are not entered.
    EXPECT_EQ(SubDirectoryNames(root, DeviceOf(root) + 1), Names{});
}

TEST_F(DirectoryWalk, FilesAreRegularFilesOrLinksToOneUnderThePattern) {
    EXPECT_EQ(ListDirectory(root, DeviceOf(root), "*.mp3;*.WAV").files,
              (Names{"link.mp3", "x.MP3", "y.wav"}));
    EXPECT_EQ(ListDirectory(root, DeviceOf(root), "*.*").files,
              (Names{"link.mp3", "noext", "x.MP3", "y.wav", "z.ogg"}));
    EXPECT_EQ(ListDirectory(root / "a", DeviceOf(root), "*.*").files, Names{});
}

TEST_F(DirectoryWalk, AVanishedDirectoryIsAPathNotFound) {
    EXPECT_EQ(ErrorNumberOf([&] { SubDirectoryNames(root / "gone", 0); }), 76);
    EXPECT_EQ(
        ErrorNumberOf([&] { ListDirectory(root / "gone" / "deeper", DeviceOf(root), "*.*"); }), 76);
    EXPECT_EQ(ErrorNumberOf([&] { ListDirectory(root / "noext", DeviceOf(root), "*.*"); }), 76);
    EXPECT_EQ(ErrorNumberOf([&] { DeviceOf(root / "gone"); }), 53);
}

TEST_F(DirectoryWalk, AnUnreadableDirectoryIsAccessDenied) {
    if (::geteuid() == 0)
        GTEST_SKIP() << "the superuser reads every directory";
    fs::permissions(root / "a", fs::perms::none);
    EXPECT_EQ(ErrorNumberOf([&] { ListDirectory(root / "a", DeviceOf(root), "*.*"); }), 70);
    EXPECT_EQ(ErrorNumberOf([&] { SubDirectoryNames(root / "a", DeviceOf(root)); }), 70);
    fs::permissions(root / "a", fs::perms::owner_all);
}

}  // namespace
}  // namespace zvx
