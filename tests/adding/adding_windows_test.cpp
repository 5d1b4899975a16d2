// The insert list and the tree-adding wizard as windows, over a document of a main window:
// their wiring to the document, the keys, drops and settings, and the questions they ask.

#include <QAbstractButton>
#include <QAbstractItemModel>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>
#include <QUrl>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "adding/cdwizard.h"
#include "adding/insertlist.h"
#include "common/common.h"
#include "document/entry_list_model.h"
#include "document/frmDocument.h"
#include "shell/config_files.h"
#include "shell/main_window_fixture.h"
#include "store/settings.h"
#include "support/catalogue_bytes.h"
#include "ui/text_codec.h"

namespace zvx {
namespace {

QString Native(const std::filesystem::path& path) {
    return ToQString(path.string());
}

// Runs `act` on the modal dialog once its loop runs.
void WhenModal(QObject* context, std::function<void(QWidget*)> act) {
    QTimer::singleShot(50, context, [act] { act(QApplication::activeModalWidget()); });
}

std::string Setting(Common& common, const char* key) {
    return ReadSetting(common, key, "unset").toText();
}

void ExpectLastShown(const test::ScriptedScreen& screen, const char* caption,
                     const std::string& text) {
    ASSERT_FALSE(screen.shown.empty());
    EXPECT_EQ(screen.shown.back().caption, caption);
    EXPECT_EQ(screen.shown.back().text, text);
}

class AddingWindowTest : public test::MainWindowTest {
  protected:
    // A document with the folders Music (selected, one entry) and Photos.
    frmDocument* openDocument(std::vector<test::FolderSpec> folders = {
                                  {"Music\\", "songs", 10, "00000000"},
                                  {"Photos\\", "", 11, "00000001"}}) {
        PrepareConfigFiles(env.common);
        main->CheadRefresh();
        const auto file = env.folder / "music.zvx";
        std::vector<std::string> entries;
        if (!folders.empty())
            entries.push_back(test::EntryLineOf("00000000", {"old.mp3", "5", "c:\\m"}));
        test::WriteAll(file, test::CatalogueBytes(folders, entries));
        env.common.pendingDocument = file.string();
        main->ZVXCoreCalls("document_open");
        return dynamic_cast<frmDocument*>(documents().at(0)->widget());
    }
    // A file to add, under env.folder/in.
    std::filesystem::path inputFile(const std::string& name) {
        const auto path = env.folder / "in" / name;
        std::filesystem::create_directories(path.parent_path());
        test::WriteAll(path, "some bytes");
        return path;
    }
    // Only a changed document asks to be saved on closing.
    void expectCloseAsksToSave() {
        env.screen.answerMessage(MsgAnswer::No);
        main->ZVXCoreCalls("document_close");
        EXPECT_EQ(env.screen.unanswered(), 0u);
        EXPECT_TRUE(env.screen.shown.back().text.starts_with("Would you like to save"));
    }
};

// --- insertlist -------------------------------------------------------------------------

QStringList RowNames(insertlist& form) {
    auto* list = form.findChild<QTreeWidget*>("ListView1");
    QStringList names;
    for (int row = 0; row < list->topLevelItemCount(); ++row)
        names << list->topLevelItem(row)->text(0);
    return names;
}

QString CountText(insertlist& form) {
    return form.findChild<QLabel*>("Label1")->text();
}

void SendKey(QWidget* target, int key, Qt::KeyboardModifiers modifiers) {
    QKeyEvent press(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(target, &press);
}

TEST_F(AddingWindowTest, RowsComeFromTheFileDialogListmoreAndDropsGoWithDeleteAndAreInserted) {
    frmDocument* document = openDocument();
    insertlist form(env.common, *document);
    for (const char* name :
         {"ListView1", "Label1", "Check1", "FlatBttn1", "Command2", "Command3", "Command4"})
        EXPECT_NE(form.findChild<QWidget*>(name), nullptr) << name;
    auto* list = form.findChild<QTreeWidget*>("ListView1");

    const auto a = inputFile("a.mp3");
    env.screen.answerFileDialog({{a.string()}, false});
    form.findChild<QPushButton*>("FlatBttn1")->click();
    ASSERT_EQ(env.screen.fileDialogs.size(), 1u);
    ASSERT_GE(env.screen.statuses.size(), 2u);
    EXPECT_EQ(env.screen.statuses[env.screen.statuses.size() - 2],
              "Showing \"File Adding\" Dialogue...");
    EXPECT_EQ(env.screen.statuses.back(), "");
    EXPECT_EQ(CountText(form), "Currently is 1 file selected for inserting.");
    EXPECT_EQ(list->topLevelItem(0)->text(1), Native(a.parent_path()));

    // A cancelled dialog leaves the list; another form's listmore shows at once.
    env.screen.answerFileDialog({});
    form.FlatBttn1_Click();
    form.listmore(inputFile("b.txt").string());
    EXPECT_EQ(RowNames(form), (QStringList{"a.mp3", "b.txt"}));

    // The ".." of a dropped folder is no file.
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(Native(inputFile("c.txt"))),
                  QUrl::fromLocalFile(Native(env.folder / "in" / ".."))});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(list->viewport(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(list->viewport(), &drop);
    EXPECT_TRUE(drop.isAccepted());
    EXPECT_EQ(RowNames(form), (QStringList{"a.mp3", "b.txt", "c.txt"}));
    EXPECT_EQ(CountText(form), "Currently are 3 files selected for inserting.");

    form.Command2_Click();  // nothing selected: removes nothing
    list->topLevelItem(1)->setSelected(true);
    SendKey(list, Qt::Key_Delete, Qt::ShiftModifier);  // only the bare key removes
    EXPECT_EQ(RowNames(form).size(), 3);
    SendKey(list, Qt::Key_Delete, Qt::NoModifier);
    EXPECT_EQ(RowNames(form), (QStringList{"a.mp3", "c.txt"}));
    SendKey(list, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(list->selectedItems().size(), 2);
    SendKey(list, Qt::Key_Delete, Qt::NoModifier);
    EXPECT_EQ(CountText(form), "Currently are 0 files selected for inserting.");
    EXPECT_EQ(env.screen.unanswered(), 0u);

    // Insert all adds the rows to the selected folder and closes.
    form.listmore(inputFile("a.txt").string());
    form.listmore(inputFile("b.txt").string());
    screenshot(&form, "insertlist");
    form.findChild<QPushButton*>("Command3")->click();
    EXPECT_EQ(document->entries()->rowCount(), 3);  // Music's, after the refresh
    EXPECT_EQ(form.result(), QDialog::Accepted);
    EXPECT_TRUE(RowNames(form).isEmpty());
    expectCloseAsksToSave();
}

TEST_F(AddingWindowTest, WithoutFoldersTheInsertListAsksForOneAndClosesWhenNoneCame) {
    frmDocument* document = openDocument({});
    std::vector<std::string> calls;
    document->coreCalls = [&calls](const std::string& name) { calls.push_back(name); };
    insertlist form(env.common, *document);
    form.start();  // no modal loop: the form closes at once
    EXPECT_EQ(calls, std::vector<std::string>{"folder_create"});
    EXPECT_EQ(form.result(), QDialog::Rejected);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(AddingWindowTest, EntryAddManuallyCreatesAFolderFirstThenShowsTheInsertList) {
    frmDocument* document = openDocument({});
    QString shownForm;
    WhenModal(main.get(), [&shownForm, this](QWidget* folderDialog) {
        ASSERT_NE(folderDialog, nullptr);
        EXPECT_EQ(folderDialog->objectName(), "folderprops");
        folderDialog->findChild<QLineEdit*>("Text1")->setText("Inbox");
        folderDialog->findChild<QRadioButton*>("Option2")->setChecked(true);
        folderDialog->findChild<QPushButton*>("Command1")->click();
        WhenModal(main.get(), [&shownForm](QWidget* form) {
            ASSERT_NE(form, nullptr);
            shownForm = form->objectName();
            form->findChild<QPushButton*>("Command4")->click();
        });
    });
    main->ZVXCoreCalls("entry_add_manually");
    EXPECT_EQ(shownForm, "insertlist");
    auto* tree = document->findChild<QTreeWidget*>("List2");
    ASSERT_EQ(tree->topLevelItemCount(), 1);
    EXPECT_EQ(tree->topLevelItem(0)->text(0), "Inbox");
}

// --- cdwizard ---------------------------------------------------------------------------

// A device: medium/a.txt, medium/Pop/c.txt, medium/Rock/b.mp3; and a labelled second one.
class WizardTest : public AddingWindowTest {
  protected:
    void SetUp() override {
        AddingWindowTest::SetUp();
        for (const char* dir : {"Rock", "Pop"})
            std::filesystem::create_directories(medium / dir);
        for (const char* file : {"a.txt", "Pop/c.txt", "Rock/b.mp3"})
            test::WriteAll(medium / file, "some bytes");
        std::filesystem::create_directories(labelled / "Live");
    }
    std::vector<Drive> drives() const {
        return {{medium.string(), ""}, {labelled.string(), "Music"}};
    }
    template <class Widget = QWidget>
    static Widget* Control(cdwizard& wizard, const char* name) {
        Widget* widget = wizard.findChild<Widget*>(name);
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    static QLineEdit* Line(cdwizard& wizard, const char* name) {
        return Control<QLineEdit>(wizard, name);
    }
    static void Check(cdwizard& wizard, const char* name, bool on) {
        Control<QAbstractButton>(wizard, name)->setChecked(on);
    }
    static void ChooseDrive(cdwizard& wizard, int row) {
        auto* drive = Control<QComboBox>(wizard, "Drive1");
        drive->setCurrentIndex(row);
        emit drive->activated(row);
    }

    std::filesystem::path medium = env.folder / "medium";
    std::filesystem::path labelled = env.folder / "labelled";
};

QStringList DirRows(cdwizard& wizard) {
    auto* list = wizard.findChild<QListWidget*>("Dir1");
    QStringList rows;
    for (int row = 0; row < list->count(); ++row)
        rows << list->item(row)->text();
    return rows;
}

TEST_F(WizardTest, ControlsShowTheDevicesAndEnableEachOther) {
    frmDocument* document = openDocument();
    cdwizard wizard(env.common, *document, drives());
    EXPECT_EQ(Control<QComboBox>(wizard, "Drive1")->itemText(1), Native(labelled) + " [Music]");
    // The icon rows count from 1 as the combo's items do.
    EXPECT_EQ(Control<QComboBox>(wizard, "ImageCombo1")->currentText(), "CD(-ROM)/DVD");
    EXPECT_EQ(Control<QComboBox>(wizard, "ImageCombo2")->currentText(), "Folder");

    // Check7 enables Text2, Check6 Label2, Text1 and Check5, Check1 Dir1.
    EXPECT_FALSE(Line(wizard, "Text2")->isEnabled());
    Check(wizard, "Check7", true);
    EXPECT_TRUE(Line(wizard, "Text2")->isEnabled());
    Check(wizard, "Check6", false);
    for (const char* name : {"Label2", "Text1", "Check5", "Dir1"})
        EXPECT_FALSE(Control(wizard, name)->isEnabled()) << name;
    Check(wizard, "Check1", true);
    EXPECT_TRUE(Control(wizard, "Dir1")->isEnabled());

    Control<QPushButton>(wizard, "FlatBttn1")->click();
    EXPECT_EQ(Line(wizard, "Text2")->text(),
              "*.mp3;*.wav;*.mpeg3 ;*.au;*.sun;*.voc;*.smp;*.mod;*.s3m;*.vox");

    auto* tabs = Control<QTabWidget>(wizard, "TabStrip1");
    tabs->setCurrentIndex(0);
    screenshot(&wizard, "cdwizard_source");
    tabs->setCurrentIndex(1);
    screenshot(&wizard, "cdwizard_options");
}

// Check5 makes Text1 follow the device and directory; an unreadable device keeps the old one.
TEST_F(WizardTest, Dir1AndText1FollowTheDevice) {
    frmDocument* document = openDocument();
    std::vector<Drive> list = drives();
    list.push_back({(env.folder / "gone").string(), ""});
    cdwizard wizard(env.common, *document, list);
    auto* dir = Control<QListWidget>(wizard, "Dir1");
    EXPECT_EQ(DirRows(wizard), (QStringList{"..", "Pop", "Rock"}));
    EXPECT_EQ(Line(wizard, "Text1")->text(), "Drive " + Native(medium));

    emit dir->itemDoubleClicked(dir->item(2));  // "Rock"
    EXPECT_EQ(wizard.dirPath(), (medium / "Rock").string());
    EXPECT_EQ(DirRows(wizard), QStringList{".."});
    emit dir->itemDoubleClicked(dir->item(0));
    EXPECT_EQ(wizard.dirPath(), medium.string());

    ChooseDrive(wizard, 1);
    EXPECT_EQ(DirRows(wizard), (QStringList{"..", "Live"}));
    EXPECT_EQ(Line(wizard, "Text1")->text(), "Music (" + Native(labelled) + ")");
    ChooseDrive(wizard, 2);
    ExpectLastShown(env.screen, "Error.", "Device unavailable: " + (env.folder / "gone").string());
    EXPECT_EQ(Control<QComboBox>(wizard, "Drive1")->currentIndex(), 1);
    EXPECT_EQ(wizard.dirPath(), labelled.string());

    Check(wizard, "Check1", true);
    wizard.setDirPath((labelled / "Live").string());
    EXPECT_EQ(Line(wizard, "Text1")->text(), "Live");

    // Without Check5 the typed name stays; a backslash is refused when Text1 is left.
    Check(wizard, "Check5", false);
    QLineEdit* text1 = Line(wizard, "Text1");
    text1->setText("Mine");
    wizard.setDirPath(labelled.string());
    emit text1->editingFinished();
    EXPECT_EQ(text1->text(), "Mine");
    text1->setText("Disc\\1");
    emit text1->editingFinished();
    ExpectLastShown(env.screen, "Syntax-Correction", "A backslash is not allowed in a folder-name");
    EXPECT_EQ(text1->text(), "");
}

TEST_F(WizardTest, TheFormShowsZvxIniAndSavesWhatItShowsOnClosing) {
    frmDocument* document = openDocument();
    test::WriteAll(env.common.iniFile(),
                   "ADDWIZLASTDRIVEADDED=1\r\nADDWIZLASTSUBDIR=1\r\nADDWIZSUBDIRS=YES\r\n"
                   "ADDWIZADDASSUBDATA=NO\r\nADDWIZMAKEPARENTAL=NO\r\nADDWIZLASTPARENTAL=Saved\r\n"
                   "ADDWIZAUTOGETNAME=NO\r\nADDWIZMAKEREALFOLDERS=NO\r\nADDWIZAUTODETAG=NO\r\n"
                   "ADDWIZONLYADDPATTERN=YES\r\nADDWIZTHEADDPATTERN=*.txt\r\n"
                   "ADDWIZUSEOWNDESCRIPTION=NO\r\nADDWIZTHEOWNDESCRIPTION=From the shelf\r\n"
                   "DEFAULTTOPLEVELFOLDER=3\r\nDEFAULTLOWLEVELFOLDER=2\r\n"
                   "ADDWIZSAVEMYSETTINGS=NO\r\n");
    cdwizard wizard(env.common, *document, drives());
    EXPECT_EQ(wizard.dirPath(), labelled.string());
    EXPECT_EQ(Control<QListWidget>(wizard, "Dir1")->currentRow(), 1);
    for (const char* on : {"Check1", "Option2", "Check7", "Option4"})
        EXPECT_TRUE(Control<QAbstractButton>(wizard, on)->isChecked()) << on;
    for (const char* off : {"Option1", "Check6", "Check5", "Check3", "Check2", "Option3", "Check4"})
        EXPECT_FALSE(Control<QAbstractButton>(wizard, off)->isChecked()) << off;
    EXPECT_EQ(Line(wizard, "Text1")->text(), "Saved");
    EXPECT_EQ(Line(wizard, "Text2")->text(), "*.txt");
    EXPECT_EQ(Line(wizard, "Text3")->text(), "From the shelf");

    Check(wizard, "Check4", true);
    Line(wizard, "Text3")->setText("Changed");
    Control<QPushButton>(wizard, "command1")->click();
    EXPECT_EQ(wizard.result(), QDialog::Rejected);
    EXPECT_EQ(Setting(env.common, "ADDWIZSAVEMYSETTINGS"), "YES");
    EXPECT_EQ(Setting(env.common, "ADDWIZTHEOWNDESCRIPTION"), "Changed");
    EXPECT_EQ(Setting(env.common, "ADDWIZTHEADDPATTERN"), "*.txt");
    EXPECT_EQ(Setting(env.common, "DEFAULTTOPLEVELFOLDER"), "3");
    EXPECT_EQ(Setting(env.common, "DEFAULTLOWLEVELFOLDER"), "2");
}

TEST_F(WizardTest, AddDeviceRefusesABlankParentalNameThenWalksBelowTheSelectedFolder) {
    frmDocument* document = openDocument();
    cdwizard wizard(env.common, *document, drives());
    for (const char* on : {"Check6", "Option1", "Check3"})
        Check(wizard, on, true);
    for (const char* off : {"Check5", "Check2"})
        Check(wizard, off, false);
    auto* tree = document->findChild<QTreeWidget*>("List2");

    // The form stays: nothing was walked and nothing saved.
    Line(wizard, "Text1")->setText("   ");
    wizard.command2_Click();
    ExpectLastShown(env.screen, "Error.", "Please enter a name for the parental-folder.");
    EXPECT_EQ(tree->topLevelItem(0)->childCount(), 0);
    EXPECT_EQ(Setting(env.common, "ADDWIZSAVEMYSETTINGS"), "unset");

    // The name is trimmed in Text1 itself, so the saved setting has no blanks.
    Line(wizard, "Text1")->setText(" Disc ");
    Control<QPushButton>(wizard, "command2")->click();
    EXPECT_EQ(wizard.result(), QDialog::Accepted);
    EXPECT_EQ(Line(wizard, "Text1")->text(), "Disc");
    EXPECT_EQ(Setting(env.common, "ADDWIZLASTPARENTAL"), "Disc");
    ASSERT_EQ(tree->topLevelItemCount(), 2);
    ASSERT_EQ(tree->topLevelItem(0)->childCount(), 1);
    QTreeWidgetItem* disc = tree->topLevelItem(0)->child(0);
    EXPECT_EQ(disc->text(0), "Disc");
    ASSERT_EQ(disc->childCount(), 2);
    EXPECT_EQ(disc->child(1)->text(0), "Rock");
    for (const char* temp : {"temptoc.tmp", "tempct.tmp", "tempfil.tmp"})
        EXPECT_FALSE(std::filesystem::exists(env.folder / temp)) << temp;
    expectCloseAsksToSave();
}

TEST_F(WizardTest, EntryAddWizardShowsTheWizardModally) {
    openDocument();
    QString shown;
    WhenModal(main.get(), [&shown](QWidget* wizard) {
        ASSERT_NE(wizard, nullptr);
        shown = wizard->objectName();
        wizard->findChild<QPushButton*>("command1")->click();
    });
    main->ZVXCoreCalls("entry_add_wizard");
    EXPECT_EQ(shown, "cdwizard");
    EXPECT_EQ(Setting(env.common, "ADDWIZSAVEMYSETTINGS"), "YES");
}

}  // namespace
}  // namespace zvx
