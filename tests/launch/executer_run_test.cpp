#include "launch/executer_run.h"

#include <gtest/gtest.h>

#include <deque>
#include <set>
#include <utility>

#include "common/common.h"
#include "support/catalogue_bytes.h"
#include "support/scripted_screen.h"

namespace zvx::test {
namespace {

struct Row {
    bool selected;
    std::string tag;
};

class FakeList : public ExecuterList {
  public:
    long rowCount() const override { return static_cast<long>(rows.size()); }
    bool isSelected(long row) const override { return rows.at(row - 1).selected; }
    std::string tag(long row) const override { return rows.at(row - 1).tag; }
    std::vector<Row> rows;
};

class FakeOpener : public FileOpener {
  public:
    bool exists(const std::filesystem::path& file) override { return present.count(file) > 0; }
    void open(const std::filesystem::path& file) override { opened.push_back(file); }
    std::set<std::filesystem::path> present;
    std::vector<std::filesystem::path> opened;
};

// Answers each dialog from a script of (button, device); "Attempt!" that fails takes the
// next line of the script, as a person trying another drive.
class ScriptedDialog : public MissingFileDialog {
  public:
    MissingChoice showing(const MissingFile& file, const AttemptDevice& attempt) override {
        asked.push_back(file);
        while (!script.empty()) {
            auto [choice, device] = script.front();
            script.pop_front();
            if (choice != MissingChoice::Attempt || attempt(device))
                return choice;
        }
        ADD_FAILURE() << "unscripted dialog for " << file.path;
        return MissingChoice::SkipFile;
    }
    std::deque<std::pair<MissingChoice, std::string>> script;
    std::vector<MissingFile> asked;
};

// An entry on the disc "\media\CD1\music" (native /media/CD1/music).
Row Selected(const std::string& name, const std::string& path = "\\media\\CD1\\music") {
    return {true, EntryLineOf("00000001", {name, "5", path, "ID7", "0", "Holiday"})};
}

struct Executer {
    ScriptedScreen screen;
    Common common{"/nonexistent", "/nonexistent", screen};
    FakeList list;
    FakeOpener opener;
    ScriptedDialog dialog;
    ExecuterRun run{common, list, opener, dialog, DriveRoots{}};

    // yo, then fileme until the run ends; the number of steps.
    int runAll() {
        if (!run.yo())
            return 0;
        int steps = 1;
        while (run.fileme())
            ++steps;
        return steps;
    }
};

const std::filesystem::path kDisc = "/media/CD1/music";
const std::filesystem::path kCopy = "/media/usb/music";

TEST(ExecuterRun, SkipFileOnTheSecondOfFiveOpensTheOtherFourAndCountsAllFive) {
    Executer e;
    for (const char* name : {"1.mp3", "2.mp3", "3.mp3", "4.mp3", "5.mp3"}) {
        e.list.rows.push_back(Selected(name));
        if (name[0] != '2')
            e.opener.present.insert(kDisc / name);
    }
    e.list.rows.insert(e.list.rows.begin() + 1, Row{false, Selected("x.mp3").tag});
    e.dialog.script = {{MissingChoice::SkipFile, ""}};
    e.runAll();
    EXPECT_EQ(e.opener.opened,
              std::vector<std::filesystem::path>(
                  {kDisc / "1.mp3", kDisc / "3.mp3", kDisc / "4.mp3", kDisc / "5.mp3"}));
    EXPECT_EQ(e.run.doneCount(), 5);
    EXPECT_EQ(e.run.selectedCount(), 5);
    ASSERT_EQ(e.dialog.asked.size(), 1u);
    EXPECT_EQ(e.dialog.asked[0].path, "\\media\\CD1\\music\\2.mp3");
    EXPECT_EQ(e.dialog.asked[0].deviceId, "ID7");
    EXPECT_EQ(e.dialog.asked[0].deviceDescription, "Holiday");
}

TEST(ExecuterRun, SkipAllPassesOverLaterMissingFilesWhileTheOthersOpen) {
    Executer e;
    e.list.rows = {Selected("gone1.mp3"), Selected("here.mp3"), Selected("gone2.mp3")};
    e.opener.present = {kDisc / "here.mp3"};
    e.dialog.script = {{MissingChoice::SkipAll, ""}};
    e.runAll();
    EXPECT_EQ(e.opener.opened, std::vector<std::filesystem::path>({kDisc / "here.mp3"}));
    EXPECT_EQ(e.dialog.asked.size(), 1u);
    // The next run starts without Skip All; Abort All ends it at once.
    e.dialog.script = {{MissingChoice::AbortAll, ""}};
    EXPECT_EQ(e.runAll(), 1);
    EXPECT_EQ(e.opener.opened.size(), 1u);
    EXPECT_EQ(e.dialog.asked.size(), 2u);
}

TEST(ExecuterRun, AutoRedirectionIsRememberedAndTriedFirstForLaterMissingFiles) {
    Executer e;
    e.list.rows = {Selected("a.mp3"), Selected("b.mp3"), Selected("c.mp3")};
    e.opener.present = {kCopy / "a.mp3", kCopy / "b.mp3"};
    e.dialog.script = {{MissingChoice::Attempt, "/media/empty"},
                       {MissingChoice::Attempt, "/media/usb"},
                       {MissingChoice::SkipFile, ""}};
    e.screen.answerMessage(MsgAnswer::Yes);
    e.runAll();
    ASSERT_EQ(e.screen.shown.size(), 2u);
    EXPECT_EQ(e.screen.shown[0].caption, "No File!");
    EXPECT_EQ(e.screen.shown[0].text, "Sorry - File Still Not Found!");
    EXPECT_EQ(e.screen.shown[0].icon, MsgIcon::Information);
    EXPECT_EQ(e.screen.shown[1].caption, "Auto-Redirection");
    EXPECT_EQ(e.screen.shown[1].text,
              "File successfully found.\r\nShould the next non-locateable file(s) "
              "automatically be searched in this device?");
    // b.mp3 opens from the remembered device without a dialog; c.mp3 is missing there
    // too, so the dialog comes, and the device stays remembered.
    EXPECT_EQ(e.opener.opened,
              std::vector<std::filesystem::path>({kCopy / "a.mp3", kCopy / "b.mp3"}));
    ASSERT_EQ(e.dialog.asked.size(), 2u);
    EXPECT_EQ(e.dialog.asked[1].path, "\\media\\CD1\\music\\c.mp3");
    EXPECT_EQ(e.common.redirectDevice, "/media/usb");
}

TEST(ExecuterRun, RowsWithoutNameOrPathAndWindowsPathsAreNeverOpened) {
    Executer e;
    e.list.rows = {{false, Selected("a.mp3").tag}};
    EXPECT_FALSE(e.run.yo());
    // Rows without a name or path count, but pass without a word; a Windows path names no
    // file here and goes to the dialog.
    e.list.rows = {Selected("  "), Selected("a.mp3", " "), Selected(" b.mp3 ", "\\media\\CD1\\"),
                   Selected("a.mp3", "d:\\music")};
    e.opener.present = {"/media/CD1/b.mp3", "d:/music/a.mp3"};
    e.dialog.script = {{MissingChoice::SkipFile, ""}};
    e.runAll();
    EXPECT_EQ(e.opener.opened, std::vector<std::filesystem::path>({"/media/CD1/b.mp3"}));
    EXPECT_EQ(e.run.doneCount(), 4);
    EXPECT_EQ(e.dialog.asked.size(), 1u);
}

}  // namespace
}  // namespace zvx::test
