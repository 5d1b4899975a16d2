#include "extensions/extension_lists.h"

#include <gtest/gtest.h>

#include "extensions/extension_files.h"
#include "extensions/extension_info.h"
#include "extensions/options_scans.h"
#include "store/settings.h"
#include "support/temp_folder.h"

namespace zvx::test {
namespace {

struct Plugins : TestEnvironment {
    Plugins() { std::filesystem::create_directory(folder / "PLUGINS"); }
    void declare(const std::string& name, const std::string& text) {
        WriteAll(folder / "PLUGINS" / name, text);
    }
    std::vector<std::string> shownTexts;
    ScanTextSink sink() {
        return [this](const std::string& text) { shownTexts.push_back(text); };
    }
};

TEST(ExtensionLists, PlugInsAreListedInNameOrderWithoutTheDisabledAndTheRefused) {
    Plugins env;
    env.declare("b.zvp", "<EXE>b.sh\r\n<EVENTS>\r\nzvxload\r\nzvxquit\r\n");
    env.declare("A.ZVP", "<exe>/opt/a\n<modal>t500\n<events>\nENTRYCOPY\n");
    env.declare("c.Zvp", "<EXE>c.sh\n");
    env.declare("d.zvp", "<EXE>d.sh\n<EVENTS>\nX\n");
    env.declare("e.zva", "<EXE>e.sh\n");
    WriteSetting(env.common, "PLUGINDISABLEd.ZVP", "YES");

    const ExtensionListBuild build = BuildPlugInList(env.common, env.sink());
    EXPECT_EQ(ReadAll(env.folder / "pluglist.tmp"),
              "/OPT/A\r\nENTRYCOPY#\r\nT500\r\nB.SH\r\nZVXLOAD#ZVXQUIT#\r\nyes\r\n");
    EXPECT_EQ(env.shownTexts,
              (std::vector<std::string>{"Loading Plug-In: A.ZVP", "Loading Plug-In: b.zvp",
                                        "Loading Plug-In: c.Zvp", "Loading Plug-In: d.zvp",
                                        "Skipping Plug-In: d.zvp(Disabled by User)"}));
    ASSERT_EQ(env.screen.shown.size(), 1u);
    EXPECT_EQ(env.screen.shown[0].caption, "Error");
    EXPECT_EQ(env.screen.shown[0].text,
              "Insufficient or illegal Plug-In Declaration in: \"c.Zvp\" !\r\n"
              "ZVX will not load this Plug-In!");
    EXPECT_EQ(env.screen.shown[0].icon, MsgIcon::Critical);
    EXPECT_EQ(build.disabled, std::vector<std::string>{"d.zvp"});
    ASSERT_EQ(ReadPlugInList(env.common).size(), 2u);
    EXPECT_EQ(ReadPlugInList(env.common)[1].events, "ZVXLOAD#ZVXQUIT#");
}

TEST(ExtensionLists, AnAddOnRecordHasFiveLinesAndNeverALineBreak) {
    Plugins env;
    env.declare("x.zva", "<EXE>x\r.sh\n<MENU>addons\n<CAPTION>Re\rport\n");
    env.declare("y.zva", "<EXE>y\n<MENU>FILE\n<CAPTION>Y\n");
    WriteSetting(env.common, "ADDONDISABLEY.ZVA", "YES");
    BuildAddOnList(env.common, nullptr);
    EXPECT_EQ(ReadAll(env.folder / "addlist.tmp"), "ADDONS\r\nX .SH\r\nRe port\r\n\r\nyes\r\n");
    EXPECT_EQ(ReadAddOnList(env.common)[0].caption, "Re port");

    // No declarations, or no folder at all, leave an empty list.
    std::filesystem::remove_all(env.folder / "PLUGINS");
    BuildAddOnList(env.common, nullptr);
    EXPECT_EQ(ReadAll(env.folder / "addlist.tmp"), "");
}

TEST(ExtensionLists, TheOptionsScansListDisabledFilesAndStaySilentOnRefusals) {
    Plugins env;
    env.declare("tag.zva", "<EXE>t\n<MENU>ENTRY\n<CAPTION>Tagger\n");
    env.declare("named.zva", "<EXE>n\n<MENU>ENTRY\n<CAPTION>N\n<name>Nice Name\n");
    env.declare("bad.zva", "<EXE>b\n");
    WriteSetting(env.common, "ADDONDISABLETAG.ZVA", "YES");
    const std::vector<ExtensionRow> rows = Addini(env.common, env.sink());
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].name, "NICE NAME");
    EXPECT_EQ(rows[0].fileName, "NAMED.ZVA");
    EXPECT_EQ(ToggleCaption(rows[0]), "Disable");
    EXPECT_EQ(rows[1].name, "Tagger");
    EXPECT_EQ(rows[1].enabled, "NO");
    EXPECT_EQ(rows[1].icon, 2);
    EXPECT_EQ(ToggleCaption(rows[1]), "Enable");
    EXPECT_EQ(env.shownTexts.front(), "Scanning Add-On: bad.zva");
    EXPECT_TRUE(env.screen.shown.empty());
}

TEST(ExtensionLists, ConfigInfoRunsTheDeclaredCommandOrShowsTheBox) {
    Plugins env;
    env.declare("tool.zvp", "<Config>Setup.sh -q\n<NAME>Tool\n<version>1.2\n");
    EXPECT_EQ(ConfigInfo(env.common, "TOOL.ZVP", "config"), "        -Setup.sh -q");
    EXPECT_EQ(ConfigInfo(env.common, "TOOL.ZVP", "info"), std::nullopt);
    env.declare("tool.zvp", "<INFO>\n");
    EXPECT_EQ(ConfigInfo(env.common, "tool.zvp", "info"), "        -");
    EXPECT_EQ(ConfigInfo(env.common, "tool.zvp", "config"), std::nullopt);

    ASSERT_EQ(env.screen.shown.size(), 2u);
    EXPECT_EQ(env.screen.shown[0].caption, "ZVX-Extension-Info");
    EXPECT_EQ(env.screen.shown[0].text,
              "NAME: Tool\r\nDECLARATION-FILE: TOOL.ZVP\r\nCOPYRIGHT: <UNKNOWN>\r\n"
              "VERSION: 1.2\r\nDESCRIPTION: <UNKNOWN>");
    EXPECT_EQ(env.screen.shown[1].caption, "ZVX-Error");
    EXPECT_EQ(env.screen.shown[1].text, "This Extension is not configurable!");
}

}  // namespace
}  // namespace zvx::test
