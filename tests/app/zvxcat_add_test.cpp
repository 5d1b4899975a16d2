#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "support/catalogue_bytes.h"
#include "tool_sandbox.h"

namespace zvx::test {
namespace {

namespace fs = std::filesystem;

const std::string kEmptyCatalogue("\x01\x00\x00\x00\x08\r\n", 7);
// An MPEG 1 header of 128 kbit/s, 44100 Hz, dual channel.
const std::string kMp3Header("\xFF\xFB\x90\x64", 4);

// The column indexes of ls.
constexpr size_t kName = 0, kSize = 1, kPath = 2, kTitle = 8, kArtist = 9, kLength = 18,
                 kBitrate = 19;

// A file that starts with the MP3 header, `size` bytes long in all, ending in `tail`.
void WriteMp3(const fs::path& path, uintmax_t size, const std::string& tail = "") {
    fs::create_directories(path.parent_path());
    WriteAll(path, kMp3Header);
    fs::resize_file(path, size - tail.size());
    std::ofstream(path, std::ios::binary | std::ios::app) << tail;
}

// An ID3v1 block with a title and nothing else.
std::string Id3v1Title(const std::string& title) {
    std::string block = "TAG" + title;
    block.resize(128, ' ');
    block[126] = block[127] = '\0';
    return block;
}

std::string CatalogueForm(const fs::path& path) {
    std::string text = path.string();
    std::replace(text.begin(), text.end(), '/', '\\');
    return text;
}

std::vector<std::string> Split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    size_t start = 0;
    for (size_t end; (end = text.find(separator, start)) != std::string::npos; start = end + 1)
        parts.push_back(text.substr(start, end - start));
    if (start < text.size())
        parts.push_back(text.substr(start));
    return parts;
}

// The cells of each entry that ls prints for the folder.
std::vector<std::vector<std::string>> Listed(const ToolSandbox& box, const std::string& file,
                                             const std::string& folder) {
    ToolResult listed = box.run({"ls", file, folder});
    EXPECT_EQ(listed.status, 0) << listed.err;
    std::vector<std::vector<std::string>> rows;
    for (const std::string& line : Split(listed.out, '\n'))
        rows.push_back(Split(line, '\t'));
    return rows;
}

// One column of the lines of `out`, such as the file names of ls or the paths of folders.
std::vector<std::string> Column(const std::string& out, size_t column) {
    std::vector<std::string> cells;
    for (const std::string& line : Split(out, '\n')) {
        std::vector<std::string> parts = Split(line, '\t');
        cells.push_back(column < parts.size() ? parts[column] : "(missing)");
    }
    return cells;
}

std::vector<std::string> Names(const ToolSandbox& box, const std::string& file,
                               const std::string& folder) {
    return Column(box.run({"ls", file, folder}).out, kName);
}

std::vector<std::string> FolderPaths(const ToolSandbox& box, const std::string& file) {
    return Column(box.run({"folders", file}).out, 0);
}

// The value of "key: value" in the output of info.
std::string InfoValue(const ToolSandbox& box, const std::string& file, const std::string& key) {
    const std::string out = "\n" + box.run({"info", file}).out;
    size_t at = out.find("\n" + key + ": ");
    if (at == std::string::npos)
        return "(missing)";
    at += key.size() + 3;
    return out.substr(at, out.find('\n', at) - at);
}

const std::string kMusicAndRock =
    CatalogueBytes({{"Music\\", "", 10, "00000000"}, {"Music\\Rock\\", "", 10, "00000001"}}, {});

TEST(ZvxcatAdd, AddsFilesToTheFolderGivenWithEitherSlashAndInAnyCase) {
    ToolSandbox box;
    WriteAll(box / "c.zvx", kMusicAndRock);
    WriteMp3(box / "in" / "a.mp3", 4'800'000);
    WriteMp3(box / "in" / "Band - Song.mp3", 1000);

    ToolResult plain = box.run({"add", "c.zvx", "Music/Rock", "in/a.mp3"});
    EXPECT_EQ(plain.status, 0) << plain.err;
    ToolResult detagged = box.run({"add", "c.zvx", "music\\rock", "in/Band - Song.mp3", "--detag"});
    EXPECT_EQ(detagged.status, 0) << detagged.err;

    EXPECT_EQ(Names(box, "c.zvx", "Music"), std::vector<std::string>{});
    auto rows = Listed(box, "c.zvx", "MUSIC/ROCK");
    ASSERT_EQ(rows.size(), 2u);
    ASSERT_EQ(rows[0].size(), 22u);
    EXPECT_EQ(rows[0][kName], "a.mp3");
    EXPECT_EQ(rows[0][kPath], CatalogueForm(box / "in"));
    // The stream is read always, the name is scanned only with --detag.
    EXPECT_EQ(rows[0][kLength], "5:00");
    EXPECT_EQ(rows[0][kBitrate], "128");
    EXPECT_EQ(rows[0][kTitle], "");
    ASSERT_EQ(rows[1].size(), 22u);
    EXPECT_EQ(rows[1][kTitle], "Song");
    EXPECT_EQ(rows[1][kArtist], "Band");

    // The private work folder is gone with the run.
    EXPECT_TRUE(fs::is_empty(box.tmpFolder()));
}

TEST(ZvxcatAdd, AFileAlreadyThereFollowsOnDuplicate) {
    ToolSandbox box;
    WriteAll(box / "c.zvx", kMusicAndRock);
    WriteMp3(box / "a.mp3", 4'800'000);
    ASSERT_EQ(box.run({"add", "c.zvx", "Music", "a.mp3"}).status, 0);
    const std::string once = ReadAll(box / "c.zvx");

    // Also the second row of the same run meets the line the first one appended.
    ToolResult kept =
        box.run({"add", "c.zvx", "Music", "a.mp3", "a.mp3", "--on-duplicate", "keep-all"});
    EXPECT_EQ(kept.status, 0) << kept.err;
    EXPECT_EQ(ReadAll(box / "c.zvx"), once);

    // Nobody to ask: the old entry stays, and the tool says so.
    ToolResult unanswered = box.run({"add", "c.zvx", "Music", "a.mp3"});
    EXPECT_EQ(unanswered.status, 0);
    EXPECT_NE(unanswered.err.find("taking \"keep-old\""), std::string::npos) << unanswered.err;
    EXPECT_EQ(ReadAll(box / "c.zvx"), once);

    fs::resize_file(box / "a.mp3", 16'000);
    ToolResult replaced = box.run({"add", "c.zvx", "Music", "a.mp3", "--on-duplicate=overwrite"});
    EXPECT_EQ(replaced.status, 0) << replaced.err;
    auto rows = Listed(box, "c.zvx", "Music");
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0][kSize], "000 000 016 000");
}

