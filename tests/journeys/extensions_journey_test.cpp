// A person installs the example extensions: the event log sees the start, the document
// opened and the quit; the statistics add-on runs from its menu and its report is there.

#include <gtest/gtest.h>

#include <QAction>
#include <QDialog>
#include <QMenu>
#include <cstdlib>

#include "shell/frmMain.h"
#include "support/catalogue_bytes.h"
#include "support/journey.h"

namespace zvx::test {
namespace {

namespace fs = std::filesystem;

void Install(const fs::path& plugins, std::initializer_list<const char*> names) {
    fs::create_directories(plugins);
    for (const char* name : names)
        fs::copy_file(fs::path(ZVX_EXAMPLES_DIR) / name, plugins / name);
}

TEST(ExtensionsJourney, TheEventLogAndTheStatisticsAddOnRunInTheirPlaces) {
    Journey journey;
    setenv("ZVX_OPENER", "true", 1);
    WriteAll(journey.appFolder() / "zvx.ini", "FIRSTSTART=no\r\nADDONSHORTCUTSTATS.ZVA=YES\r\n");
    const fs::path plugins = journey.appFolder() / "PLUGINS";
    Install(plugins, {"eventlog.zvp", "eventlog.sh", "stats.zva", "stats.sh"});
    const fs::path shelf = journey.userFolder() / "shelf.zvx";
    WriteAll(shelf, CatalogueBytes({{"Music\\", "", 10, "00000001"}},
                                   {EntryLineOf("00000001", {"a.mp3", "300", "c:\\m", "", "0", "",
                                                             "", "MP3-Audio"})}));

    // Once the document is open and no extension is being waited for.
    journey.step(
        "run the statistics report",
        [] {
            frmMain* main = MainWindow();
            return main && ActiveDocument(*main) && !main->findChild<QDialog*>("plugrun");
        },
        [] {
            frmMain& main = *MainWindow();
            QAction* report = main.menuEntry("entryaddons(0)");
            ASSERT_NE(report, nullptr);
            EXPECT_EQ(report->text(), "Statistics Report");
            EXPECT_TRUE(main.findChild<QMenu*>("addonmnuTOP")->menuAction()->isVisible());
            // Its shortcut is made, but only the sections of the bar show theirs.
            const QAction* shortcut = main.findChild<QAction*>("noplan1");
            ASSERT_NE(shortcut, nullptr);
            EXPECT_EQ(shortcut->text(), "Statistics Report");
            EXPECT_FALSE(shortcut->isVisible());
            report->trigger();
        });
    journey.onMain("quit", [](frmMain& main) { Choose(main, "mnufile6"); });
    journey.screen.expectMessage("Closing ZVX...", MsgAnswer::Yes);
    EXPECT_EQ(journey.run(shelf.string()), 0);

    const std::string log = ReadAll(plugins / "eventlog.log");
    const size_t start = log.find("\tZVXSTART\t");
    const size_t load = log.find("\tZVXLOAD\t" + (journey.appFolder() / "Document 1.tmp").string() +
                                 "\t" + shelf.string());
    const size_t quit = log.find("\tZVXQUIT\t");
    EXPECT_NE(start, std::string::npos) << log;
    EXPECT_NE(load, std::string::npos) << log;
    EXPECT_NE(quit, std::string::npos) << log;
    EXPECT_TRUE(start < load && load < quit) << log;
    EXPECT_NE(ReadAll(plugins / "stats-report.txt").find("MP3-Audio"), std::string::npos);
}

}  // namespace
}  // namespace zvx::test
