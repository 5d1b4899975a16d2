#include <sys/stat.h>

#include <gtest/gtest.h>

#include <algorithm>

#include "fake_windows.h"
#include "platform/file_error.h"
#include "platform/file_io.h"
#include "store/write_protection.h"
#include "support/fault_loop.h"

namespace zvx {
namespace {

namespace fs = std::filesystem;
using test::ReadAll;
using test::WriteAll;

class SaveDocument : public ::testing::Test {
  protected:
    void SetUp() override {
        fs::create_directory(user);
        WriteAll(file, test::EmptyCatalogue());
    }
    void TearDown() override { EXPECT_EQ(bench.env.screen.unanswered(), 0u); }

    // Opens the user's file and changes its working copy.
    Document& OpenChanged() {
        bench.open(file);
        Document& document = bench.current();
        WriteAll(document.cfn, test::EmptyCatalogue() + "new entry\r\n");
        document.aender = true;
        return document;
    }
    size_t FilesIn(const fs::path& folder) {
        return static_cast<size_t>(std::distance(fs::directory_iterator(folder), {}));
    }

    test::LifecycleBench bench;
    fs::path user = bench.env.folder / "user";
    fs::path file = user / "a.zvx";
};

TEST_F(SaveDocument, ReplacesTheFileWithTheWorkingCopyAndAFailureKeepsTheOldOne) {
    Document& document = OpenChanged();
    bench.env.screen.statuses.clear();
    bench.lifecycle.SaveDoc(document);
    const std::string saved = ReadAll(document.cfn);
    EXPECT_EQ(ReadAll(file), saved);
    EXPECT_FALSE(document.aender);
    EXPECT_EQ(FilesIn(user), 1u);
    EXPECT_EQ(bench.env.screen.statuses, (std::vector<std::string>{"Saving ZVX...", ""}));

    // A working copy that has gone cannot be saved: the file and the change flag stay.
    fs::remove(document.cfn);
    document.aender = true;
    bench.lifecycle.SaveDoc(document);
    ASSERT_EQ(bench.env.screen.shown.size(), 1u);
    EXPECT_EQ(bench.env.screen.shown[0].text, "Unknown Error!");
    EXPECT_EQ(bench.env.screen.shown[0].icon, MsgIcon::Critical);
    EXPECT_EQ(ReadAll(file), saved);
    EXPECT_TRUE(document.aender);
    EXPECT_EQ(FilesIn(user), 1u);
}

// Whichever write of a save fails, the user's file keeps its old bytes whole.
TEST_F(SaveDocument, ASaveThatFailsAnywhereLeavesTheOldFileWhole) {
    Document& document = OpenChanged();
    const fs::path other = user / "b.zvx";
    for (bool saveAs : {false, true}) {
        const fs::path target = saveAs ? other : file;
        for (const test::FaultKind& fault : test::kFaultKinds) {
            EXPECT_GE(test::ForEachFault([&](int n) {
                          WriteAll(file, "old a");
                          WriteAll(other, "old b");
                          document.aender = true;
                          bench.env.screen.shown.clear();
                          if (saveAs)
                              bench.env.screen.answerFileDialog({{other.string()}, false});
                          InjectedFileFault armed(fault.kind, n, fault.err);
                          saveAs ? bench.lifecycle.SaveAsDoc(document)
                                 : bench.lifecycle.SaveDoc(document);
                          EXPECT_EQ(document.aender, armed.fired());
                          EXPECT_EQ(std::ranges::count(bench.env.screen.shown, "Unknown Error!",
                                                       &test::Shown::text),
                                    armed.fired() ? 1 : 0);
                          EXPECT_EQ(ReadAll(target), armed.fired() ? (saveAs ? "old b" : "old a")
                                                                   : ReadAll(document.cfn));
                          EXPECT_EQ(FilesIn(user), 2u);
                          return armed.fired();
                      }),
                      1);
        }
    }
}

TEST_F(SaveDocument, NeverSavedDocumentGoesToTheDialogWhereCancelKeepsItAndANameIsTaken) {
    bench.env.common.lastSavePath = "/saves";
    for (int i = 0; i < 3; ++i)
        bench.lifecycle.LoadNewDoc();
    Document& document = bench.current();
    bench.env.screen.answerFileDialog({});
    bench.lifecycle.SaveDoc(document);

    ASSERT_EQ(bench.env.screen.fileDialogs.size(), 1u);
    const FileDialogRequest& request = bench.env.screen.fileDialogs[0];
    EXPECT_EQ(request.title, "ZVX-Explorer - Save ZVX...");
    EXPECT_EQ(request.fileName, "Document 3.zvx");
    EXPECT_EQ(request.startFolder, "/saves");
    EXPECT_EQ(document.view->caption(), "Document 3");
    EXPECT_TRUE(document.aender);

    // Save as adds the extension and takes the new name.
    bench.env.screen.answerFileDialog({{(user / "out").string()}, false});
    bench.lifecycle.SaveAsDoc(document);
    EXPECT_EQ(document.view->caption(), (user / "out.zvx").string());
    EXPECT_EQ(ReadAll(user / "out.zvx"), test::EmptyCatalogue());
    EXPECT_EQ(bench.recent, std::vector<std::string>{(user / "out.zvx").string()});
    EXPECT_FALSE(document.aender);
    EXPECT_EQ(bench.env.common.lastSavePath, user.string());

    bench.env.screen.answerFileDialog({{(user / "dot.").string()}, false});
    bench.lifecycle.SaveAsDoc(document);
    EXPECT_EQ(document.view->caption(), (user / "dot.zvx").string());
}

TEST_F(SaveDocument, SaveAsStartsInTheDocumentsFolderOnlyFromTheApplicationFolder) {
    Document& document = OpenChanged();
    bench.env.common.lastSavePath = bench.env.folder.path().string() + "/";
    bench.env.screen.answerFileDialog({});
    bench.lifecycle.SaveAsDoc(document);
    bench.env.common.lastSavePath = "/elsewhere";
    bench.env.screen.answerFileDialog({});
    bench.lifecycle.SaveAsDoc(document);
    ASSERT_EQ(bench.env.screen.fileDialogs.size(), 2u);
    EXPECT_EQ(bench.env.screen.fileDialogs[0].startFolder, user.string());
    EXPECT_EQ(bench.env.screen.fileDialogs[0].fileName, "a.zvx");
    EXPECT_EQ(bench.env.screen.fileDialogs[1].startFolder, "/elsewhere");
}

TEST_F(SaveDocument, WrongExtensionOrAKeptProtectionBringsTheDialogBack) {
    Document& document = OpenChanged();
    auto other = user / "b.zvx";
    WriteAll(other, "protected");
    SetReadOnly(other);

    bench.env.screen.answerFileDialog({{(user / "a.txt").string()}, false});
    bench.env.screen.answerFileDialog({{other.string()}, false});
    bench.env.screen.answerMessage(MsgAnswer::No);
    bench.env.screen.answerFileDialog({});
    bench.lifecycle.SaveAsDoc(document);

    EXPECT_EQ(bench.env.screen.fileDialogs.size(), 3u);
    EXPECT_EQ(bench.env.screen.shown[1].text, "The file MUST have the extension \".zvx\" !");
    EXPECT_FALSE(fs::exists(user / "a.txt"));
    EXPECT_EQ(ReadAll(other), "protected");
    EXPECT_TRUE(IsReadOnly(other));
    EXPECT_EQ(document.view->caption(), file.string());
    EXPECT_TRUE(document.aender);
}

TEST(CopyFileSafely, KeepsTheTargetsModeAndFollowsALink) {
    test::TempFolder folder;
    WriteAll(folder / "new", "new");
    WriteAll(folder / "old", "old");
    ::chmod((folder / "old").c_str(), 0640);
    fs::create_symlink(folder / "old", folder / "link");

    CopyFileSafely(folder / "new", folder / "link");
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(ReadAll(folder / "old"), "new");
    EXPECT_EQ(fs::status(folder / "old").permissions(),
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    EXPECT_EQ(ReadAll(folder / "new"), "new");

    EXPECT_THROW(CopyFileSafely(folder / "missing", folder / "old"), FileError);
    EXPECT_EQ(ReadAll(folder / "old"), "new");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 3);
}

}  // namespace
}  // namespace zvx
