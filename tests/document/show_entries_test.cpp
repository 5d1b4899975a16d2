#include <gtest/gtest.h>

#include <chrono>

#include "document/show_entries.h"
#include "support/catalogue_bytes.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

using test::CatalogueBytes;
using test::EntryLineOf;

const std::vector<test::FolderSpec> kFolders = {{"Music\\Rock\\", "", 10, "00000001"},
                                                {"MUSIC\\", "", 10, "00000000"},
                                                {"Music2\\", "", 10, "00000002"},
                                                {"Music\\Rock\\Live\\", "", 10, "00000003"},
                                                {"Empty\\", "", 10, "00000004"}};

struct ListingBench {
    test::TestEnvironment env;
    std::filesystem::path file = env.folder / "Document 1.tmp";
    ViewBuffer buffer;
    std::vector<std::string> events;

    ListingBench() {
        env.common.onPlugStart = [this](const std::string& name) { events.push_back(name); };
    }
    void write(const std::vector<std::string>& entries,
               const std::vector<test::FolderSpec>& folders = kFolders) {
        test::WriteAll(file, CatalogueBytes(folders, entries));
    }
    std::vector<std::string> list(const std::string& id, const std::string& fullPath,
                                  bool sub = false, bool hasFolders = true) {
        const EntryRows rows =
            ShowEntries(env.common, file, {hasFolders, id, fullPath, sub}, buffer);
        std::vector<std::string> lines;
        for (size_t row = 0; row < rows.size(); ++row)
            lines.emplace_back(rows.line(row));
        return lines;
    }
    // The file date moves on, as after a change of the document.
    void touch() {
        auto time = std::filesystem::last_write_time(file);
        std::filesystem::last_write_time(file, time + std::chrono::seconds(2));
    }
};

const std::string kRock1 = EntryLineOf("00000001", {"r1.mp3"});
const std::string kTop = EntryLineOf("00000000", {"top.mp3"});
const std::string kSibling = EntryLineOf("00000002", {"sibling.mp3"});
const std::string kLive = EntryLineOf("00000003", {"live.mp3"});
const std::string kRock2 = EntryLineOf("00000001", {"r2.mp3"});

TEST(ShowEntries, PlainPassListsTheFolderInFileOrderAndSkipsShortLines) {
    ListingBench bench;
    bench.write({kRock1, "0000000", kTop, "00000001", kRock2, ""});
    EXPECT_EQ(bench.list("00000001", "Music\\Rock"),
              (std::vector<std::string>{kRock1, "00000001", kRock2}));
    EXPECT_EQ(bench.env.screen.statuses,
              (std::vector<std::string>{"Searching and Showing Entries...", ""}));
    EXPECT_EQ(bench.events, std::vector<std::string>{"ZVXREFRESHL"});
    EXPECT_EQ(bench.env.common.progressValue, 0);
    EXPECT_TRUE(bench.env.screen.shown.empty());
    // A folder without entries of its own lists nothing.
    EXPECT_TRUE(bench.list("00000004", "Empty").empty());
    // Without buffering every listing is full.
    EXPECT_EQ(bench.list("00000001", "Music\\Rock").size(), 3u);
    EXPECT_FALSE(bench.buffer.BufferValid);

    // Nothing to list in an empty document, without folders, or when the working copy
    // has gone; the listing without folders says nothing but fires its event.
    bench.write({});
    EXPECT_TRUE(bench.list("00000000", "Music").empty());
    bench.write({kTop}, {});
    bench.env.screen.statuses.clear();
    bench.events.clear();
    EXPECT_TRUE(bench.list("", "", false, false).empty());
    EXPECT_TRUE(bench.env.screen.statuses.empty());
    EXPECT_EQ(bench.events, std::vector<std::string>{"ZVXREFRESHL"});
    std::filesystem::remove(bench.file);
    EXPECT_TRUE(bench.list("00000000", "Music").empty());
}

