// The insert list and the tree-adding wizard as windows, over a document of a main window:
// their controls, their wiring to the document and the questions they ask.

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
#include <algorithm>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "adding/cdwizard.h"
#include "adding/insertlist.h"
#include "document/entry_list_model.h"
#include "document/frmDocument.h"
#include "shell/common.h"
#include "shell/config_files.h"
#include "shell/main_window_fixture.h"
#include "store/folder_listing.h"
#include "store/settings.h"
#include "support/catalogue_bytes.h"
#include "ui/text_codec.h"

namespace zvx {
namespace {

using test::EntryLineOf;

QString Native(const std::filesystem::path& path) {
    return ToQString(path.string());
}

// Saves a picture of a form at its own size, beside the other window pictures.
void Picture(QWidget* form, const char* name) {
    form->grab().save(QString(ZVX_SCREENSHOT_DIR) + "/" + name + ".png");
}

// Runs `act` on the modal dialog once its loop runs.
void WhenModal(QObject* context, std::function<void(QWidget*)> act) {
    QTimer::singleShot(50, context, [act] { act(QApplication::activeModalWidget()); });
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
            entries.push_back(EntryLineOf("00000000", {"old.mp3", "5", "c:\\m"}));
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
    size_t entriesOf(frmDocument* document, const std::string& folderId) const {
        size_t count = 0;
        ListFolderEntries(document->cfn(), folderId, [&](std::string_view) { ++count; });
        return count;
    }
    // Closing the document asks to save it only after a change.
    bool closeAsksToSave() {
        const size_t before = env.screen.shown.size();
        env.screen.answerMessage(MsgAnswer::No);
        main->ZVXCoreCalls("document_close");
        const bool asked = env.screen.shown.size() > before &&
                           env.screen.shown.back().text.starts_with("Would you like to save");
        EXPECT_EQ(env.screen.unanswered(), asked ? 0u : 1u);
        return asked;
    }
    bool shownMessage(const std::string& caption, const std::string& text) const {
        for (const test::Shown& shown : env.screen.shown)
            if (shown.caption == caption && shown.text == text)
                return true;
        return false;
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

TEST_F(AddingWindowTest, FileDialogRowsAreCountedInLabel1) {
    frmDocument* document = openDocument();
    insertlist form(env.common, *document);
    EXPECT_EQ(form.windowTitle(), "ZVX-File-Adding");
    EXPECT_EQ(form.findChild<QCheckBox*>("Check1")->text(), "Auto-detag audio-files");
    EXPECT_EQ(CountText(form), "Currently are 0 files selected for inserting.");

    const auto a = inputFile("a.mp3");
    env.screen.answerFileDialog({{a.string()}, false});
    form.findChild<QPushButton*>("FlatBttn1")->click();
    ASSERT_EQ(env.screen.fileDialogs.size(), 1u);
    EXPECT_EQ(env.screen.fileDialogs[0].title, "ZVX-Explorer - Add File(s)...");
    EXPECT_TRUE(env.screen.fileDialogs[0].multiSelect);
    EXPECT_FALSE(env.screen.fileDialogs[0].save);
    ASSERT_GE(env.screen.statuses.size(), 2u);
    EXPECT_EQ(env.screen.statuses[env.screen.statuses.size() - 2],
              "Showing \"File Adding\" Dialogue...");
    EXPECT_EQ(env.screen.statuses.back(), "");
    EXPECT_EQ(CountText(form), "Currently is 1 file selected for inserting.");
    auto* list = form.findChild<QTreeWidget*>("ListView1");
    EXPECT_EQ(list->topLevelItem(0)->text(0), "a.mp3");
    EXPECT_EQ(list->topLevelItem(0)->text(1), Native(a.parent_path()));

    // A cancelled dialog leaves the list; the same file again is a second row.
    env.screen.answerFileDialog({});
    form.FlatBttn1_Click();
    env.screen.answerFileDialog({{a.string(), inputFile("b.wav").string()}, false});
    form.FlatBttn1_Click();
    EXPECT_EQ(RowNames(form), (QStringList{"a.mp3", "a.mp3", "b.wav"}));
    EXPECT_EQ(CountText(form), "Currently are 3 files selected for inserting.");
    EXPECT_EQ(env.screen.unanswered(), 0u);
}

TEST_F(AddingWindowTest, DeleteRemovesTheSelectedRowsAndCtrlASelectsAll) {
    frmDocument* document = openDocument();
    insertlist form(env.common, *document);
    for (const char* name : {"a.txt", "b.txt", "c.txt"})
        form.listmore(inputFile(name).string());
    form.Command2_Click();  // nothing selected: removes nothing and shows the rows
    ASSERT_EQ(RowNames(form), (QStringList{"a.txt", "b.txt", "c.txt"}));

    auto* list = form.findChild<QTreeWidget*>("ListView1");
    list->topLevelItem(1)->setSelected(true);
    SendKey(list, Qt::Key_Delete, Qt::ShiftModifier);  // only the bare key removes
    EXPECT_EQ(RowNames(form).size(), 3);
    SendKey(list, Qt::Key_Delete, Qt::NoModifier);
    EXPECT_EQ(RowNames(form), (QStringList{"a.txt", "c.txt"}));
    EXPECT_EQ(CountText(form), "Currently are 2 files selected for inserting.");

    SendKey(list, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(list->selectedItems().size(), 2);
    SendKey(list, Qt::Key_Delete, Qt::NoModifier);
    EXPECT_TRUE(RowNames(form).isEmpty());
    EXPECT_EQ(CountText(form), "Currently are 0 files selected for inserting.");
}

// Another form's listmore shows its row without further ado.
TEST_F(AddingWindowTest, ARowFromListmoreShowsAtOnce) {
    frmDocument* document = openDocument();
    insertlist form(env.common, *document);
    form.listmore(inputFile("a.txt").string());
    EXPECT_EQ(RowNames(form), QStringList{"a.txt"});
}

TEST_F(AddingWindowTest, DroppedFilesBecomeRows) {
    frmDocument* document = openDocument();
    insertlist form(env.common, *document);
    QWidget* viewport = form.findChild<QTreeWidget*>("ListView1")->viewport();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(Native(inputFile("a.txt"))),
                  QUrl::fromLocalFile(Native(inputFile("b.txt"))),
                  QUrl::fromLocalFile(Native(env.folder / "in" / ".."))});

    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &drop);
    EXPECT_TRUE(drop.isAccepted());
    // The ".." of a dropped folder is no file.
    EXPECT_EQ(RowNames(form), (QStringList{"a.txt", "b.txt"}));
    EXPECT_EQ(CountText(form), "Currently are 2 files selected for inserting.");
}

TEST_F(AddingWindowTest, InsertAllAddsTheRowsToTheSelectedFolderAndCloses) {
    frmDocument* document = openDocument();
    ASSERT_EQ(document->entries()->rowCount(), 1);
    insertlist form(env.common, *document);
    form.listmore(inputFile("a.txt").string());
    form.listmore(inputFile("b.txt").string());
    form.Command2_Click();
    form.resize(560, 360);
    Picture(&form, "insertlist");

    form.findChild<QCheckBox*>("Check1")->setChecked(false);
    form.findChild<QPushButton*>("Command3")->click();
    EXPECT_EQ(entriesOf(document, "00000000"), 3u);
    EXPECT_EQ(entriesOf(document, "00000001"), 0u);
    // The document lists them after its refresh.
    QAbstractItemModel* shown = document->entries();
    ASSERT_EQ(shown->rowCount(), 3);
    QStringList names;
    for (int row = 0; row < 3; ++row)
        names << shown->index(row, 0).data().toString();
    EXPECT_TRUE(names.contains("a.txt") && names.contains("b.txt"))
        << names.join(",").toStdString();
    EXPECT_EQ(form.result(), QDialog::Accepted);
    EXPECT_TRUE(RowNames(form).isEmpty());
    EXPECT_EQ(CountText(form), "Currently are 0 files selected for inserting.");
    EXPECT_TRUE(closeAsksToSave());
}

TEST_F(AddingWindowTest, AnAbortOnAVanishedFileSkipsTheRestAndStillCloses) {
    frmDocument* document = openDocument();
    insertlist form(env.common, *document);
    form.listmore(inputFile("a.txt").string());
    form.listmore((env.folder / "in" / "vanished.txt").string());
    form.listmore(inputFile("c.txt").string());
    env.screen.answerMessage(MsgAnswer::Abort);  // "ZVX - Error!!!" for the vanished file
    form.Command3_Click();

    EXPECT_TRUE(shownMessage("Error.", "Skipped Rest Of Adding-Procedure!"));
    EXPECT_EQ(env.screen.shown.back().icon, MsgIcon::Critical);
    EXPECT_EQ(entriesOf(document, "00000000"), 2u);  // old.mp3 and a.txt
    EXPECT_EQ(document->entries()->rowCount(), 2);
    EXPECT_FALSE(env.common.AbortAdding);
    EXPECT_EQ(form.result(), QDialog::Accepted);
    EXPECT_TRUE(RowNames(form).isEmpty());
    EXPECT_EQ(env.screen.unanswered(), 0u);
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
            shownForm = form->windowTitle();
            form->findChild<QPushButton*>("Command4")->click();
        });
    });
    main->ZVXCoreCalls("entry_add_manually");
    EXPECT_EQ(shownForm, "ZVX-File-Adding");
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
    template <class Widget>
    static Widget* Control(cdwizard& wizard, const char* name) {
        Widget* widget = wizard.findChild<Widget*>(name);
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    static QString Text1(cdwizard& wizard) { return Control<QLineEdit>(wizard, "Text1")->text(); }

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

TEST_F(WizardTest, ControlsCarryTheirCaptionsAndEnableEachOther) {
    frmDocument* document = openDocument();
    cdwizard wizard(env.common, *document, drives());
    EXPECT_EQ(wizard.windowTitle(), "ZVX-Tree-Adding-Wizard");
    const std::pair<const char*, const char*> captions[] = {
        {"Check1", "Add selected sub-directories only:"},
        {"Option2", "Add as root-folder"},
        {"Option1", "Add as sub-data of the selected ZVX-folder"},
        {"Check6", "Create a new-parental-folder"},
        {"Check5", "Auto-retrieve from device/dir"},
        {"Check3", "Create real ZVX-folders for each directory scanned"},
        {"Check2", "Auto-detag audio-files"},
        {"Check7", "Only add files that match this pattern:"},
        {"Option3", "Set folder-description to the following text:"},
        {"Option4", "Set folder-description to real directory-name"},
        {"Check4", "Save settings on exit"},
        {"command2", "Add Device"},
        {"command1", "Cancel"}};
    for (const auto& [name, caption] : captions) {
        if (auto* button = Control<QAbstractButton>(wizard, name)) {
            EXPECT_EQ(button->text(), caption) << name;
        }
    }
    for (const char* name : {"Text1", "Text2", "Text3"})
        Control<QLineEdit>(wizard, name);
    auto* tabs = Control<QTabWidget>(wizard, "TabStrip1");
    ASSERT_EQ(tabs->count(), 2);
    EXPECT_EQ(tabs->widget(0)->objectName(), "Picture1");
    EXPECT_EQ(tabs->widget(1)->objectName(), "Picture2");
    auto* drive = Control<QComboBox>(wizard, "Drive1");
    ASSERT_EQ(drive->count(), 2);
    EXPECT_EQ(drive->itemText(1), Native(labelled) + " [Music]");
    EXPECT_EQ(DirRows(wizard), (QStringList{"..", "Pop", "Rock"}));

    // The defaults of an empty zvx.ini.
    EXPECT_EQ(Control<QComboBox>(wizard, "ImageCombo1")->count(), 16);
    EXPECT_EQ(Control<QLineEdit>(wizard, "Text2")->text(), "*.*");
    EXPECT_TRUE(Control<QRadioButton>(wizard, "Option1")->isChecked());
    EXPECT_TRUE(Control<QRadioButton>(wizard, "Option3")->isChecked());
    EXPECT_TRUE(Control<QCheckBox>(wizard, "Check4")->isChecked());

    // Check7 enables Text2, Check6 Label2, Text1 and Check5, Check1 Dir1.
    auto* text2 = Control<QLineEdit>(wizard, "Text2");
    EXPECT_FALSE(text2->isEnabled());
    Control<QCheckBox>(wizard, "Check7")->setChecked(true);
    EXPECT_TRUE(text2->isEnabled());
    Control<QCheckBox>(wizard, "Check6")->setChecked(false);
    for (const char* name : {"Label2", "Text1", "Check5"})
        EXPECT_FALSE(Control<QWidget>(wizard, name)->isEnabled()) << name;
    EXPECT_FALSE(Control<QWidget>(wizard, "Dir1")->isEnabled());
    Control<QCheckBox>(wizard, "Check1")->setChecked(true);
    EXPECT_TRUE(Control<QWidget>(wizard, "Dir1")->isEnabled());

    Control<QPushButton>(wizard, "FlatBttn1")->click();
    EXPECT_EQ(text2->text(), "*.mp3;*.wav;*.mpeg3 ;*.au;*.sun;*.voc;*.smp;*.mod;*.s3m;*.vox");

    wizard.resize(520, 520);
    tabs->setCurrentIndex(0);
    Picture(&wizard, "cdwizard_source");
    tabs->setCurrentIndex(1);
    Picture(&wizard, "cdwizard_options");
}

// The icon rows count from 1 as the combo's items do: row 5 is "CD(-ROM)/DVD" and row 1
// "Folder".
TEST_F(WizardTest, TheIconRowsCountFromOne) {
    frmDocument* document = openDocument();
    cdwizard wizard(env.common, *document, drives());
    EXPECT_EQ(Control<QComboBox>(wizard, "ImageCombo1")->currentText(), "CD(-ROM)/DVD");
    EXPECT_EQ(Control<QComboBox>(wizard, "ImageCombo2")->currentText(), "Folder");
}

TEST_F(WizardTest, Dir1FollowsTheDeviceAndAnUnreadableDeviceKeepsTheOldOne) {
    frmDocument* document = openDocument();
    std::vector<Drive> list = drives();
    list.push_back({(env.folder / "gone").string(), ""});
    cdwizard wizard(env.common, *document, list);
    auto* drive = Control<QComboBox>(wizard, "Drive1");
    auto* dir = Control<QListWidget>(wizard, "Dir1");

    emit dir->itemDoubleClicked(dir->item(2));  // "Rock"
    EXPECT_EQ(wizard.dirPath(), (medium / "Rock").string());
    EXPECT_EQ(DirRows(wizard), QStringList{".."});
    emit dir->itemDoubleClicked(dir->item(0));
    EXPECT_EQ(wizard.dirPath(), medium.string());

    drive->setCurrentIndex(1);
    emit drive->activated(1);
    EXPECT_EQ(wizard.dirPath(), labelled.string());
    EXPECT_EQ(DirRows(wizard), (QStringList{"..", "Live"}));

    drive->setCurrentIndex(2);
    emit drive->activated(2);
    ASSERT_FALSE(env.screen.shown.empty());
    EXPECT_EQ(env.screen.shown.back().caption, "Error.");
    EXPECT_EQ(env.screen.shown.back().text,
              "Device unavailable: " + (env.folder / "gone").string());
    EXPECT_EQ(drive->currentIndex(), 1);
    EXPECT_EQ(wizard.dirPath(), labelled.string());
}

TEST_F(WizardTest, Check5ProposesTheRootNameAndText1RefusesABackslash) {
    frmDocument* document = openDocument();
    cdwizard wizard(env.common, *document, drives());
    auto* check5 = Control<QCheckBox>(wizard, "Check5");
    ASSERT_TRUE(check5->isChecked());
    EXPECT_EQ(Text1(wizard), "Drive " + Native(medium));
    auto* drive = Control<QComboBox>(wizard, "Drive1");
    drive->setCurrentIndex(1);
    emit drive->activated(1);
    EXPECT_EQ(Text1(wizard), "Music (" + Native(labelled) + ")");
    Control<QCheckBox>(wizard, "Check1")->setChecked(true);
    EXPECT_EQ(Text1(wizard), "labelled");
    wizard.setDirPath((labelled / "Live").string());
    EXPECT_EQ(Text1(wizard), "Live");

    // Without Check5 the typed name stays.
    check5->setChecked(false);
    auto* text1 = Control<QLineEdit>(wizard, "Text1");
    text1->setText("Mine");
    wizard.setDirPath(labelled.string());
    EXPECT_EQ(Text1(wizard), "Mine");

    const size_t before = env.screen.shown.size();
    emit text1->editingFinished();
    EXPECT_EQ(env.screen.shown.size(), before);
    text1->setText("Disc\\1");
    emit text1->editingFinished();
    ASSERT_EQ(env.screen.shown.size(), before + 1);
    EXPECT_EQ(env.screen.shown.back().caption, "Syntax-Correction");
    EXPECT_EQ(env.screen.shown.back().text, "A backslash is not allowed in a folder-name");
    EXPECT_EQ(Text1(wizard), "");
}

TEST_F(WizardTest, SettingsComeFromZvxIniAndCheck4OffSavesOnlyItself) {
    frmDocument* document = openDocument();
    const std::pair<const char*, const char*> stored[] = {
        {"ADDWIZLASTDRIVEADDED", "1"},
        {"ADDWIZLASTSUBDIR", "1"},
        {"ADDWIZSUBDIRS", "YES"},
        {"ADDWIZADDASSUBDATA", "NO"},
        {"ADDWIZMAKEPARENTAL", "NO"},
        {"ADDWIZLASTPARENTAL", "Saved"},
        {"ADDWIZAUTOGETNAME", "NO"},
        {"ADDWIZMAKEREALFOLDERS", "NO"},
        {"ADDWIZAUTODETAG", "NO"},
        {"ADDWIZONLYADDPATTERN", "YES"},
        {"ADDWIZTHEADDPATTERN", "*.txt"},
        {"ADDWIZUSEOWNDESCRIPTION", "NO"},
        {"ADDWIZTHEOWNDESCRIPTION", "From the shelf"},
        {"DEFAULTTOPLEVELFOLDER", "3"},
        {"DEFAULTLOWLEVELFOLDER", "2"}};
    for (const auto& [key, value] : stored)
        WriteSetting(env.common, key, value);
    {
        cdwizard wizard(env.common, *document, drives());
        EXPECT_EQ(Control<QComboBox>(wizard, "Drive1")->currentIndex(), 1);
        EXPECT_EQ(wizard.dirPath(), labelled.string());
        EXPECT_EQ(Control<QListWidget>(wizard, "Dir1")->currentRow(), 1);
        EXPECT_TRUE(Control<QCheckBox>(wizard, "Check1")->isChecked());
        EXPECT_TRUE(Control<QRadioButton>(wizard, "Option2")->isChecked());
        EXPECT_FALSE(Control<QCheckBox>(wizard, "Check6")->isChecked());
        EXPECT_EQ(Text1(wizard), "Saved");
        EXPECT_FALSE(Control<QCheckBox>(wizard, "Check5")->isChecked());
        EXPECT_FALSE(Control<QCheckBox>(wizard, "Check3")->isChecked());
        EXPECT_FALSE(Control<QCheckBox>(wizard, "Check2")->isChecked());
        EXPECT_TRUE(Control<QLineEdit>(wizard, "Text2")->isEnabled());
        EXPECT_EQ(Control<QLineEdit>(wizard, "Text2")->text(), "*.txt");
        EXPECT_TRUE(Control<QRadioButton>(wizard, "Option4")->isChecked());
        EXPECT_EQ(Control<QLineEdit>(wizard, "Text3")->text(), "From the shelf");
        EXPECT_NE(Control<QComboBox>(wizard, "ImageCombo1")->currentText(),
                  Control<QComboBox>(wizard, "ImageCombo2")->currentText());

        const std::string before = test::ReadAll(env.common.iniFile());
        Control<QCheckBox>(wizard, "Check4")->setChecked(false);
        Control<QLineEdit>(wizard, "Text3")->setText("Changed");
        Control<QPushButton>(wizard, "command1")->click();
        EXPECT_EQ(wizard.result(), QDialog::Rejected);
        EXPECT_EQ(test::ReadAll(env.common.iniFile()), before + "ADDWIZSAVEMYSETTINGS=NO\r\n");
    }
    cdwizard wizard(env.common, *document, drives());
    EXPECT_FALSE(Control<QCheckBox>(wizard, "Check4")->isChecked());
    Control<QCheckBox>(wizard, "Check4")->setChecked(true);
    Control<QLineEdit>(wizard, "Text3")->setText("Changed");
    Control<QPushButton>(wizard, "command1")->click();
    EXPECT_EQ(ReadSetting(env.common, "ADDWIZSAVEMYSETTINGS", "").toText(), "YES");
    EXPECT_EQ(ReadSetting(env.common, "ADDWIZTHEOWNDESCRIPTION", "").toText(), "Changed");
    EXPECT_EQ(ReadSetting(env.common, "ADDWIZTHEADDPATTERN", "").toText(), "*.txt");
    EXPECT_EQ(ReadSetting(env.common, "DEFAULTTOPLEVELFOLDER", "").toText(), "3");
    EXPECT_EQ(ReadSetting(env.common, "DEFAULTLOWLEVELFOLDER", "").toText(), "2");
}

TEST_F(WizardTest, AddDeviceRefusesAMissingParentalName) {
    frmDocument* document = openDocument();
    cdwizard wizard(env.common, *document, drives());
    Control<QCheckBox>(wizard, "Check5")->setChecked(false);
    Control<QCheckBox>(wizard, "Check6")->setChecked(true);
    auto* text1 = Control<QLineEdit>(wizard, "Text1");
    const size_t before = env.screen.shown.size();
    text1->setText("   ");
    wizard.command2_Click();
    text1->setText("Disc\\1");
    wizard.command2_Click();
    ASSERT_EQ(env.screen.shown.size(), before + 2);
    EXPECT_EQ(env.screen.shown[before].caption, "Error.");
    EXPECT_EQ(env.screen.shown[before].text, "Please enter a name for the parental-folder.");
    EXPECT_EQ(env.screen.shown[before + 1].text,
              "Backslashes are not allowed in a (parental-)foldername.");
    // The form stays: nothing was walked and nothing saved.
    EXPECT_EQ(document->findChild<QTreeWidget*>("List2")->topLevelItemCount(), 2);
    EXPECT_EQ(ReadSetting(env.common, "ADDWIZSAVEMYSETTINGS", "unset").toText(), "unset");
    EXPECT_FALSE(std::filesystem::exists(env.folder / "temptoc.tmp"));
}

TEST_F(WizardTest, AddDeviceWalksTheTreeBelowTheSelectedFolderAndCloses) {
    frmDocument* document = openDocument();
    cdwizard wizard(env.common, *document, drives());
    Control<QCheckBox>(wizard, "Check5")->setChecked(false);
    Control<QCheckBox>(wizard, "Check6")->setChecked(true);
    Control<QLineEdit>(wizard, "Text1")->setText("Disc");
    Control<QRadioButton>(wizard, "Option1")->setChecked(true);
    Control<QCheckBox>(wizard, "Check3")->setChecked(true);
    Control<QCheckBox>(wizard, "Check2")->setChecked(false);
    Control<QPushButton>(wizard, "command2")->click();

    EXPECT_EQ(wizard.result(), QDialog::Accepted);
    auto* tree = document->findChild<QTreeWidget*>("List2");
    ASSERT_EQ(tree->topLevelItemCount(), 2);
    QTreeWidgetItem* music = tree->topLevelItem(0);
    ASSERT_EQ(music->text(0), "Music");
    ASSERT_EQ(music->childCount(), 1);
    QTreeWidgetItem* disc = music->child(0);
    EXPECT_EQ(disc->text(0), "Disc");
    ASSERT_EQ(disc->childCount(), 2);
    EXPECT_EQ(disc->child(0)->text(0), "Pop");
    EXPECT_EQ(disc->child(1)->text(0), "Rock");
    // Disc holds a.txt: the new folders' IDs follow the highest one.
    EXPECT_EQ(entriesOf(document, "00000002"), 1u);
    EXPECT_EQ(entriesOf(document, "00000000"), 1u);
    EXPECT_TRUE(std::find(env.screen.statuses.begin(), env.screen.statuses.end(),
                          "Tree-Adding in progress (recursive directory-adding)...") !=
                env.screen.statuses.end());
    for (const char* temp : {"temptoc.tmp", "tempct.tmp", "tempfil.tmp"})
        EXPECT_FALSE(std::filesystem::exists(env.folder / temp)) << temp;
    EXPECT_EQ(ReadSetting(env.common, "ADDWIZLASTPARENTAL", "").toText(), "Disc");
    EXPECT_TRUE(closeAsksToSave());
}

// The parental name is trimmed in Text1 itself, so the saved setting has no blanks.
TEST_F(WizardTest, AddDeviceTrimsTheParentalNameInText1) {
    frmDocument* document = openDocument();
    cdwizard wizard(env.common, *document, drives());
    Control<QCheckBox>(wizard, "Check5")->setChecked(false);
    Control<QCheckBox>(wizard, "Check6")->setChecked(true);
    Control<QLineEdit>(wizard, "Text1")->setText(" Disc ");
    wizard.command2_Click();
    EXPECT_EQ(Text1(wizard), "Disc");
    EXPECT_EQ(ReadSetting(env.common, "ADDWIZLASTPARENTAL", "").toText(), "Disc");
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
    EXPECT_EQ(ReadSetting(env.common, "ADDWIZSAVEMYSETTINGS", "").toText(), "YES");
}

}  // namespace
}  // namespace zvx
