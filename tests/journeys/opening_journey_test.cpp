// A person opens catalogued files: one is where the catalogue says, the others are on a
// medium that now hangs elsewhere; the missing-medium dialog finds them, and the device
// chosen there is remembered for the next missing file.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QTreeView>

#include "document/frmDocument.h"
#include "launch/device_redirection.h"
#include "launch/executer_run.h"
#include "platform/catalogue_path.h"
#include "shell/frmMain.h"
#include "support/catalogue_bytes.h"
#include "support/journey.h"

namespace zvx::test {
namespace {

namespace fs = std::filesystem;

TEST(OpeningJourney, AMissingFileFoundOnAnotherDeviceAndTheDeviceRememberedForTheNext) {
    Journey journey;
    WriteAll(journey.appFolder() / "zvx.ini", "FIRSTSTART=no\r\n");
    const fs::path disc = journey.userFolder() / "disc";
    const fs::path copy = journey.userFolder() / "copy";
    fs::create_directory(disc);
    WriteAll(disc / "dawn.mp3", "sound");
    const std::string discPath = CataloguePathFromNative(disc.string());
    auto entry = [&](const std::string& name) {
        return EntryLineOf("00000001", {name, "5", discPath, "CD-7", "0", "Holiday"});
    };
    const fs::path shelf = journey.userFolder() / "shelf.zvx";
    WriteAll(shelf, CatalogueBytes({{"Music\\", "", 10, "00000001"}},
                                   {entry("dawn.mp3"), entry("noon.mp3"), entry("dusk.mp3")}));
    // The copy holds the disc's files where a move to its folder puts them.
    auto moved = [&](const std::string& name) {
        return NativeFileOf(replaceme(discPath + "\\" + name, copy.string(), CurrentDriveRoots()));
    };
    for (const char* name : {"noon.mp3", "dusk.mp3"}) {
        fs::create_directories(moved(name).parent_path());
        WriteAll(moved(name), "sound");
    }

    journey.onMain("execute every entry of the folder", [](frmMain& main) {
        frmDocument& document = *ActiveDocument(main);
        ClickFolder(document, "Music");
        ASSERT_EQ(RowCount(document), 3);
        ClickRow(document, 0);
        ClickRow(document, 2, Qt::ShiftModifier);
        Choose(main, "foldermnu10");
    });
    journey.onWindow("ZVXPlay02", [&](QWidget& dialog) {
        EXPECT_EQ(dialog.findChild<QLabel*>("Label4")->text(), "Device ID: <CD-7>");
        EXPECT_EQ(dialog.findChild<QLabel*>("Label5")->text(), "Device description: <Holiday>");
        auto* drive = dialog.findChild<QComboBox*>("Drive1");
        drive->setEditText(QString::fromStdString(journey.userFolder().string()));
        Click(dialog, "FlatBttn1");
        drive->setEditText(QString::fromStdString(copy.string()));
        Click(dialog, "FlatBttn1");
    });
    journey.screen.expectMessage("No File!", MsgAnswer::Ok, "Sorry - File Still Not Found!");
    journey.screen.expectMessage("Auto-Redirection", MsgAnswer::Yes, "File successfully found.");
    journey.onMain("the run has ended", [&](frmMain& main) {
        EXPECT_TRUE(ActiveDocument(main)->findChild<QTreeView*>("ListView1")->isEnabled());
        std::vector<fs::path> opened;
        for (const QUrl& url : journey.desktop.opened)
            opened.emplace_back(url.toLocalFile().toStdString());
        EXPECT_EQ(opened,
                  std::vector<fs::path>({disc / "dawn.mp3", moved("noon.mp3"), moved("dusk.mp3")}));
        Choose(main, "mnufile6");
    });
    journey.screen.expectMessage("Closing ZVX...", MsgAnswer::Yes);
    EXPECT_EQ(journey.run(shelf.string()), 0);
}

}  // namespace
}  // namespace zvx::test
