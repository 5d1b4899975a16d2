#include <sys/stat.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "support/catalogue_bytes.h"
#include "tool_sandbox.h"

namespace zvx::test {
namespace {

namespace fs = std::filesystem;

const std::string kMusic = CatalogueBytes({{"Music\\", "", 10, "00000000"}}, {});
const std::string kMusicAndRock =
    CatalogueBytes({{"Music\\", "", 10, "00000000"}, {"Music\\Rock\\", "", 10, "00000001"}}, {});

// The column indexes of ls.
constexpr size_t kName = 0, kSize = 1, kPath = 2, kTitle = 8, kArtist = 9;

// A file that starts with an MPEG 1 header of 128 kbit/s, 44100 Hz, dual channel,
// `size` bytes long in all.
void WriteMp3(const fs::path& path, uintmax_t size) {
    fs::create_directories(path.parent_path());
    WriteAll(path, "\xFF\xFB\x90\x64");
    fs::resize_file(path, size);
}

// The cells of each line that the command prints.
std::vector<std::vector<std::string>> Rows(const ToolSandbox& box,
                                           const std::vector<std::string>& args) {
    ToolResult listed = box.run(args);
    EXPECT_EQ(listed.status, 0) << listed.err;
    std::vector<std::vector<std::string>> rows;
    std::istringstream lines(listed.out);
    for (std::string line, cell; std::getline(lines, line);) {
        std::istringstream cells(line);
        for (rows.emplace_back(); std::getline(cells, cell, '\t');)
            rows.back().push_back(cell);
    }
    return rows;
}

// The first cell of each line the command prints, such as the file names of ls.
std::vector<std::string> Column(const ToolSandbox& box, const std::vector<std::string>& args) {
    std::vector<std::string> cells;
    for (const std::vector<std::string>& row : Rows(box, args))
        cells.push_back(row.at(0));
    return cells;
}

void ExpectSuccess(const ToolResult& result) {
    EXPECT_EQ(result.status, 0) << result.err;
}

TEST(ZvxcatAdd, TakesTheFolderWithEitherSlashInAnyCaseAndSpellsPathsAway) {
    ToolSandbox box;
    WriteAll(box / "c.zvx", kMusicAndRock);
    WriteMp3(box / "in" / "a.mp3", 1000);
    WriteMp3(box / "in" / "Band - Song.mp3", 1000);
    ExpectSuccess(box.run({"add", "c.zvx", "Music/Rock", "in/a.mp3"}));
    ExpectSuccess(box.run({"add", "c.zvx", "music\\rock", "in/Band - Song.mp3", "--detag"}));
    // "./", "//" and ".." are gone before the path is stored: the same file again.
    ExpectSuccess(box.run({"add", "c.zvx", "MUSIC/ROCK", "./in/a.mp3", "in//a.mp3",
                           "in/../in/a.mp3", "--on-duplicate", "keep-all"}));

    EXPECT_EQ(Column(box, {"ls", "c.zvx", "Music"}), std::vector<std::string>{});
    auto rows = Rows(box, {"ls", "c.zvx", "Music/Rock"});
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0][kName], "a.mp3");
    std::string in = (box / "in").string();
    std::ranges::replace(in, '/', '\\');
    EXPECT_EQ(rows[0][kPath], in);
    // The name is scanned only with --detag.
    EXPECT_EQ(rows[0][kTitle], "");
    EXPECT_EQ(rows[1][kTitle], "Song");
    EXPECT_EQ(rows[1][kArtist], "Band");
    // The private work folder is gone with the run.
    EXPECT_TRUE(fs::is_empty(box.tmpFolder()));
}

TEST(ZvxcatAdd, AFileAlreadyThereFollowsOnDuplicate) {
    ToolSandbox box;
    WriteAll(box / "c.zvx", kMusic);
    WriteMp3(box / "a.mp3", 1000);
    ASSERT_EQ(box.run({"add", "c.zvx", "Music", "a.mp3"}).status, 0);
    const std::string once = ReadAll(box / "c.zvx");

    // Nobody to ask: the old entry stays, and the tool says so.
    ToolResult unanswered = box.run({"add", "c.zvx", "Music", "a.mp3"});
    EXPECT_EQ(unanswered.status, 0);
    EXPECT_NE(unanswered.err.find("taking \"keep-old\""), std::string::npos) << unanswered.err;
    EXPECT_EQ(ReadAll(box / "c.zvx"), once);

    fs::resize_file(box / "a.mp3", 16'000);
    ExpectSuccess(box.run({"add", "c.zvx", "Music", "a.mp3", "--on-duplicate=overwrite"}));
    auto rows = Rows(box, {"ls", "c.zvx", "Music"});
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0][kSize], "000 000 016 000");
}

