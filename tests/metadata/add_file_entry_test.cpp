#include "metadata/add_file_entry.h"

#include <sys/stat.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <string>
#include <vector>

#include "metadata/file_error_dialog.h"
#include "platform/catalogue_path.h"
#include "store/entry_line.h"
#include "store/folder_listing.h"
#include "support/catalogue_bytes.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

constexpr const char* kId = "00000000";

// A catalogue with one folder, and a medium folder beside it for the files.
struct AddFixture {
    AddFixture() {
        test::WriteAll(cfn, test::CatalogueBytes({{"Music\\", "", 10, kId}}, {}));
        std::filesystem::create_directory(medium);
    }
    std::vector<std::string> lines() const {
        std::vector<std::string> out;
        ListFolderEntries(cfn, kId, [&](std::string_view line) { out.emplace_back(line); });
        return out;
    }
    EntryFields only() {
        stored = lines();
        EXPECT_EQ(stored.size(), 1u);
        return stored.empty() ? EntryFields{} : SplitEntryLine(stored[0]);
    }
    std::filesystem::path file(const std::string& name, const std::string& bytes) {
        std::filesystem::path path = medium / name;
        test::WriteAll(path, bytes);
        return path;
    }
    void add(const std::filesystem::path& path, bool detag = true) {
        AddFileEntry(env.common, cfn, path, kId, detag, true);
    }

    test::TestEnvironment env;
    std::filesystem::path cfn = env.folder / "doc.zvd";
    std::filesystem::path medium = env.folder / "medium";
    std::vector<std::string> stored;
};

// 128 bytes of an ID3v1 block.
std::string Tag(const std::string& title, const std::string& artist, int track, int genre) {
    std::string block = "TAG";
    auto field = [&](std::string text, size_t size) {
        text.resize(size, ' ');
        block += text;
    };
    field(title, 30);
    field(artist, 30);
    field("Album", 30);
    field("1999", 4);
    field("tag comment", 29);
    block += static_cast<char>(track);
    block += static_cast<char>(genre);
    return block;
}

std::string Mp3Bytes(const std::string& tag) {
    std::string bytes("\xFF\xFB\x90\x64", 4);
    bytes.resize(16000, '\0');
    return bytes + tag;
}

TEST(AddFileEntry, RecordsTheFileFactsInCatalogueForm) {
    AddFixture f;
    auto path = f.file("Notes.TXT", "hello");
    std::filesystem::permissions(path, std::filesystem::perms::owner_write,
                                 std::filesystem::perm_options::remove);
    f.env.common.settings.caseMode = 2;
    f.add(path);
    EntryFields e = f.only();
    EXPECT_EQ(e[1], "Notes.txt");  // the extension as the content lookup read it
    EXPECT_EQ(e[2], "5");
    EXPECT_EQ(e[3], CataloguePathFromNative(f.medium.string()));
    EXPECT_EQ(e[5], "1");
    EXPECT_TRUE(std::regex_match(std::string(e[7]), std::regex(R"(\d\d-\d\d-\d{4})")));
    EXPECT_EQ(e[8], "Document: Text");
    EXPECT_EQ(e[12], "<unknown>");
    EXPECT_EQ(e[15], "00");
    EXPECT_EQ(e[20], "0");
    EXPECT_EQ(e[21], "0");
    EXPECT_EQ(f.env.changedCalls, 1);
    // Not "<Unknown Content Type>": the lookup's own miss reads "unknown" in the entry.
    f.add(f.file("x.unknownext", "x"));
    EXPECT_EQ(SplitEntryLine(f.lines().at(1))[8], "unknown");
}

TEST(AddFileEntry, ZeroLengthFilesAreSkippedSilentlyUnlessWanted) {
    AddFixture f;
    auto empty = f.file("empty.mp3", "");
    f.add(empty);
    EXPECT_TRUE(f.lines().empty());
    EXPECT_TRUE(f.env.screen.shown.empty());

    f.env.common.settings.addNullSizedFiles = true;
    f.add(empty);
    EntryFields e = f.only();
    EXPECT_EQ(e[2], "0");
    EXPECT_EQ(e[20], "0");  // the stream reader's failure path
    EXPECT_EQ(e[21], "0");
    EXPECT_EQ(e[19], "");
}

TEST(AddFileEntry, Mp3WithoutDetaggingKeepsOnlyTheStream) {
    AddFixture f;
    f.env.common.settings.defaultComment = "from box 3";
    f.add(f.file("Band - Song.mp3", Mp3Bytes(Tag("Title", "Artist", 4, 17))), false);
    EntryFields e = f.only();
    EXPECT_EQ(e[8], "Audio: Album");
    EXPECT_EQ(e[9], "");
    EXPECT_EQ(e[10], "");
    EXPECT_EQ(e[12], "<unknown>");
    EXPECT_EQ(e[17], "From Box 3");
    EXPECT_EQ(e[20], "128");
    EXPECT_EQ(e[21], "44100");
    EXPECT_EQ(e[22], "Dual Channel");
    EXPECT_EQ(e[19], "0:01");
}

TEST(AddFileEntry, TheTagWinsAndTheScanFillsItsGaps) {
    AddFixture f;
    f.env.common.settings.caseMode = 0;
    f.add(f.file("Band - Song.mp3", Mp3Bytes(Tag("Tagged Title", "", 31, 17))));
    EntryFields e = f.only();
    EXPECT_EQ(e[9], "Tagged Title");
    EXPECT_EQ(e[10], "Band");
    EXPECT_EQ(e[11], "Album");
    EXPECT_EQ(e[12], "Rock");
    EXPECT_EQ(e[16], "1999");
    EXPECT_EQ(e[17], "tag comment");
    EXPECT_EQ(e[15], "00");  // track 31 is no track, and the name has none
}