TEST(ZvxcatAdd, AVanishedFileIsSkippedOrEndsTheRunKeepingWhatWasAdded) {
    ToolSandbox box;
    WriteAll(box / "ignore.zvx", kMusicAndRock);
    WriteAll(box / "abort.zvx", kMusicAndRock);
    WriteMp3(box / "a.mp3", 1000);
    WriteMp3(box / "b.mp3", 1000);
    const std::vector<std::string> files = {"a.mp3", "gone.mp3", "b.mp3"};
    auto add = [&](const std::string& file, const std::string& onError) {
        std::vector<std::string> args = {"add", file, "Music"};
        args.insert(args.end(), files.begin(), files.end());
        args.insert(args.end(), {"--on-error", onError});
        return box.run(args);
    };

    ToolResult ignored = add("ignore.zvx", "ignore");
    EXPECT_EQ(ignored.status, 0) << ignored.err;
    EXPECT_NE(ignored.err.find("<The selected file was not found!>"), std::string::npos)
        << ignored.err;
    EXPECT_EQ(Names(box, "ignore.zvx", "Music"), (std::vector<std::string>{"a.mp3", "b.mp3"}));

    ToolResult aborted = add("abort.zvx", "abort");
    EXPECT_EQ(aborted.status, 0) << aborted.err;
    EXPECT_NE(aborted.err.find("Error.: Skipped Rest Of Adding-Procedure!\n"), std::string::npos)
        << aborted.err;
    EXPECT_EQ(Names(box, "abort.zvx", "Music"), std::vector<std::string>{"a.mp3"});
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
    EXPECT_EQ(Names(box, "c.zvx", "Music"), std::vector<std::string>{"a.mp3"});
}