TEST(ZvxcatAdd, AVanishedFileIsSkippedOrEndsTheRunKeepingWhatWasAdded) {
    ToolSandbox box;
    WriteMp3(box / "a.mp3", 1000);
    WriteMp3(box / "b.mp3", 1000);
    for (const std::string onError : {"ignore", "abort"}) {
        const std::string file = onError + ".zvx";
        WriteAll(box / file, kMusic);
        ToolResult result =
            box.run({"add", file, "Music", "a.mp3", "gone.mp3", "b.mp3", "--on-error", onError});
        EXPECT_EQ(result.status, 0) << result.err;
        const bool ignored = onError == "ignore";
        const std::string said = ignored ? "<The selected file was not found!>"
                                         : "Error.: Skipped Rest Of Adding-Procedure!\n";
        EXPECT_NE(result.err.find(said), std::string::npos) << result.err;
        const std::vector<std::string> kept = ignored ? std::vector<std::string>{"a.mp3", "b.mp3"}
                                                      : std::vector<std::string>{"a.mp3"};
        EXPECT_EQ(Column(box, {"ls", file, "Music"}), kept);
    }
}

TEST(ZvxcatAdd, OnlyRegularFilesBecomeEntriesAndIgnorePassesOverTheRest) {
    ToolSandbox box;
    WriteAll(box / "c.zvx", kMusic);
    WriteMp3(box / "n" / "a.mp3", 1000);
    ASSERT_EQ(::mkfifo((box / "pipe.mp3").c_str(), 0600), 0);
    fs::create_symlink("loop.mp3", box / "loop.mp3");
    ToolResult result = box.run({"add", "c.zvx", "Music", "n", "n/.", "n/..", "pipe.mp3",
                                 "loop.mp3", "n/a.mp3", "--on-error", "ignore"});
    ExpectSuccess(result);
    // "n/." and "n/.." name the "." and ".." that the list drops without a word; the
    // folder, the FIFO and the link loop are told and passed over.
    size_t told = 0;
    for (size_t at = 0;
         (at = result.err.find("<Error while accessing a directory!>", at)) != std::string::npos;
         ++at)
        ++told;
    EXPECT_EQ(told, 3u) << result.err;
    EXPECT_EQ(Column(box, {"ls", "c.zvx", "Music"}), std::vector<std::string>{"a.mp3"});
}

TEST(ZvxcatAdd, TheCatalogueIsReplacedOnlyAtTheEnd) {
    ToolSandbox box;
    WriteAll(box / "c.zvx", kMusicAndRock);
    WriteMp3(box / "a.mp3", 1000);
    auto refused = [&](const std::vector<std::string>& args, int status) {
        ToolResult result = box.run(args);
        EXPECT_EQ(result.status, status) << result.err;
        EXPECT_EQ(ReadAll(box / "c.zvx"), kMusicAndRock);
        return result.err;
    };
    EXPECT_NE(refused({"add", "c.zvx", "Jazz", "a.mp3"}, 1).find("no folder 'Jazz'"),
              std::string::npos);
    refused({"add", "c.zvx", "Music"}, 2);
    refused({"add", "c.zvx", "Music", "a.mp3", "--on-error", "retry"}, 2);
    refused({"add", "c.zvx", "Music", "a.mp3", "--on-duplicate", "maybe"}, 2);

    // The run went through on the working copy; keeping the write protection refuses it.
    fs::permissions(box / "c.zvx", fs::perms::owner_read | fs::perms::group_read);
    refused({"add", "c.zvx", "Music", "a.mp3"}, 1);
    fs::permissions(box / "c.zvx", fs::perms::owner_write, fs::perm_options::add);

    // The new catalogue is written beside and renamed onto it: a second name of the old
    // file still holds the old bytes.
    fs::create_hard_link(box / "c.zvx", box / "before.zvx");
    ASSERT_EQ(box.run({"add", "c.zvx", "Music", "a.mp3"}).status, 0);
    EXPECT_EQ(ReadAll(box / "before.zvx"), kMusicAndRock);
    EXPECT_EQ(Column(box, {"ls", "c.zvx", "Music"}), std::vector<std::string>{"a.mp3"});
}

// disc: top.mp3, a/a1.mp3, a/notes.txt, a/b/b1.mp3, c/notes.txt
void MakeDisc(const ToolSandbox& box) {
    WriteMp3(box / "disc" / "top.mp3", 1000);
    WriteMp3(box / "disc" / "a" / "a1.mp3", 1000);
    WriteAll(box / "disc" / "a" / "notes.txt", "notes");
    WriteMp3(box / "disc" / "a" / "b" / "b1.mp3", 1000);
    fs::create_directories(box / "disc" / "c");
    WriteAll(box / "disc" / "c" / "notes.txt", "notes");
}

