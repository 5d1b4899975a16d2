#include <gtest/gtest.h>

#include "fake_windows.h"
#include "store/entry_offset.h"
#include "store/write_protection.h"

namespace zvx {
namespace {

using test::ReadAll;
using test::WriteAll;

class OpenDocument : public ::testing::Test {
  protected:
    void SetUp() override {
        std::filesystem::create_directory(bench.env.folder / "user");
        WriteAll(file, catalogue);
    }
    void TearDown() override { EXPECT_EQ(bench.env.screen.unanswered(), 0u); }

    // Nothing of a refused document is left: no window, no slot, no working copy.
    void ExpectNothingOpen() {
        EXPECT_TRUE(bench.windows.views.empty());
        EXPECT_EQ(bench.lifecycle.table().lowestFreeSlot(), 1);
        EXPECT_FALSE(std::filesystem::exists(bench.env.folder / "Document 1.tmp"));
        EXPECT_FALSE(bench.lifecycle.suppressSaveQuestion);
    }

    test::LifecycleBench bench;
    std::filesystem::path file = bench.env.folder / "user" / "a.zvx";
    std::string catalogue = test::EmptyCatalogue() + "entries";
};

TEST_F(OpenDocument, CopiesTheFileAndClosesWithoutAQuestion) {
    bench.open(file);
    Document& document = bench.current();
    EXPECT_EQ(document.view->caption(), file.string());
    EXPECT_FALSE(document.aender);
    EXPECT_EQ(ReadAll(document.cfn), catalogue);
    EXPECT_EQ(bench.recent, std::vector<std::string>{file.string()});
    EXPECT_EQ(bench.windows.active->refreshes, 1);
    EXPECT_TRUE(bench.env.common.pendingDocument.empty());

    bench.windows.closeView(bench.windows.active);
    EXPECT_TRUE(bench.env.screen.shown.empty());
    EXPECT_EQ(bench.events, (std::vector<std::string>{"ZVXLOAD", "ZVXCLOSE"}));
    ExpectNothingOpen();
    EXPECT_EQ(ReadAll(file), catalogue);
}

TEST_F(OpenDocument, StoreChangesMarkTheActiveDocument) {
    bench.open(file);
    UpdateEntryOffset(bench.env.common, bench.current().cfn);
    EXPECT_TRUE(bench.current().aender);
    EXPECT_EQ(ReadAll(file), catalogue);
}

TEST_F(OpenDocument, DialogsReadOnlyBoxProtectsTheFileButNotTheWorkingCopy) {
    bench.env.common.lastLoadPath = "/somewhere";
    bench.env.screen.answerFileDialog({{file.string()}, true});
    bench.lifecycle.LoadDoc();
    EXPECT_EQ(bench.env.screen.fileDialogs.at(0).startFolder, "/somewhere");
    EXPECT_EQ(bench.env.screen.statuses.at(0), "Showing \"Load ZVX\"-Dialogue...");
    EXPECT_EQ(bench.env.common.lastLoadPath, file.parent_path().string());
    EXPECT_TRUE(IsReadOnly(file));
    EXPECT_FALSE(IsReadOnly(bench.current().cfn));

    // A later save meets the protection; No keeps the file as it was.
    WriteAll(bench.current().cfn, "changed");
    bench.env.screen.answerMessage(MsgAnswer::No);
    bench.lifecycle.SaveDoc(bench.current());
    EXPECT_EQ(bench.env.screen.shown.back().text,
              "The file \"" + file.string() +
                  "\" is write-protected!\r\nWould you like to try to overwrite it and set its "
                  "mode to writeable?");
    EXPECT_EQ(bench.env.screen.shown.back().icon, MsgIcon::Question);
    EXPECT_EQ(ReadAll(file), catalogue);
    EXPECT_TRUE(IsReadOnly(file));

    // Yes gives the owner write permission back and saves.
    bench.env.screen.answerMessage(MsgAnswer::Yes);
    bench.lifecycle.SaveDoc(bench.current());
    EXPECT_EQ(ReadAll(file), "changed");
    EXPECT_FALSE(IsReadOnly(file));
}

TEST_F(OpenDocument, AlreadyOpenComparesWithoutCase) {
    bench.open(file);
    auto upper = bench.env.folder / "user" / "A.ZVX";
    bench.open(upper);
    ASSERT_EQ(bench.env.screen.shown.size(), 1u);
    EXPECT_EQ(bench.env.screen.shown[0].text,
              "The Document \"" + upper.string() + "\" is already open.");
    EXPECT_EQ(bench.windows.views.size(), 1u);
    EXPECT_EQ(bench.lifecycle.table().lowestFreeSlot(), 2);
}

TEST_F(OpenDocument, AWrongExtensionATooNewVersionOrAMissingFileIsRefused) {
    WriteAll(bench.env.folder / "user" / "a.txt", catalogue);
    WriteAll(bench.env.folder / "user" / "new.zvx", "\x02" + catalogue.substr(1));
    const struct {
        const char* name;
        const char* caption;
        const char* text;
        MsgIcon icon;
    } refusals[] = {
        {"a.txt", "Error", "The file MUST have the extension \".zvx\" !", MsgIcon::None},
        {"new.zvx", "ZVX-File-Version-Error",
         "The ZVX-file-format seems to be too new for this version of ZVX!\r\nCheck the file "
         "and visit our website for updates.",
         MsgIcon::Critical},
        {"gone.zvx", "Error",
         "An Error Occured while loading the ZVX!\r\nMake sure that the file does really exist "
         "and is a valid ZVX.",
         MsgIcon::Critical}};
    for (const auto& refusal : refusals) {
        bench.env.screen.shown.clear();
        bench.open(bench.env.folder / "user" / refusal.name);
        ASSERT_EQ(bench.env.screen.shown.size(), 1u) << refusal.name;
        EXPECT_EQ(bench.env.screen.shown[0].caption, refusal.caption);
        EXPECT_EQ(bench.env.screen.shown[0].text, refusal.text);
        EXPECT_EQ(bench.env.screen.shown[0].icon, refusal.icon);
        EXPECT_EQ(bench.env.screen.statuses.back(), "");
        ExpectNothingOpen();
    }
    EXPECT_TRUE(bench.recent.empty());

    // Older versions, and a file too short to have one, are accepted.
    WriteAll(file, std::string(1, '\0'));
    bench.open(file);
    EXPECT_EQ(bench.windows.views.size(), 1u);
}

}  // namespace
}  // namespace zvx
