#include "metadata/add_file_entry.h"

#include <sys/stat.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <string>
#include <vector>

#include "id3_block.h"
#include "metadata/file_error_dialog.h"
#include "platform/catalogue_path.h"
#include "support/catalogue_bytes.h"
#include "support/entry_lines.h"
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
    std::vector<std::string> lines() const { return test::FolderLines(cfn, kId); }
    // The one line of the folder.
    std::string only() const {
        const std::vector<std::string> all = lines();
        EXPECT_EQ(all.size(), 1u);
        return all.empty() ? "" : all[0];
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
};

// An MP3 file of 16000 bytes from its header on, and an ID3v1 block padded with blanks.
std::string Mp3Bytes(const std::string& title, const std::string& artist, unsigned char track,
                     unsigned char genre) {
    std::string bytes("\xFF\xFB\x90\x64", 4);
    bytes.resize(16000, '\0');
    const test::Id3Block tag{"TAG",         title, artist, "Album", "1999",
                             "tag comment", track, genre,  ' '};
    return bytes + tag.bytes();
}

TEST(AddFileEntry, RecordsTheFileFactsInCatalogueForm) {
    AddFixture f;
    auto path = f.file("Notes.TXT", "hello");
    std::filesystem::permissions(path, std::filesystem::perms::owner_write,
                                 std::filesystem::perm_options::remove);
    f.env.common.settings.caseMode = 2;
    f.add(path);
    const std::string line = f.only();
    // The extension as the content lookup read it.
    EXPECT_EQ(test::Fields(line, {1, 2, 3, 5, 8, 12, 15, 20, 21}),
              "Notes.txt|5|" + CataloguePathFromNative(f.medium.string()) +
                  "|1|Document: Text|<unknown>|00|0|0|");
    EXPECT_TRUE(std::regex_match(test::Fields(line, {7}), std::regex(R"(\d\d-\d\d-\d{4}\|)")));
    EXPECT_EQ(f.env.changedCalls, 1);
    // Not "<Unknown Content Type>": the lookup's own miss reads "unknown" in the entry.
    f.add(f.file("x.unknownext", "x"));
    EXPECT_EQ(test::Fields(f.lines().at(1), {8}), "unknown|");
}

TEST(AddFileEntry, ZeroLengthFilesAreSkippedSilentlyUnlessWanted) {
    AddFixture f;
    auto empty = f.file("empty.mp3", "");
    f.add(empty);
    EXPECT_TRUE(f.lines().empty());
    EXPECT_TRUE(f.env.screen.shown.empty());

    f.env.common.settings.addNullSizedFiles = true;
    f.add(empty);
    // The stream reader's failure path.
    EXPECT_EQ(test::Fields(f.only(), {2, 19, 20, 21}), "0||0|0|");
}

TEST(AddFileEntry, Mp3WithoutDetaggingKeepsOnlyTheStream) {
    AddFixture f;
    f.env.common.settings.defaultComment = "from box 3";
    f.add(f.file("Band - Song.mp3", Mp3Bytes("Title", "Artist", 4, 17)), false);
    EXPECT_EQ(test::Fields(f.only(), {8, 9, 10, 12, 17, 19, 20, 21, 22}),
              "Audio: Album|||<unknown>|From Box 3|0:01|128|44100|Dual Channel|");
}

TEST(AddFileEntry, TheTagWinsAndTheScanFillsItsGaps) {
    AddFixture f;
    f.env.common.settings.caseMode = 0;
    f.add(f.file("Band - Song.mp3", Mp3Bytes("Tagged Title", "", 31, 17)));
    // Track 31 is no track, and the name has none.
    EXPECT_EQ(test::Fields(f.only(), {9, 10, 11, 12, 15, 16, 17}),
              "Tagged Title|Band|Album|Rock|00|1999|tag comment|");
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
    // The album is the folder's name.
    EXPECT_EQ(test::Fields(lines[0], {9, 10, 11}), "Song|Band|medium|");
    EXPECT_EQ(test::Fields(lines[1], {8, 9, 10}), "Audio: Single|||");
}

TEST(AddFileEntry, AFileThatIsGoneOrNotRegularAsksAndIgnoreSkipsIt) {
    AddFixture f;
    std::filesystem::create_directory(f.medium / "folder");
    ASSERT_EQ(::mkfifo((f.medium / "pipe.mp3").c_str(), 0600), 0);
    for (const char* name : {"gone.mp3", "folder", "pipe.mp3"}) {
        f.env.screen.answerMessage(MsgAnswer::Ignore);
        f.add(f.medium / name);
    }
    EXPECT_TRUE(f.lines().empty());
    EXPECT_FALSE(f.env.common.AbortAdding);
    const std::vector<test::Shown>& shown = f.env.screen.shown;
    ASSERT_EQ(shown.size(), 3u);
    for (const test::Shown& box : shown) {
        EXPECT_EQ(box.caption, "ZVX - Error!!!");
        EXPECT_EQ(box.buttons, MsgButtons::AbortRetryIgnore);
    }
    EXPECT_EQ(shown[0].text,
              "The following error occured during the File-Operation:\r"
              "<The selected file was not found!>\r"
              "Maybe you changed the device, renamed or deleted the file...\r"
              "How do you want to proceed?");
    // A directory or a FIFO is never opened.
    EXPECT_NE(shown[1].text.find("<Error while accessing a directory!>"), std::string::npos);
    EXPECT_NE(shown[2].text.find("<Error while accessing a directory!>"), std::string::npos);
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
    const std::vector<std::string> lines = test::FolderLines(cfn, kId);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(test::Fields(lines[0], {2}), "10|");
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
