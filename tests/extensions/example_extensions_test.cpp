// The example extensions in examples/extensions, loaded by the start's scans and run as
// ZVX runs them: in the application folder, after the hand-over files were written.

#include <gtest/gtest.h>

#include <cstdlib>
#include <regex>

#include "extensions/extension_lists.h"
#include "support/catalogue_bytes.h"
#include "support/temp_folder.h"

namespace zvx::test {
namespace {

namespace fs = std::filesystem;

const fs::path kExamples = ZVX_EXAMPLES_DIR;

struct AppFolder : TestEnvironment {
    AppFolder() { fs::create_directory(folder / "PLUGINS"); }

    void handOver(const std::string& current, const std::string& selected) {
        WriteAll(folder / "current.zvd", current);
        WriteAll(folder / "selected.zvd", selected);
    }

    // Runs the script as the host does (so it must be executable), after deleting the lock
    // file; its exit status.
    int run(const std::string& script) {
        fs::remove(lock());
        const std::string home = "'" + folder.path().string() + "'";
        const std::string command = "cd " + home +
                                    " && ZVX_EVENTLOG= ZVX_STATS_REPORT= ZVX_HOME=" + home +
                                    " ZVX_OPENER=true '" + (kExamples / script).string() + "'";
        return std::system(command.c_str());
    }

    fs::path lock() const { return folder / "PLUGINS" / "extlock.tmp"; }
    std::string plugin(const std::string& name) const { return ReadAll(folder / "PLUGINS" / name); }
};

// A catalogue of two content types, one name in Windows-1252 and a size beyond 32 bits.
const std::string kCafe = EntryLineOf(
    "00000002", {"Caf\xe9.mp3", "3000", "c:\\music", "CD1", "0", "Music", "", "Audio: Album"});
const std::string kSong = EntryLineOf(
    "00000002", {"b.mp3", "4000", "c:\\music", "CD1", "0", "Music", "", "Audio: Album"});
const std::string kFilm = EntryLineOf(
    "00000003", {"film.mkv", "9000000000", "d:", "DVD", "1", "Films", "", "Video: Movie"});

std::string WorkingCopy(const AppFolder& app) {
    const fs::path copy = app.folder / "Document 1.tmp";
    WriteAll(copy, CatalogueBytes(
                       {{"Music\\", "Music", 10, "00000002"}, {"Films\\", "Films", 10, "00000003"}},
                       {kCafe, kSong, kFilm}));
    return copy.string();
}

// The log with each block's time replaced by "T".
std::string WithoutTimes(const std::string& log) {
    static const std::regex time("(^|\n)\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\t");
    return std::regex_replace(log, time, "$1T\t");
}

TEST(ExampleExtensions, TheDeclarationsLoad) {
    AppFolder app;
    for (const char* name : {"eventlog.zvp", "stats.zva"})
        fs::copy_file(kExamples / name, app.folder / "PLUGINS" / name);

    const auto plugins = BuildPlugInList(app.common, nullptr).listed;
    ASSERT_EQ(plugins.size(), 1u);
    EXPECT_EQ(plugins[0].declaration.exe, "EVENTLOG.SH");
    EXPECT_EQ(plugins[0].declaration.modal, "YES");
    EXPECT_EQ(plugins[0].declaration.events,
              "ZVXSTART#ZVXQUIT#ZVXLOAD#ZVXNEW#ZVXCLOSE#ZVXDOCUMENTFOCUS#ZVXREFRESHF#ZVXREFRESHL#"
              "ZVXREFRESHS#ZVXFOLDERDEL#ZVXFOLDERMOVE#FOLDERCREATE#ENTRYDEL#ENTRYMOVE#ENTRYCOPY#");
    const auto addOns = BuildAddOnList(app.common, nullptr).listed;
    ASSERT_EQ(addOns.size(), 1u);
    EXPECT_EQ(addOns[0].declaration.exe, "STATS.SH");
    EXPECT_EQ(addOns[0].declaration.menu, "ADDONS");
    EXPECT_EQ(addOns[0].declaration.caption, "Statistics Report");
    EXPECT_EQ(addOns[0].declaration.events, "REFRESH#");
    EXPECT_TRUE(app.screen.shown.empty());
}

TEST(ExampleExtensions, TheEventLogAppendsABlockPerEventWithTheSelectionReadably) {
    AppFolder app;
    const std::string copy = WorkingCopy(app);
    app.handOver("ENTRYCOPY\r\n" + copy + "\r\n/home/u/films.zvx\r\n",
                 "00000002\r\n0\r\n" + kCafe + "\r\n" + kFilm + "\r\n");
    EXPECT_EQ(app.run("eventlog.sh"), 0);
    EXPECT_TRUE(fs::exists(app.lock()));
    app.handOver("ZVXREFRESHL\r\n\r\n\r\n", "\r\n1\r\n");
    EXPECT_EQ(app.run("eventlog.sh"), 0);

    EXPECT_EQ(WithoutTimes(app.plugin("eventlog.log")),
              "T\tENTRYCOPY\t" + copy + "\t/home/u/films.zvx\n" +
                  "\tfolder 00000002\tsub-view off\n"
                  "\tCaf\xe9.mp3\t3000 bytes\tc:\\music\tAudio: Album\n"
                  "\tfilm.mkv\t9000000000 bytes\td:\tVideo: Movie\n\n"
                  "T\tZVXREFRESHL\t(none)\t(none)\n"
                  "\tfolder (none)\tsub-view on\n\n");
    EXPECT_TRUE(fs::exists(app.lock()));
}

TEST(ExampleExtensions, TheReportCountsEntriesAndBytesPerContentTypeLargestFirst) {
    AppFolder app;
    const std::string copy = WorkingCopy(app);
    app.handOver("*USER-CALL*\r\n" + copy + "\r\n\r\n", "00000002\r\n0\r\n");
    EXPECT_EQ(app.run("stats.sh"), 0);

    EXPECT_EQ(app.plugin("stats-report.txt"),
              "Statistics Report\n\nCatalogue: (not saved yet)\nWorking copy: " + copy +
                  "\n\n"
                  "Content type                       Entries              Bytes\n"
                  "Video: Movie                             1         9000000000\n"
                  "Audio: Album                             2               7000\n"
                  "Total                                    3         9000007000\n");
    EXPECT_TRUE(fs::exists(app.lock()));
}

TEST(ExampleExtensions, WithoutADocumentOrItsWorkingCopyTheLockFileIsMadeAllTheSame) {
    AppFolder app;
    app.handOver("*USER-CALL*\r\n\r\n\r\n", "\r\n1\r\n");
    EXPECT_EQ(app.run("stats.sh"), 0);
    EXPECT_NE(app.plugin("stats-report.txt").find("There is no document"), std::string::npos);
    EXPECT_TRUE(fs::exists(app.lock()));

    const std::string gone = (app.folder / "Document 2.tmp").string();
    app.handOver("*USER-CALL*\r\n" + gone + "\r\n\r\n", "\r\n0\r\n");
    EXPECT_NE(app.run("stats.sh"), 0);
    EXPECT_NE(app.plugin("stats-report.txt").find("cannot be read"), std::string::npos);
    EXPECT_TRUE(fs::exists(app.lock()));

    fs::remove(app.folder / "current.zvd");
    fs::remove(app.folder / "selected.zvd");
    EXPECT_EQ(app.run("eventlog.sh"), 0);
    EXPECT_TRUE(fs::exists(app.lock()));
}

}  // namespace
}  // namespace zvx::test
