// The pieces of the start and wait protocol that need no program to run: command lines,
// the program lookup, wait modes, call strings, event calls, menu items, hand-over files.

#include <gtest/gtest.h>

#include "common/text_case.h"
#include "extensions/addon_call.h"
#include "extensions/addon_menus.h"
#include "extensions/extension_command.h"
#include "extensions/hand_over.h"
#include "extensions/wait_mode.h"
#include "support/temp_folder.h"

namespace zvx::test {
namespace {

using Words = std::vector<std::string>;

TEST(ExtensionCommand, WordsFollowTheShellsQuotingWithNothingExpanded) {
    EXPECT_EQ(ShellWords("  a.sh   b\tc "), (Words{"a.sh", "b", "c"}));
    EXPECT_EQ(ShellWords("'a b' \"c \\\" d\" e\\ f"), (Words{"a b", "c \" d", "e f"}));
    EXPECT_EQ(ShellWords("'a\\b' \"a\\b\" $HOME *"), (Words{"a\\b", "a\\b", "$HOME", "*"}));
    EXPECT_EQ(ShellWords("x '' \"open"), (Words{"x", "", "open"}));
    EXPECT_EQ(ShellWords("   "), Words{});
}

TEST(ExtensionCommand, TheUpperCasedProgramIsFoundWithoutRegardToCase) {
    TempFolder folder;
    const auto plugins = folder / "PLUGINS";
    std::filesystem::create_directories(plugins / "Tools");
    WriteAll(plugins / "Tools" / "Run.sh", "");
    EXPECT_EQ(ExtensionArguments("TOOLS/RUN.SH -X 'A B'", plugins),
              (Words{(plugins / "Tools" / "Run.sh").string(), "-X", "A B"}));
    // An absolute path is looked up from the root, component by component.
    const std::string upper = UpperCase((plugins / "tools" / "run.sh").string());
    EXPECT_EQ(ExtensionArguments(upper, "/elsewhere"),
              Words{(plugins / "Tools" / "Run.sh").string()});
    // What fits nothing stays as written, so that the start tells it is missing.
    EXPECT_EQ(ExtensionArguments("\\MISSING.SH", plugins),
              Words{(plugins / "MISSING.SH").string()});
}

TEST(WaitModes, TimedWaitsAreAcceptedAbove10UpTo10000Milliseconds) {
    using Kind = WaitMode::Kind;
    for (const auto& [modal, kind, ms] :
         std::vector<std::tuple<std::string, Kind, int>>{{"yes", Kind::Lock, 0},
                                                         {"", Kind::Lock, 0},
                                                         {"FAST", Kind::Lock, 0},
                                                         {"t10", Kind::Illegal, 0},
                                                         {"t11", Kind::Timed, 11},
                                                         {"T10000", Kind::Timed, 10000},
                                                         {"t10001", Kind::Illegal, 0},
                                                         {"T5000   ", Kind::Timed, 5000},
                                                         {"tx", Kind::Illegal, 0},
                                                         {"no", Kind::None, 0},
                                                         {"maybe", Kind::None, 0}}) {
        const WaitMode wait = ParseWaitMode(modal);
        EXPECT_EQ(wait.kind, kind) << modal;
        EXPECT_EQ(wait.milliseconds, ms) << modal;
        EXPECT_EQ(wait.fast, modal == "FAST") << modal;
    }
}

TEST(AddOnCalls, TheCallStringSplitsAtTheFirstDashAndKeepsTheCommandWhole) {
    const std::string call = AddOnCallString("T5000", "REFRESH#", "C:\\A-B\\TOOL.EXE");
    EXPECT_EQ(call, "T5000   REFRESH#-C:\\A-B\\TOOL.EXE");
    const AddOnCall parts = SplitAddOnCall(call);
    EXPECT_EQ(parts.modal, "T5000");
    EXPECT_EQ(parts.events, "REFRESH#");
    EXPECT_EQ(parts.command, "C:\\A-B\\TOOL.EXE");
    EXPECT_EQ(AddOnCallString("VERYLONGMODE", "", "X"), "VERYLONG-X");
    EXPECT_EQ(SplitAddOnCall("VERYLONG-X").events, "");
}

TEST(AddOnCalls, TheEventLoopStopsOnAShortOrHashlessRemainder) {
    EXPECT_EQ(EventCalls("REFRESH#LISTREFRESH#"), (Words{"REFRESH", "LISTREFRESH"}));
    EXPECT_EQ(EventCalls("REFRESH#X"), Words{"REFRESH"});
    EXPECT_EQ(EventCalls("REFRESH#A#"), Words{"REFRESH"});
    EXPECT_EQ(EventCalls("REFRESH#AB#"), (Words{"REFRESH", "AB"}));
    EXPECT_EQ(EventCalls(" refresh #  #tocreset#"), (Words{"REFRESH", "TOCRESET"}));
    EXPECT_EQ(EventCalls("A#"), Words{"A"});
    EXPECT_EQ(EventCalls("REFRESH"), Words{});
}

TEST(AddOnMenus, EachSectionGetsOneSeparatorAndUnknownSectionsStillCount) {
    auto addOn = [](const std::string& menu, const std::string& caption) {
        ExtensionDeclaration d;
        d.menu = menu;
        d.caption = caption;
        d.exe = "X.SH";
        d.modal = "NO";
        return d;
    };
    const std::vector<AddOnMenuItem> items =
        AddOnMenuItems({addOn("FOLDER", "a"), addOn("NOWHERE", "b"), addOn("SELECT", "c"),
                        addOn("FOLDER", "d"), addOn("addons", "e")});
    ASSERT_EQ(items.size(), 3u);
    EXPECT_EQ(items[0].key, "entryaddons(0)");
    EXPECT_EQ(items[0].parentKey, "pathmnuTOP");
    EXPECT_TRUE(items[0].firstOfSection);
    EXPECT_EQ(items[1].key, "entryaddons(2)");
    EXPECT_EQ(items[1].separatorKey, "folderaddsep");
    EXPECT_TRUE(items[1].firstOfSection);
    EXPECT_EQ(items[2].key, "entryaddons(3)");
    EXPECT_FALSE(items[2].firstOfSection);
    EXPECT_EQ(items[2].callString, "NO      -X.SH");
}

TEST(HandOver, ADocumentHandsOverItsFilesAndTheSearchWindowOnlyItsRows) {
    TestEnvironment env;
    HandOverFacts facts{false,
                        "/w/Document 1.tmp",
                        "/u/a.ZVX",
                        "Desc00000042",
                        true,
                        {"00000042\x01"
                         "a.mp3",
                         "00000042\x01"
                         "b.mp3"}};
    WriteHandOverFiles(env.common, "ZVXLOAD", facts);
    EXPECT_EQ(ReadAll(env.folder / "current.zvd"), "ZVXLOAD\r\n/w/Document 1.tmp\r\n/u/a.ZVX\r\n");
    EXPECT_EQ(ReadAll(env.folder / "selected.zvd"),
              "00000042\r\n1\r\n00000042\x01"
              "a.mp3\r\n00000042\x01"
              "b.mp3\r\n");

    facts.caption = "Document 1";
    facts.subView = false;
    WriteHandOverFiles(env.common, "ENTRYCOPY", facts);
    EXPECT_EQ(ReadAll(env.folder / "current.zvd"), "ENTRYCOPY\r\n/w/Document 1.tmp\r\n\r\n");
    EXPECT_EQ(ReadAll(env.folder / "selected.zvd").substr(0, 13), "00000042\r\n0\r\n");

    facts.searcher = true;
    facts.selectedTags = {
        "00000007\x01"
        "c.mp3"};
    WriteHandOverFiles(env.common, "ZVXREFRESHS", facts);
    EXPECT_EQ(ReadAll(env.folder / "current.zvd"), "ZVXREFRESHS\r\n\r\n\r\n");
    EXPECT_EQ(ReadAll(env.folder / "selected.zvd"),
              "\r\n1\r\n00000007\x01"
              "c.mp3\r\n");
}

}  // namespace
}  // namespace zvx::test
