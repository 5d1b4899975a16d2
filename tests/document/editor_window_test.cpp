// The entry editor's wiring in a document window: the form, its locks and buttons, and
// what reaches the working copy when the editor is left.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>

#include "document/frmDocument.h"
#include "support/catalogue_bytes.h"
#include "support/entry_lines.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

using test::EntryLineOf;
using test::Fields;
using test::FolderLines;

// Values that the form shows and reads back unchanged, so that a row that was only
// looked at stays as it is.
std::string Song(const std::string& name, const std::string& title, const std::string& album) {
    return EntryLineOf(
        "00000001",
        {name,  "1000",   "\\music", "CD1",  "0",     "Music CD", "1-2-2001", "Audio: Album",
         title, "Artist", album,     "Rock", "",      "",         "01",       "2001",
         "",    "",       "3:00",    "128",  "44100", "Stereo"});
}

// A document with one folder of three songs, its editor on show at the first.
class EditorWindow : public ::testing::Test {
  protected:
    void SetUp() override {
        test::WriteAll(cfn, test::CatalogueBytes(
                                {{"Music\\", "", 10, "00000001"}},
                                {Song("a.mp3", "One", "First"), Song("b.mp3", "Two", "Second"),
                                 Song("c.mp3", "Three", "Third")}));
        document.workingCopy = [this] { return cfn; };
        document.refresh_Click();
        auto* tree = document.findChild<QTreeWidget*>("List2");
        tree->setCurrentItem(tree->topLevelItem(0));
        document.entry_editstart();
    }
    template <typename T = QLineEdit>
    T* control(const char* name) {
        T* found = document.findChild<T*>(name);
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    QString text(const char* name) { return control(name)->text(); }
    QString label(const char* name) { return control<QLabel>(name)->text(); }
    void click(const char* name) { control<QPushButton>(name)->click(); }
    // Back to the list: the final apply.
    void leaveEditor() { document.findChild<QTabWidget*>("Tabthing")->setCurrentIndex(0); }
    std::vector<std::string> lines() { return FolderLines(cfn, "00000001"); }

    test::TestEnvironment env;
    std::filesystem::path cfn = env.folder / "Document 1.tmp";
    frmDocument document{env.common};
};

TEST_F(EditorWindow, ALockedFieldKeepsItsTextAcrossNext) {
    EXPECT_EQ(label("Label10"), "Entry 1 of 3");
    EXPECT_EQ(text("Text4"), "First");
    control("Text4")->setText("Best Of");
    control<QCheckBox>("Check4")->setChecked(true);
    click("Command6");
    EXPECT_EQ(label("Label10"), "Entry 2 of 3");
    EXPECT_EQ(text("Text3"), "Two");
    EXPECT_EQ(text("Text4"), "Best Of");
    EXPECT_EQ(label("Label21"), "(1 entry was changed)");
}

TEST_F(EditorWindow, NoChangesMadeYetReturnsWhenAChangeIsUndone) {
    control("Text3")->setText("Uno");
    click("Command6");
    EXPECT_EQ(label("Label21"), "(1 entry was changed)");
    EXPECT_TRUE(control<QPushButton>("FlatBttn8")->isEnabled());
    click("Command5");
    EXPECT_EQ(label("Label10"), "Entry 1 of 3 (changed)");
    EXPECT_EQ(text("Text3"), "Uno");
    control("Text3")->setText("One");
    click("Command6");
    EXPECT_EQ(label("Label21"), "(no changes made yet)");
    EXPECT_FALSE(control<QPushButton>("FlatBttn8")->isEnabled());
    const std::string before = test::ReadAll(cfn);
    leaveEditor();
    EXPECT_EQ(test::ReadAll(cfn), before);
}

TEST_F(EditorWindow, ANonAudioTypeDisablesTheAudioFieldsAndClearsThemInTheFile) {
    EXPECT_TRUE(control("Text2")->isEnabled());
    EXPECT_FALSE(control("Text11")->isEnabled());
    control<QComboBox>("Combo1")->setCurrentText("Document: Text");
    for (const char* name : {"Text2", "Text3", "Text4", "Text5", "Text8", "Text9", "Text12",
                             "Text13", "Text14", "Text15"})
        EXPECT_FALSE(control(name)->isEnabled()) << name;
    EXPECT_FALSE(control<QComboBox>("Combo3")->isEnabled());
    EXPECT_FALSE(control<QScrollBar>("VScroll1")->isEnabled());
    EXPECT_FALSE(control<QPushButton>("FlatBttn5")->isEnabled());
    EXPECT_TRUE(control("Text11")->isEnabled());
    EXPECT_TRUE(control<QLabel>("Label24")->isEnabled());
    leaveEditor();
    EXPECT_EQ(Fields(lines()[0], {8, 9, 10, 11, 12, 15, 16, 19, 20, 21, 22}),
              "Document: Text||||<unknown>|00|0||0|0||");
}

TEST_F(EditorWindow, ForgetChangesEmptiesTheBuffersOnYes) {
    control("Text3")->setText("Uno");
    click("Command6");
    env.screen.answerMessage(MsgAnswer::No);
    click("FlatBttn8");
    EXPECT_EQ(label("Label21"), "(1 entry was changed)");
    env.screen.answerMessage(MsgAnswer::Yes);
    click("FlatBttn8");
    EXPECT_EQ(env.screen.shown.back().caption, "Forget changes...");
    EXPECT_EQ(env.screen.shown.back().text,
              "Are you sure that you want to lose all current editor-changes ?");
    EXPECT_EQ(label("Label21"), "(no changes made yet)");
    EXPECT_EQ(label("Label10"), "Entry 2 of 3");
    const std::string before = test::ReadAll(cfn);
    leaveEditor();
    EXPECT_EQ(test::ReadAll(cfn), before);
}

TEST_F(EditorWindow, ApplyingTheLocksGivesEveryRowTheirValuesAndClearsThem) {
    control("Text4")->setText("Greatest");
    control<QCheckBox>("Check4")->setChecked(true);
    control("Text3")->setText("Uno");  // not locked: the row on show only
    click("Command11");
    EXPECT_FALSE(control<QCheckBox>("Check4")->isChecked());
    EXPECT_EQ(label("Label21"), "(3 entries were changed)");
    leaveEditor();
    const std::vector<std::string> written = lines();
    ASSERT_EQ(written.size(), 3u);
    EXPECT_EQ(Fields(written[0], {1, 9, 11}), "a.mp3|Uno|Greatest|");
    EXPECT_EQ(Fields(written[1], {1, 9, 11}), "b.mp3|Two|Greatest|");
    EXPECT_EQ(Fields(written[2], {1, 9, 11}), "c.mp3|Three|Greatest|");
}

TEST_F(EditorWindow, TheStyleChooserChecksByPrefixAndWritesItsChecksInListOrder) {
    document.show();
    control("Text5")->setText("Coolest, Sad");
    click("FlatBttn5");
    auto* styles = control<QListWidget>("ListView2");
    auto checked = [styles] {
        QStringList names;
        for (int row = 0; row < styles->count(); ++row)
            if (styles->item(row)->checkState() == Qt::Checked)
                names.append(styles->item(row)->text());
        return names;
    };
    EXPECT_EQ(checked(), QStringList({"Cool", "Sad"}));
    QListWidgetItem* fast = styles->findItems("Fast", Qt::MatchExactly).at(0);
    QTest::mouseClick(styles->viewport(), Qt::LeftButton, {},
                      styles->visualItemRect(fast).center());
    QTest::mouseClick(control<QPushButton>("FlatBttn7"), Qt::LeftButton);  // Cancel
    EXPECT_EQ(text("Text5"), "Coolest, Sad");
    click("FlatBttn5");
    QTest::mouseClick(styles->viewport(), Qt::LeftButton, {},
                      styles->visualItemRect(fast).center());
    QTest::mouseClick(control<QPushButton>("FlatBttn6"), Qt::LeftButton);  // OK
    EXPECT_EQ(text("Text5"), "Cool, Fast, Sad");
    EXPECT_FALSE(control<QWidget>("Picture2")->isVisible());
}

}  // namespace
}  // namespace zvx