TEST(ZvxcatAddTree, MirrorsTheTreeUnderAParentalFolderAndAReRunAddsNothing) {
    ToolSandbox box;
    MakeDisc(box);
    WriteAll(box / "c.zvx", CatalogueBytes({}, {}));
    ExpectSuccess(
        box.run({"add-tree", "c.zvx", "disc", "--as-root", "--parent", "Disc", "--real-folders"}));

    EXPECT_EQ(Column(box, {"folders", "c.zvx"}),
              (std::vector<std::string>{"Disc", "Disc\\a", "Disc\\a\\b", "Disc\\c"}));
    auto folders = Rows(box, {"folders", "c.zvx"});
    ASSERT_EQ(folders.size(), 4u);
    // The icons and descriptions the wizard gives by default.
    EXPECT_EQ(folders[0][2], "4");
    EXPECT_EQ(folders[3][2], "10");
    EXPECT_EQ(folders[1][3], (box / "disc" / "a").string());
    EXPECT_EQ(Column(box, {"ls", "c.zvx", "Disc", "--sub"}).size(), 5u);
    EXPECT_TRUE(fs::is_empty(box.tmpFolder()));

    const std::string once = ReadAll(box / "c.zvx");
    ExpectSuccess(box.run({"add-tree", "c.zvx", "disc", "--parent", "DISC", "--real-folders",
                           "--on-duplicate", "keep-all"}));
    EXPECT_EQ(ReadAll(box / "c.zvx"), once);
}

TEST(ZvxcatAddTree, AnAbortSkipsTheRestOfOneDirectoryOnly) {
    ToolSandbox box;
    WriteMp3(box / "tree" / "a" / "a1.mp3", 1000);
    // Its playing time overflows, which fails the file.
    WriteMp3(box / "tree" / "a" / "big.mp3", 600'000'000);
    WriteMp3(box / "tree" / "a" / "z.mp3", 1000);
    WriteMp3(box / "tree" / "b" / "b1.mp3", 1000);
    WriteAll(box / "c.zvx", CatalogueBytes({}, {}));

    ToolResult added =
        box.run({"add-tree", "c.zvx", "tree", "--real-folders", "--on-error", "abort"});
    EXPECT_EQ(added.status, 0) << added.err;
    EXPECT_NE(added.err.find("Error.: Skipped File-Adding Of Directory " +
                             (box / "tree" / "a").string() + "!\n"),
              std::string::npos)
        << added.err;
    EXPECT_EQ(Column(box, {"ls", "c.zvx", "a"}), std::vector<std::string>{"a1.mp3"});
    EXPECT_EQ(Column(box, {"ls", "c.zvx", "b"}), std::vector<std::string>{"b1.mp3"});
}

TEST(ZvxcatAddTree, WrongUseChangesNothingAndUnderAFolderThePatternsFilesPourIntoIt) {
    ToolSandbox box;
    MakeDisc(box);
    WriteAll(box / "c.zvx", kMusic);
    for (const std::vector<std::string>& wrong :
         std::vector<std::vector<std::string>>{{"--under", "Music", "--as-root"},
                                               {"--top-icon", "99"},
                                               {"--sub-icon", "x"},
                                               {"--parent", "a\\b"}}) {
        std::vector<std::string> args = {"add-tree", "c.zvx", "disc", "--real-folders"};
        args.insert(args.end(), wrong.begin(), wrong.end());
        ToolResult result = box.run(args);
        EXPECT_EQ(result.status, 2) << wrong[0] << ": " << result.err;
    }
    EXPECT_EQ(box.run({"add-tree", "c.zvx", "disc/top.mp3", "--real-folders"}).status, 1);
    EXPECT_EQ(box.run({"add-tree", "c.zvx", "disc", "--under", "Jazz"}).status, 1);
    EXPECT_EQ(ReadAll(box / "c.zvx"), kMusic);

    // Under a folder the files of the pattern pour into it.
    ExpectSuccess(box.run({"add-tree", "c.zvx", "disc", "--under", "MUSIC", "--pattern", "*.MP3"}));
    EXPECT_EQ(Column(box, {"folders", "c.zvx"}), std::vector<std::string>{"Music"});
    EXPECT_EQ(Column(box, {"ls", "c.zvx", "Music"}),
              (std::vector<std::string>{"top.mp3", "a1.mp3", "b1.mp3"}));
}

}  // namespace
}  // namespace zvx::test
