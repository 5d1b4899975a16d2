// The filter program as ZVX starts it: in the application folder, with ZVX_HOME set,
// here with the file named by ZVX_FILTER_TARGET instead of a dialog; and the
// declarations the window program writes for it.

#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdlib>

#include "extensions/filter_scan.h"
#include "shell/config_files.h"
#include "support/catalogue_bytes.h"
#include "support/temp_folder.h"

namespace zvx::test {
namespace {

namespace fs = std::filesystem;

struct FilterProgram : ::testing::Test, TestEnvironment {
    FilterProgram() { fs::create_directory(folder / "PLUGINS"); }

    // Runs the program with the mode after deleting the lock file; its exit status.
    int run(const std::string& mode, const fs::path& target) {
        fs::remove(lock());
        const std::string home = "'" + folder.path().string() + "'";
        const std::string command = "cd " + home + " && ZVX_HOME=" + home + " ZVX_FILTER_TARGET='" +
                                    target.string() + "' '" + ZVX_FILTER_PROGRAM + "' " + mode +
                                    " 2>/dev/null";
        const int status = std::system(command.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    fs::path lock() const { return folder / "PLUGINS" / "extlock.tmp"; }
};

TEST_F(FilterProgram, ExportAndImportRunToTheirEndAndMakeTheLockFile) {
    WriteAll(folder / "PLUGINS" / "export.tmp",
             CatalogueBytes({{"Music\\", "", 10, "00000004"}},
                            {EntryLineOf("00000004", {"a.mp3", "12"})}));
    const fs::path csv = folder / "list.csv";
    EXPECT_EQ(run("CSV-Export", csv), 0);
    EXPECT_TRUE(fs::exists(lock()));
    EXPECT_TRUE(ReadAll(csv).ends_with("Music\\,a.mp3,12,,,,,,,,,,,,,,,,,,,,\r\n"));

    EXPECT_EQ(run("html-export", folder / "list.html"), 0);
    EXPECT_TRUE(fs::exists(lock()));
    EXPECT_TRUE(fs::exists(folder / "list.html"));

    EXPECT_EQ(run("csv-import", csv), 0);
    EXPECT_TRUE(fs::exists(lock()));
    EXPECT_EQ(ReadAll(folder / "PLUGINS" / "imported.tmp"),
              CatalogueBytes({{"Music\\", "", 10, "00000000"}},
                             {EntryLineOf("00000000", {"a.mp3", "12"})}));
}

TEST_F(FilterProgram, AFailedImportWritesNothingButTheLockFile) {
    WriteAll(folder / "table.csv", "no,header\r\n");
    EXPECT_EQ(run("csv-import", folder / "table.csv"), 1);
    EXPECT_TRUE(fs::exists(lock()));
    EXPECT_FALSE(fs::exists(folder / "PLUGINS" / "imported.tmp"));
    EXPECT_EQ(run("csv-import", folder / "missing.csv"), 1);
    EXPECT_EQ(run("unknown-mode", folder / "x"), 1);
    EXPECT_TRUE(fs::exists(lock()));
}

TEST_F(FilterProgram, TheWindowProgramDeclaresTheFiltersOnceTheProgramIsThere) {
    const fs::path programFolder = folder / "bin";
    fs::create_directory(programFolder);
    PrepareFilterDeclarations(common, programFolder);
    EXPECT_TRUE(fs::is_empty(folder / "PLUGINS")) << "no filter program, no declarations";

    WriteAll(programFolder / "zvxfilter", "");
    WriteAll(folder / "PLUGINS" / "csv-import.zvi", "<name>Mine\n");
    PrepareFilterDeclarations(common, programFolder);
    const std::vector<FilterRow> exports = ScanFilters(common, FilterKind::Export);
    ASSERT_EQ(exports.size(), 3u);
    EXPECT_EQ(exports[1].name, "CSV (Spreadsheet)");
    EXPECT_EQ(exports[2].name, "HTML (Printable List)");
    const FilterDetails details = ReadFilterDetails(common, FilterKind::Export, "html-export.zve");
    EXPECT_EQ(details.exe, (programFolder / "zvxfilter").string() + " html-export");
    EXPECT_EQ(details.fileTypes, "File Types: *.HTML");
    EXPECT_EQ(ReadAll(folder / "PLUGINS" / "csv-import.zvi"), "<name>Mine\n")
        << "an existing declaration is left alone";
}

}  // namespace
}  // namespace zvx::test
