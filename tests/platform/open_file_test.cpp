#include "platform/open_file.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "platform/file_faults.h"
#include "platform/file_io.h"
#include "support/file_error_number.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

TEST(OpenFile, AWriteThatFailsPartWayLeavesNoPieceOfALine) {
    test::TempFolder folder;
    const auto path = folder / "lines";
    test::WriteAll(path, "old\r\n");
    OpenFile file(path);
    {
        // Half of the bytes reach the disk: "one" whole and "tw" of the next line.
        InjectedFileFault full(FileFault::Write, 1, ENOSPC);
        EXPECT_EQ(test::ErrorNumberOf(
                      [&] { file.append("one\r\ntwo\r\nthree\r\n", OpenFile::Keep::WholeLines); }),
                  61);
        EXPECT_TRUE(full.fired());
    }
    EXPECT_EQ(file.size(), 10u);
    EXPECT_EQ(test::ReadAll(path), "old\r\none\r\n");
    {
        InjectedFileFault failing(FileFault::Write, 1, EIO);
        EXPECT_EQ(
            test::ErrorNumberOf([&] { file.append("four\r\nfive\r\n", OpenFile::Keep::Nothing); }),
            57);
    }
    EXPECT_EQ(test::ReadAll(path), "old\r\none\r\n");
    file.append("two\r\n");
    EXPECT_EQ(test::ReadAll(path), "old\r\none\r\ntwo\r\n");
}

TEST(InjectedFileFault, FailsOnlyTheCountedOpeningForWritingAndNeverAReading) {
    test::TempFolder folder;
    const auto path = folder / "f";
    test::WriteAll(path, "abc");
    InjectedFileFault refused(FileFault::OpenForWriting, 2, EACCES);
    TouchFile(path);
    EXPECT_EQ(ReadFileBytes(path, 0, 3), "abc");
    EXPECT_FALSE(refused.fired());
    EXPECT_EQ(test::ErrorNumberOf([&] { WriteFileBytes(path, 0, "x"); }), 70);
    EXPECT_TRUE(refused.fired());
    WriteFileBytes(path, 0, "x");
    EXPECT_EQ(test::ReadAll(path), "xbc");
}

}  // namespace
}  // namespace zvx