// "./", "//" and ".." in a path argument are spelled away before the path is stored.
TEST(ZvxcatAdd, TheSameFileSpelledOtherwiseIsTheSameEntry) {
    ToolSandbox box;
    WriteAll(box / "c.zvx", kMusicAndRock);
    WriteMp3(box / "in" / "a.mp3", 1000);
    ToolResult added = box.run({"add", "c.zvx", "Music", "in/a.mp3", "./in/a.mp3", "in//a.mp3",
                                "in/../in/a.mp3", "--on-duplicate", "keep-all"});
    EXPECT_EQ(added.status, 0) << added.err;
    auto rows = Listed(box, "c.zvx", "Music");
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0][kPath], CatalogueForm(box / "in"));
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
    WriteAll(box / "c.zvx", kEmptyCatalogue);
    ToolResult added =
        box.run({"add-tree", "c.zvx", "disc", "--as-root", "--parent", "Disc", "--real-folders"});
    EXPECT_EQ(added.status, 0) << added.err;

    ToolResult folders = box.run({"folders", "c.zvx"});
    EXPECT_EQ(Column(folders.out, 0),
              (std::vector<std::string>{"Disc", "Disc\\a", "Disc\\a\\b", "Disc\\c"}));
    EXPECT_EQ(Column(folders.out, 2), (std::vector<std::string>{"4", "10", "10", "10"}));
    EXPECT_EQ(Column(folders.out, 3)[1], (box / "disc" / "a").string());
    EXPECT_EQ(Names(box, "c.zvx", "Disc"), std::vector<std::string>{"top.mp3"});
    EXPECT_EQ(Names(box, "c.zvx", "disc/a"), (std::vector<std::string>{"a1.mp3", "notes.txt"}));
    EXPECT_EQ(Names(box, "c.zvx", "Disc\\a\\b"), std::vector<std::string>{"b1.mp3"});
    EXPECT_EQ(InfoValue(box, "c.zvx", "entry lines"), "5");
    EXPECT_EQ(InfoValue(box, "c.zvx", "offset matches TOC end"), "yes");
    EXPECT_TRUE(fs::is_empty(box.tmpFolder()));

    // The folders are found again, also in another case, and every file is a duplicate.
    const std::string once = ReadAll(box / "c.zvx");
    for (const char* parent : {"Disc", "DISC"}) {
        ToolResult again = box.run({"add-tree", "c.zvx", "disc", "--parent", parent,
                                    "--real-folders", "--on-duplicate", "keep-all"});
        EXPECT_EQ(again.status, 0) << again.err;
        EXPECT_EQ(ReadAll(box / "c.zvx"), once) << parent;
    }
}

