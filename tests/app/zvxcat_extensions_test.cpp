#include <gtest/gtest.h>

#include "tool_sandbox.h"

namespace zvx::test {
namespace {

TEST(ZvxcatExtensions, ListsEachKindAsTheScansTakeItAndTellsRefusalsOnStderr) {
    ToolSandbox box;
    const auto plugins = box.appFolder() / "PLUGINS";
    std::filesystem::create_directories(plugins);
    WriteAll(plugins / "log.zvp", "<EXE>log.sh\n<EVENTS>\nZVXLOAD\nzvxquit\n");
    WriteAll(plugins / "off.zvp", "<EXE>off.sh\n<EVENTS>\nZVXLOAD\n");
    WriteAll(plugins / "stats.zva",
             "<EXE>stats.sh\t-v\n<MENU>addons\n<CAPTION>Statistics\n<EVENTS>\nREFRESH\n");
    WriteAll(plugins / "broken.zva", "<EXE>b.sh\n<EVENTS>\nA#B\n");
    WriteAll(plugins / "csv.zvi", "<NAME>CSV\n<requires>100\n");
    WriteAll(plugins / "m3u.zve", "<NAME>M3U\n");
    WriteAll(box.appFolder() / "zvx.ini", "PLUGINDISABLEOFF.ZVP=YES\r\n");

    const ToolResult all = box.run({"extensions"});
    EXPECT_EQ(all.status, 0);
    EXPECT_EQ(all.out,
              "plugin\tlog.zvp\tLOG.SH\tZVXLOAD#ZVXQUIT#\tyes\n"
              "addon\tstats.zva\tSTATS.SH -V\tREFRESH#\tyes\tADDONS\tStatistics\n"
              "import\tcsv.zvi\tCSV\t100\n"
              "export\tm3u.zve\tM3U\t\n");
    EXPECT_NE(all.err.find("Skipping Plug-In: off.zvp(Disabled by User)"), std::string::npos);
    EXPECT_NE(all.err.find("Error: Illegal Function Call in Add-On \"broken.zva\" !"),
              std::string::npos)
        << all.err;

    EXPECT_EQ(box.run({"extensions", "--kind", "export"}).out, "export\tm3u.zve\tM3U\t\n");
    EXPECT_EQ(box.run({"extensions", "--kind", "filter"}).status, 2);
}

}  // namespace
}  // namespace zvx::test
