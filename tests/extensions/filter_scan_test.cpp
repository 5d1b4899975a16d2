#include "extensions/filter_scan.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace zvx::test {
namespace {

struct Filters : TestEnvironment {
    Filters() { std::filesystem::create_directory(folder / "PLUGINS"); }
    void declare(const std::string& name, const std::string& text) {
        WriteAll(folder / "PLUGINS" / name, text);
    }
};

TEST(FilterScan, TheBuiltInRowComesFirstAndANewerInterfaceIsRefused) {
    Filters env;
    env.declare("new.zvi", "<NAME>New\n<requires>999\n");
    env.declare("now.zvi", "<Name>Csv Reader\n<REQUIRES>110\n");
    env.declare("nameless.zvi", "<exe>x\n");
    env.declare("out.zve", "<name>Out\n");
    const std::vector<FilterRow> rows = ScanFilters(env.common, FilterKind::Import);
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].name, "ZVX-Importer (built-in)");
    EXPECT_EQ(rows[0].fileName, "*INTERNAL1*");
    EXPECT_EQ(rows[1].name, "Csv Reader");
    EXPECT_EQ(rows[1].fileName, "now.zvi");
    EXPECT_EQ(rows[1].requiredVersion, "110");
    ASSERT_EQ(env.screen.shown.size(), 1u);
    EXPECT_EQ(env.screen.shown[0].caption, "Version Error!");
    EXPECT_EQ(env.screen.shown[0].text,
              "ZVX-Extension-Interface seems to be too old for the extension <new.zvi> !\r\n"
              "Install the newest version of ZVX and try again!");
    EXPECT_EQ(ScanFilters(env.common, FilterKind::Export)[0].name, "ZVX-Exporter (built-in)");
}

TEST(FilterScan, DetailsJoinTheSuffixBlockAndFallBackToDefaults) {
    Filters env;
    env.declare("m3u.zve",
                "<EXE>Tools/M3U.sh\n<SUFFIX>\n *.m3u \n\n*.Pls\n</suffix>\n<Version>2\n");
    const FilterDetails details = ReadFilterDetails(env.common, FilterKind::Export, "m3u.zve");
    EXPECT_EQ(details.exe, "Tools/M3U.sh");
    EXPECT_EQ(details.fileTypes, "File Types: *.M3U *.PLS");
    EXPECT_EQ(details.description, "<no description>");
    EXPECT_EQ(details.copyright, "<no copyright>");
    EXPECT_EQ(details.version, "Version: 2");
    EXPECT_EQ(ReadFilterDetails(env.common, FilterKind::Import, "m3u.zve").exe, "");

    env.declare("bare.zvi", "<name>Bare\n");
    EXPECT_EQ(ReadFilterDetails(env.common, FilterKind::Import, "bare.zvi").fileTypes,
              "File Types:");
    EXPECT_EQ(ReadFilterDetails(env.common, FilterKind::Import, "bare.zvi").version,
              "<no version>");
    EXPECT_EQ(ReadFilterDetails(env.common, FilterKind::Import, "*INTERNAL1*").description,
              "Imports a part of a ZVX to the current ZVX-Folder");
}

}  // namespace
}  // namespace zvx::test
