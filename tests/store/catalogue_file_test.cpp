#include <gtest/gtest.h>

#include "platform/file_error.h"
#include "store/catalogue_info.h"
#include "store/catalogue_rewrite.h"
#include "store/entry_offset.h"
#include "store/new_catalogue.h"
#include "store/toc.h"
#include "support/catalogue_bytes.h"
#include "support/fault_loop.h"
#include "support/file_error_number.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

using test::ReadAll;
using test::WriteAll;

const std::string kEmptyCatalogue("\x01\x00\x00\x00\x08\r\n", 7);

// Adds a folder the way every TOC change does: copy, change, replace.
void AddFolder(const Common& common, const std::filesystem::path& file, const TocGroup& added) {
    CatalogueRewrite rewrite(common, file);
    TocGroup group;
    while (rewrite.nextTocGroup(group))
        rewrite.writeTocGroup(group);
    rewrite.writeTocGroup(added);
    rewrite.endToc();
    std::string_view line;
    while (rewrite.nextEntryLine(line))
        rewrite.writeLine(line);
    rewrite.finish(true);
}

TEST(CatalogueFile, NewCatalogueIsSevenBytesAndItsFirstFolderMovesTheEntryOffsetTo25) {
    test::TestEnvironment env;
    auto file = env.folder / "new.zvx";
    WriteAll(file, "old content that must go");
    CreateCatalogue(env.common, file);
    EXPECT_EQ(ReadAll(file), kEmptyCatalogue);
    EXPECT_EQ(ReadEntryOffset(file), 8u);
    EXPECT_GE(env.changedCalls, 1);

    // The first folder moves the entry offset to 25.
    AddFolder(env.common, file, MakeTocGroup("a\\", "", 10, "00000000"));
    EXPECT_EQ(ReadAll(file),
              std::string("\x01\x00\x00\x00\x19", 5) + "a\\\r\n2\r\n00000000\r\n\r\n");
    EXPECT_EQ(ReadEntryOffset(file), 25u);
    EXPECT_FALSE(std::filesystem::exists(env.folder / "tempfile.tmp"));
}

TEST(CatalogueFile, RewriteKeepsEntriesAndTheirOrder) {
    test::TestEnvironment env;
    auto file = env.folder / "b.zvx";
    const std::vector<std::string> entries = {test::EntryLineOf("00000001", {"x.mp3"}),
                                              test::EntryLineOf("00000000", {"y.mp3"})};
    WriteAll(file, test::CatalogueBytes({{"Music\\", "songs", 10, "00000001"}}, entries));
    AddFolder(env.common, file, MakeTocGroup("Photos\\", "", 11, "00000002"));
    EXPECT_EQ(ReadAll(file), test::CatalogueBytes({{"Music\\", "songs", 10, "00000001"},
                                                   {"Photos\\", "", 11, "00000002"}},
                                                  entries));
}

TEST(CatalogueFile, ARewriteThatFailsLeavesTheCatalogueAsItWas) {
    for (const test::FaultKind& fault : test::kFaultKinds) {
        EXPECT_GE(test::ForEachFault([&](int n) {
                      test::TestEnvironment env;
                      auto file = env.folder / "b.zvx";
                      WriteAll(file, test::CatalogueBytes({{"Music\\", "", 10, "00000001"}},
                                                          {test::EntryLineOf("00000001", {"x"})}));
                      const std::string before = ReadAll(file);
                      InjectedFileFault armed(fault.kind, n, fault.err);
                      if (test::ErrorNumberOf([&] {
                              AddFolder(env.common, file,
                                        MakeTocGroup("Photos\\", "", 11, "00000002"));
                          }))
                          EXPECT_TRUE(armed.fired());
                      if (armed.fired())
                          EXPECT_EQ(ReadAll(file), before);
                      else
                          EXPECT_EQ(ReadTocGroups(file).size(), 2u);
                      EXPECT_EQ(ReadEntryOffset(file), FindTocEnd(file));
                      return armed.fired();
                  }),
                  2);
    }
}

TEST(CatalogueFile, TocLinesNeverHoldLineBreaksOrSeparators) {
    TocGroup group = MakeTocGroup("a\nb\\", "two\r\nlines\x01", 10, "00000000");
    EXPECT_EQ(group.path, "a b\\");
    EXPECT_EQ(group.descriptionLine, "two  lines 2");
}

TEST(EntryOffset, TwoDigitsAByteMostSignificantFirstUpdatedToTheTocEnd) {
    EXPECT_EQ(EncodeEntryOffset(1234567), std::string("\x01\x17\x2D\x43", 4));
    EXPECT_EQ(DecodeEntryOffset(std::string("\x01\x17\x2D\x43", 4)), 1234567u);
    EXPECT_EQ(EncodeEntryOffset(123456789), EncodeEntryOffset(23456789));  // the format's limit
    // A byte over 99 gives only its last two digits: 255 -> "55".
    EXPECT_EQ(DecodeEntryOffset(std::string("\x00\x00\x00\xFF", 4)), 55u);
    EXPECT_EQ(DecodeEntryOffset(std::string("\x00\x01", 2)), 10000u);  // missing bytes are 0

    // The TOC's end is found by reading its groups.
    test::TestEnvironment env;
    auto file = env.folder / "c.zvx";
    std::string toc = "a\\\r\n2\r\n00000000\r\nb\\\n2\n00000001\n\n";
    WriteAll(file, std::string("\x01\x00\x00\x00\x00", 5) + toc + "entry line\r\n");
    UpdateEntryOffset(env.common, file);
    EXPECT_EQ(ReadEntryOffset(file), 6 + toc.size());
    // Without a closing empty line the TOC runs to the end of the file.
    WriteAll(file, std::string("\x01\x00\x00\x00\x00", 5) + "a\\\r\n2");
    EXPECT_EQ(FindTocEnd(file), 5u + 5u + 1u);
}

TEST(CatalogueInfo, DamagedFilesAreDescribedNotRefused) {
    test::TestEnvironment env;
    auto file = env.folder / "d.zvx";
    WriteAll(file, std::string("\x07\x00", 2));
    CatalogueInfo info = InspectCatalogue(file);
    EXPECT_EQ(info.formatVersion, 7);
    EXPECT_EQ(info.entryLines, 0u);

    // A wrong offset pointing into the TOC counts its lines as entry lines or short lines.
    std::string bytes = test::CatalogueBytes({{"Music\\", "", 10, "00000000"}},
                                             {test::EntryLineOf("00000000", {"a"})});
    bytes[4] = 6;
    WriteAll(file, bytes);
    info = InspectCatalogue(file);
    EXPECT_EQ(info.entryOffset, 6u);
    EXPECT_NE(info.entryOffset, info.tocEnd);
    EXPECT_EQ(info.folders, 1u);
    EXPECT_EQ(info.entryLines, 2u);  // "00000000" and the entry
    EXPECT_EQ(info.shortLines, 3u);  // "Music\", "2" and the empty line

    EXPECT_THROW(InspectCatalogue(env.folder / "missing.zvx"), FileError);
}

}  // namespace
}  // namespace zvx