TEST(ZvxcatAddTree, OnlyFoldersThatStandForADirectoryReceiveFiles) {
    ToolSandbox box;
    MakeDisc(box);
    const std::string music = CatalogueBytes({{"Music\\", "", 10, "00000000"}}, {});

    // No folder for anything: nothing is added, and nothing is said.
    WriteAll(box / "none.zvx", music);
    ToolResult none = box.run({"add-tree", "none.zvx", "disc", "--as-root"});
    EXPECT_EQ(none.status, 0) << none.err;
    EXPECT_EQ(none.err, "");
    EXPECT_EQ(ReadAll(box / "none.zvx"), music);

    // Without a parental folder the files lying in the root itself have no folder.
    WriteAll(box / "real.zvx", music);
    EXPECT_EQ(box.run({"add-tree", "real.zvx", "disc", "--real-folders"}).status, 0);
    EXPECT_EQ(FolderPaths(box, "real.zvx"), (std::vector<std::string>{"Music", "a", "a\\b", "c"}));
    EXPECT_EQ(InfoValue(box, "real.zvx", "entry lines"), "4");

    // Under a folder without real folders the whole tree pours into that folder.
    WriteAll(box / "under.zvx", music);
    ToolResult under = box.run({"add-tree", "under.zvx", "disc", "--under", "MUSIC"});
    EXPECT_EQ(under.status, 0) << under.err;
    EXPECT_EQ(FolderPaths(box, "under.zvx"), std::vector<std::string>{"Music"});
    EXPECT_EQ(Names(box, "under.zvx", "Music"),
              (std::vector<std::string>{"top.mp3", "a1.mp3", "notes.txt", "b1.mp3", "notes.txt"}));
}

TEST(ZvxcatAddTree, APatternLimitsTheFilesButEveryDirectoryGetsItsFolder) {
    ToolSandbox box;
    MakeDisc(box);
    WriteAll(box / "c.zvx", kEmptyCatalogue);
    ToolResult added = box.run(
        {"add-tree", "c.zvx", "disc", "--parent", "Disc", "--real-folders", "--pattern", "*.MP3"});
    EXPECT_EQ(added.status, 0) << added.err;
    EXPECT_EQ(FolderPaths(box, "c.zvx"),
              (std::vector<std::string>{"Disc", "Disc\\a", "Disc\\a\\b", "Disc\\c"}));
    ToolResult all = box.run({"ls", "c.zvx", "Disc", "--sub"});
    EXPECT_EQ(Column(all.out, kName), (std::vector<std::string>{"top.mp3", "a1.mp3", "b1.mp3"}));
}

TEST(ZvxcatAddTree, AnAbortSkipsTheRestOfOneDirectoryOnly) {
    ToolSandbox box;
    WriteMp3(box / "tree" / "a" / "a1.mp3", 1000);
    // Its playing time overflows, which fails the file.
    WriteMp3(box / "tree" / "a" / "big.mp3", 600'000'000);
    WriteMp3(box / "tree" / "a" / "z.mp3", 1000);
    WriteMp3(box / "tree" / "b" / "b1.mp3", 1000);
    WriteAll(box / "c.zvx", kEmptyCatalogue);

    ToolResult added =
        box.run({"add-tree", "c.zvx", "tree", "--real-folders", "--on-error", "abort"});
    EXPECT_EQ(added.status, 0) << added.err;
    EXPECT_NE(added.err.find("Error.: Skipped File-Adding Of Directory " +
                             (box / "tree" / "a").string() + "!\n"),
              std::string::npos)
        << added.err;
    EXPECT_EQ(Names(box, "c.zvx", "a"), std::vector<std::string>{"a1.mp3"});
    EXPECT_EQ(Names(box, "c.zvx", "b"), std::vector<std::string>{"b1.mp3"});
}

TEST(ZvxcatAddTree, WrongUseChangesNothing) {
    ToolSandbox box;
    MakeDisc(box);
    const std::string music = CatalogueBytes({{"Music\\", "", 10, "00000000"}}, {});
    WriteAll(box / "c.zvx", music);
    for (const std::vector<std::string>& wrong :
         std::vector<std::vector<std::string>>{{"--under", "Music", "--as-root"},
                                               {"--top-icon", "99"},
                                               {"--sub-icon", "x"},
                                               {"--on-duplicate", "maybe"},
                                               {"--parent", "a\\b"}}) {
        std::vector<std::string> args = {"add-tree", "c.zvx", "disc", "--real-folders"};
        args.insert(args.end(), wrong.begin(), wrong.end());
        ToolResult result = box.run(args);
        EXPECT_EQ(result.status, 2) << wrong[0] << ": " << result.err;
    }
    EXPECT_EQ(box.run({"add-tree", "c.zvx", "disc/top.mp3", "--real-folders"}).status, 1);
    EXPECT_EQ(box.run({"add-tree", "c.zvx", "disc", "--under", "Jazz"}).status, 1);
    EXPECT_EQ(ReadAll(box / "c.zvx"), music);
}

