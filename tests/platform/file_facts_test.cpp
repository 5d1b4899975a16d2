#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <ctime>
#include <set>
#include <utility>

#include "platform/file_error.h"
#include "platform/file_facts.h"
#include "platform/media_file.h"
#include "support/file_error_number.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

namespace fs = std::filesystem;
using test::ErrorNumberOf;

TEST(FileFacts, ReadOnlyIsTheMissingOwnerWriteBitOfTheTarget) {
    test::TempFolder folder;
    fs::path file = folder / "song.mp3";
    test::WriteAll(file, "x");
    fs::permissions(file, fs::perms::owner_read | fs::perms::group_write);
    EXPECT_TRUE(ReadFileFacts(file).readOnly);
    fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_FALSE(ReadFileFacts(file).readOnly);
    // A link, writable in itself, counts by the read-only file it leads to.
    fs::create_symlink(file, folder / "link.mp3");
    fs::permissions(file, fs::perms::owner_read);
    EXPECT_TRUE(ReadFileFacts(folder / "link.mp3").readOnly);
}

TEST(FileFacts, DateIsTheLocalModificationDateMonthFirst) {
    test::TempFolder folder;
    fs::path file = folder / "a.txt";
    test::WriteAll(file, "x");
    ::setenv("TZ", "ZVX+10", 1);  // ten hours behind UTC; no other test reads the zone
    ::tzset();
    // 23:30 on the last day of 2002 here, already the first of January in UTC.
    std::tm local{
        .tm_min = 30, .tm_hour = 23, .tm_mday = 31, .tm_mon = 11, .tm_year = 102, .tm_isdst = -1};
    const timespec when = {std::mktime(&local), 0}, times[2] = {when, when};
    ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
    EXPECT_EQ(ReadFileFacts(file).date, "12-31-2002");
}

TEST(FileFacts, AMissingFileOrFolderIsNamedByItsNumber) {
    test::TempFolder folder;
    EXPECT_EQ(ErrorNumberOf([&] { ReadFileFacts(folder / "gone.mp3"); }), 53);
    EXPECT_EQ(ErrorNumberOf([&] { ReadFileFacts(folder / "nodir" / "a.mp3"); }), 76);
}

TEST(FileFacts, AFolderWithoutPermissionIsAccessDenied) {
    if (::geteuid() == 0)
        GTEST_SKIP() << "the superuser reads every folder";
    test::TempFolder folder;
    fs::create_directory(folder / "closed");
    test::WriteAll(folder / "closed" / "a.mp3", "x");
    fs::permissions(folder / "closed", fs::perms::none);
    EXPECT_EQ(ErrorNumberOf([&] { ReadFileFacts(folder / "closed" / "a.mp3"); }), 70);
    fs::permissions(folder / "closed", fs::perms::owner_all);
}

TEST(FileFacts, OnlyARegularFileIsReadAndNothingElseIsOpened) {
    test::TempFolder folder;
    const fs::path fifo = folder / "pipe.mp3";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    fs::create_directory(folder / "dir.mp3");
    EXPECT_EQ(ErrorNumberOf([&] { ReadFileFacts(folder / "dir.mp3"); }), kNotAFileNumber);
    EXPECT_EQ(ErrorNumberOf([&] { ReadFileFacts(fifo); }), kNotAFileNumber);
    // Opening the FIFO would wait for a writer for ever.
    const MediaFile media(fifo);
    EXPECT_TRUE(media.exists());
    EXPECT_EQ(ErrorNumberOf([&] { media.readAt(0, 4); }), kNotAFileNumber);
    EXPECT_EQ(ErrorNumberOf([&] { MediaFile(folder / "dir.mp3").readAt(0, 4); }), kNotAFileNumber);

    // A name the system cannot resolve is a path error the user may pass over.
    fs::create_symlink("loop.mp3", folder / "loop.mp3");
    EXPECT_EQ(ErrorNumberOf([&] { ReadFileFacts(folder / "loop.mp3"); }), 75);
    EXPECT_EQ(ErrorNumberOf([&] { ReadFileFacts(folder / std::string(300, 'n')); }), 75);
}

TEST(FileError, EveryErrnoMapsByMeaningToANumberWhoseDialogOffersIgnore) {
    // ENOEXEC has no nearer meaning than 57.
    const std::pair<int, int> meanings[] = {
        {ENOENT, 53}, {ENOTDIR, 76}, {EACCES, 70},    {EIO, 57},          {EDQUOT, 61},
        {EMFILE, 55}, {ESTALE, 68},  {ENOMEDIUM, 71}, {ENAMETOOLONG, 75}, {ENOEXEC, 57}};
    for (auto [err, number] : meanings)
        EXPECT_EQ(ErrorNumberFromErrno(err), number) << "errno " << err;
    const std::set<int> offersIgnore{53, 55, 57, 61, 68, 70, 71, 75, 76};
    for (int err = 0; err < 200; ++err)
        EXPECT_TRUE(offersIgnore.count(ErrorNumberFromErrno(err))) << "errno " << err;
}

}  // namespace
}  // namespace zvx