TEST(AddFileEntry, SoundFilesAreScannedOnlyWhenDetagged) {
    AddFixture f;
    f.env.common.settings.caseMode = 0;
    f.env.common.settings.defaultAudioType = "Audio: Single";
    auto wav = f.file("Band - Song.wav", "RIFF");
    f.add(wav, true);
    f.add(f.file("Other - Tune.wav", "RIFF"), false);
    std::vector<std::string> lines = f.lines();
    ASSERT_EQ(lines.size(), 2u);
    EntryFields scanned = SplitEntryLine(lines[0]);
    EXPECT_EQ(scanned[9], "Song");
    EXPECT_EQ(scanned[10], "Band");
    EXPECT_EQ(scanned[11], "medium");  // the folder's name
    EntryFields plain = SplitEntryLine(lines[1]);
    EXPECT_EQ(plain[8], "Audio: Single");
    EXPECT_EQ(plain[9], "");
    EXPECT_EQ(plain[10], "");
}

TEST(AddFileEntry, AVanishedFileAsksAndIgnoreSkipsIt) {
    AddFixture f;
    f.env.screen.answerMessage(MsgAnswer::Ignore);
    f.add(f.medium / "gone.mp3");
    ASSERT_EQ(f.env.screen.shown.size(), 1u);
    const test::Shown& box = f.env.screen.shown[0];
    EXPECT_EQ(box.caption, "ZVX - Error!!!");
    EXPECT_EQ(box.text,
              "The following error occured during the File-Operation:\r"
              "<The selected file was not found!>\r"
              "Maybe you changed the device, renamed or deleted the file...\r"
              "How do you want to proceed?");
    EXPECT_EQ(box.buttons, MsgButtons::AbortRetryIgnore);
    EXPECT_FALSE(f.env.common.AbortAdding);
    EXPECT_TRUE(f.lines().empty());
}

TEST(AddFileEntry, ADirectoryOrAFifoIsNoEntryButAnErrorToPassOver) {
    AddFixture f;
    std::filesystem::create_directory(f.medium / "folder");
    ASSERT_EQ(::mkfifo((f.medium / "pipe.mp3").c_str(), 0600), 0);
    f.env.screen.answerMessage(MsgAnswer::Ignore);
    f.env.screen.answerMessage(MsgAnswer::Ignore);
    f.add(f.medium / "folder");
    f.add(f.medium / "pipe.mp3");
    EXPECT_TRUE(f.lines().empty());
    ASSERT_EQ(f.env.screen.shown.size(), 2u);
    for (const test::Shown& box : f.env.screen.shown) {
        EXPECT_NE(box.text.find("<Error while accessing a directory!>"), std::string::npos);
        EXPECT_EQ(box.buttons, MsgButtons::AbortRetryIgnore);
    }
    EXPECT_FALSE(f.env.common.AbortAdding);
}

TEST(AddFileEntry, AbortSkipsTheFileAndTellsTheRun) {
    AddFixture f;
    f.env.common.setProgressMax(10);
    f.env.common.setProgress(4);
    f.env.screen.answerMessage(MsgAnswer::Abort);
    f.add(f.medium / "missing" / "gone.mp3");
    EXPECT_NE(f.env.screen.shown.at(0).text.find("<Path / directory not found!>"),
              std::string::npos);
    EXPECT_TRUE(f.env.common.AbortAdding);
    EXPECT_EQ(f.env.common.progressValue, 0);
    EXPECT_EQ(f.env.screen.statuses.back(), "");
}

// A screen that puts the file in place when the user is asked, then answers Retry.
class RetryingScreen : public test::ScriptedScreen {
  public:
    explicit RetryingScreen(std::filesystem::path file) : file_(std::move(file)) {}
    MsgAnswer message(const std::string& caption, const std::string& text, MsgButtons buttons,
                      MsgIcon icon) override {
        shown.push_back({"message", caption, text, buttons, icon});
        test::WriteAll(file_, "back again");
        return MsgAnswer::Retry;
    }

  private:
    std::filesystem::path file_;
};

TEST(AddFileEntry, RetryResumesAtTheFailedStep) {
    test::TempFolder folder;
    const std::filesystem::path file = folder / "late.txt";
    RetryingScreen screen(file);
    Common common(folder.path(), folder.path(), screen);
    const std::filesystem::path cfn = folder / "doc.zvd";
    test::WriteAll(cfn, test::CatalogueBytes({{"A\\", "", 10, kId}}, {}));
    AddFileEntry(common, cfn, file, kId, true, true);
    EXPECT_EQ(screen.shown.size(), 1u);
    std::vector<std::string> lines;
    ListFolderEntries(cfn, kId, [&](std::string_view line) { lines.emplace_back(line); });
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(SplitEntryLine(lines[0])[2], "10");
}

TEST(FileErrorDialog, AnUnexpectedErrorOffersRetryAndCancelAndCancelAborts) {
    test::TestEnvironment env;
    env.common.AbortAdding = true;
    env.screen.answerMessage(MsgAnswer::Cancel);
    EXPECT_EQ(FileErrorDialog(env.common, 6), kErrorAbort);
    EXPECT_FALSE(env.common.AbortAdding);
    EXPECT_EQ(env.screen.shown.at(0).buttons, MsgButtons::RetryCancel);
    EXPECT_EQ(env.screen.shown.at(0).text,
              "The following error occured during the File-Operation:\r"
              "<Unexpected Error (6) !>\rWhat the h... have you done???\r"
              "How do you want to proceed?");
}

}  // namespace
}  // namespace zvx
