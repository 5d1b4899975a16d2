// A person gives away a shelf's sub-tree twice, with two TOC modes from one export
// dialog, then imports one of the results back into the document at the root.

#include <gtest/gtest.h>

#include <QListWidget>
#include <QRadioButton>

#include "document/frmDocument.h"
#include "shell/frmMain.h"
#include "support/catalogue_bytes.h"
#include "support/journey.h"

namespace zvx::test {
namespace {

namespace fs = std::filesystem;

void PickBuiltIn(QWidget& dialog) {
    auto* filters = dialog.findChild<QListWidget*>("List1");
    filters->setCurrentRow(0);
}

TEST(ExchangeJourney, TwoExportsFromOneDialogAndAnImportBackAtTheRoot) {
    Journey journey;
    WriteAll(journey.appFolder() / "zvx.ini", "FIRSTSTART=no\r\n");
    const fs::path shelf = journey.userFolder() / "shelf.zvx";
    WriteAll(shelf, CatalogueBytes({{"Music\\", "", 10, "00000000"},
                                    {"Music\\Rock\\", "", 10, "00000001"},
                                    {"Books\\", "", 10, "00000002"}},
                                   {EntryLineOf("00000000", {"dawn.mp3", "5"}),
                                    EntryLineOf("00000001", {"noon.mp3", "7"})}));
    const fs::path whole = journey.userFolder() / "whole";
    const fs::path music = journey.userFolder() / "music.";
    const fs::path notes = journey.userFolder() / "notes.txt";

    journey.onMain("export the whole document", [](frmMain& main) { Choose(main, "mnufile5"); });
    journey.onWindow("export", [&](QWidget& dialog) {
        PickBuiltIn(dialog);
        dialog.findChild<QRadioButton*>("Option3")->setChecked(true);
        Click(dialog, "Command1");
        dialog.findChild<QRadioButton*>("Option2")->setChecked(true);
        Click(dialog, "Command1");
        dialog.close();
    });
    journey.screen.expectFileDialog("ZVX-Explorer - Export ZVX...", {{whole.string()}, false});
    journey.screen.expectMessage("Export-Info", MsgAnswer::Ok, "Export Completed!");
    journey.screen.expectFileDialog("ZVX-Explorer - Export ZVX...", {{music.string()}, false});
    journey.screen.expectMessage("Export-Info", MsgAnswer::Ok, "Export Completed!");
    journey.onMain("import", [](frmMain& main) { Choose(main, "pathmnu6"); });
    journey.onWindow("import", [&](QWidget& dialog) {
        PickBuiltIn(dialog);
        Click(dialog, "Command1");
        Click(dialog, "Command1");
        dialog.close();
    });
    journey.screen.expectFileDialog("ZVX-Explorer - Import ZVX...", {{notes.string()}, false});
    journey.screen.expectMessage("Error", MsgAnswer::Ok, "The file MUST have the extension");
    journey.screen.expectFileDialog("ZVX-Explorer - Import ZVX...",
                                    {{journey.userFolder() / "music.zvx"}, false});
    journey.onMain("the imported tree stands beside the old", [](frmMain& main) {
        EXPECT_EQ(FolderPaths(*ActiveDocument(main)).join(", ").toStdString(),
                  "Books, Music (2), Music (2)\\Rock, Music, Music\\Rock");
        Choose(main, "mnufile6");
    });
    journey.screen.expectMessage("Closing ZVX...", MsgAnswer::Yes);
    journey.screen.expectMessage("", MsgAnswer::No, "Would you like to save the changes");
    EXPECT_EQ(journey.run(shelf.string()), 0);

    // The first run's new TOC did not leak into the second, which began afresh.
    const std::string first = ReadAll(journey.userFolder() / "whole.zvx");
    EXPECT_NE(first.find("Exported Entries\\\r\n"), std::string::npos);
    const std::string second = ReadAll(journey.userFolder() / "music.zvx");
    EXPECT_EQ(second.find("Exported Entries"), std::string::npos);
    EXPECT_EQ(second.find("Books\\"), std::string::npos);
    EXPECT_NE(second.find("Music\\Rock\\\r\n"), std::string::npos);
}

}  // namespace
}  // namespace zvx::test