TEST(ShowEntries, SubViewListsTheFolderAndAllBelowButNoSibling) {
    ListingBench bench;
    bench.write({kRock1, kTop, kSibling, kLive, kRock2});
    // The path is compared without regard to case: "MUSIC\" is the selected folder.
    EXPECT_EQ(bench.list("00000000", "Music", true),
              (std::vector<std::string>{kRock1, kTop, kLive, kRock2}));
    EXPECT_EQ(bench.env.screen.statuses,
              (std::vector<std::string>{"Preparing Sub-View...", "Searching and Showing Entries...",
                                        ""}));
    EXPECT_EQ(bench.list("00000001", "music\\rock", true),
              (std::vector<std::string>{kRock1, kLive, kRock2}));
    EXPECT_EQ(bench.list("00000002", "Music2", true), std::vector<std::string>{kSibling});
}

TEST(ShowEntries, ViewBufferMakesTheSecondListingOfAnUnchangedDocumentEmpty) {
    ListingBench bench;
    bench.env.common.settings.allowViewBuffering = true;
    bench.write({kRock1, kTop, kRock2});

    EXPECT_EQ(bench.list("00000001", "Music\\Rock").size(), 2u);
    EXPECT_TRUE(bench.buffer.BufferValid);
    EXPECT_EQ(bench.buffer.BufferCount, 4);
    EXPECT_EQ(bench.env.screen.statuses.front(),
              "Searching and Showing Entries and Updating View-Buffer...");

    bench.env.screen.statuses.clear();
    EXPECT_TRUE(bench.list("00000001", "Music\\Rock").empty());
    EXPECT_TRUE(bench.list("00000000", "Music", true).empty());
    EXPECT_EQ(bench.env.screen.statuses.front(), "Searching and Showing Entries (using Buffer)...");

    bench.touch();
    EXPECT_EQ(bench.list("00000001", "Music\\Rock").size(), 2u);
}

TEST(ShowEntries, The64000thLineGivesUpTheBufferAndListsInFull) {
    ListingBench bench;
    bench.env.common.settings.allowViewBuffering = true;
    std::vector<std::string> entries(63999, kTop);
    bench.write(entries);
    EXPECT_EQ(bench.list("00000000", "Music").size(), 63999u);
    EXPECT_TRUE(bench.env.screen.shown.empty());
    EXPECT_TRUE(bench.buffer.BufferValid);
    // A count above 32767 does not fit the 16-bit count, which keeps its old value.
    EXPECT_EQ(bench.buffer.BufferCount, 0);

    entries.push_back(kRock1);
    bench.write(entries);
    bench.touch();
    bench.events.clear();
    bench.env.screen.statuses.clear();
    std::vector<std::string> rows = bench.list("00000001", "Music\\Rock");
    EXPECT_EQ(rows, std::vector<std::string>{kRock1});
    ASSERT_EQ(bench.env.screen.shown.size(), 1u);
    EXPECT_EQ(bench.env.screen.shown[0].caption, "");
    EXPECT_EQ(bench.env.screen.shown[0].icon, MsgIcon::Critical);
    EXPECT_EQ(bench.env.screen.shown[0].text,
              "View-Buffering is not possible, because of too many ZVX-entries.\r"
              "Please reduce the size of this ZVX-Document or disable\r"
              "the buffering-function in the options-menu!");
    EXPECT_EQ(bench.env.screen.statuses,
              (std::vector<std::string>{"Searching and Showing Entries and Updating View-Buffer...",
                                        "Searching and Showing Entries (Buffer Disabled)...",
                                        "Searching and Showing Entries and Updating View-Buffer...",
                                        ""}));
    EXPECT_EQ(bench.events, (std::vector<std::string>{"ZVXREFRESHL", "ZVXREFRESHL"}));
    EXPECT_FALSE(bench.buffer.BufferValid);
    EXPECT_EQ(bench.buffer.BufferCount, 1);
}

}  // namespace
}  // namespace zvx
