#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <functional>
#include <optional>

#include "platform/file_error.h"
#include "platform/file_facts.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

namespace fs = std::filesystem;

int ErrorNumberOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const FileError& error) {
        return error.number();
    }
    return 0;
}

// Sets the time zone for one test and puts the old one back.
class TimeZone {
  public:
    explicit TimeZone(const char* zone) {
        if (const char* old = std::getenv("TZ"))
            old_ = old;
        ::setenv("TZ", zone, 1);
        ::tzset();
    }
    ~TimeZone() {
        if (old_)
            ::setenv("TZ", old_->c_str(), 1);
        else
            ::unsetenv("TZ");
        ::tzset();
    }

  private:
    std::optional<std::string> old_;
};

void SetModificationTime(const fs::path& path, std::time_t when) {
    timespec times[2] = {{when, 0}, {when, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
}

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
    TimeZone zone("ZVX+10");  // ten hours behind UTC
    test::TempFolder folder;
    fs::path file = folder / "a.txt";
    test::WriteAll(file, "x");
    // 23:30 on the last day of 2002 here, already the first of January in UTC.
    std::tm local{};
    local.tm_year = 102;
    local.tm_mon = 11;
    local.tm_mday = 31;
    local.tm_hour = 23;
    local.tm_min = 30;
    local.tm_isdst = -1;
    SetModificationTime(file, std::mktime(&local));
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

}  // namespace
}  // namespace zvx