// A file in the catalogue: every CR is followed by LF and every LF follows a CR.
bool OnlyWholeLineEnds(const std::string& bytes) {
    for (size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] == '\r' && (i + 1 == bytes.size() || bytes[i + 1] != '\n'))
            return false;
        if (bytes[i] == '\n' && (i == 0 || bytes[i - 1] != '\r'))
            return false;
    }
    return true;
}

// The lines of the TOC: from behind the five header bytes to the empty line.
size_t TocLineCount(const std::string& bytes) {
    std::vector<std::string> lines = Split(bytes.substr(5), '\n');
    auto end = std::find(lines.begin(), lines.end(), "\r");
    return end == lines.end() ? 0 : static_cast<size_t>(end - lines.begin());
}

TEST(ZvxcatAddTree, LineBreaksAndSeparatorsInNamesAndTagsBecomeBlanks) {
    ToolSandbox box;
    fs::create_directories(box.appFolder());
    WriteAll(box.appFolder() / "zvx.ini", "PUBCASEMODE=0\r\n");
    const fs::path odd = box / "ctl" / "line\nbreak";
    WriteMp3(odd / "cr\rname\x01.mp3", 1000, Id3v1Title("one\r\ntwo"));
    WriteMp3(box / "ctl" / "plain.mp3", 1000);
    WriteAll(box / "c.zvx", kEmptyCatalogue);

    ToolResult added =
        box.run({"add-tree", "c.zvx", "ctl", "--parent", "Disc", "--real-folders", "--detag"});
    EXPECT_EQ(added.status, 0) << added.err;

    const std::string bytes = ReadAll(box / "c.zvx");
    EXPECT_TRUE(OnlyWholeLineEnds(bytes));
    EXPECT_EQ(TocLineCount(bytes), 6u);
    EXPECT_EQ(InfoValue(box, "c.zvx", "folders"), "2");
    EXPECT_EQ(InfoValue(box, "c.zvx", "entry lines"), "2");
    EXPECT_EQ(InfoValue(box, "c.zvx", "short lines"), "0");
    EXPECT_EQ(InfoValue(box, "c.zvx", "offset matches TOC end"), "yes");
    ToolResult raw = box.run({"ls", "c.zvx", "Disc", "--sub", "--raw"});
    std::vector<std::string> lines = Split(raw.out, '\n');
    ASSERT_EQ(lines.size(), 2u);
    for (const std::string& line : lines)
        EXPECT_EQ(std::count(line.begin(), line.end(), '\x01'), 22) << line;

    EXPECT_EQ(FolderPaths(box, "c.zvx"), (std::vector<std::string>{"Disc", "Disc\\line break"}));
    auto rows = Listed(box, "c.zvx", "Disc\\line break");
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0][kName], "cr name .mp3");
    EXPECT_EQ(rows[0][kPath], CatalogueForm(box / "ctl" / "line break"));
    EXPECT_EQ(rows[0][kTitle], "one  two");

    // A re-run finds the folder of the directory with the line break again.
    ToolResult again = box.run({"add-tree", "c.zvx", "ctl", "--parent", "Disc", "--real-folders",
                                "--detag", "--on-duplicate", "keep-all"});
    EXPECT_EQ(again.status, 0) << again.err;
    EXPECT_EQ(ReadAll(box / "c.zvx"), bytes);
}

}  // namespace
}  // namespace zvx::test
