#pragma once
// The entry editor's form, tab 2 of a document window's Tabthing: one control for each
// entry field, the lock beside each lockable one, the navigation frame, the style
// chooser and the jump list. It shows what the document window gives it and tells it
// what the person does; the document window decides (EditorRefresh and the applies).

#include <QWidget>
#include <string>
#include <vector>

#include "document/editor_choices.h"
#include "document/editor_form.h"
#include "document/editor_navigation.h"

class QCheckBox;
class QComboBox;
class QFrame;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QScrollBar;
class QTreeWidget;

namespace zvx {

class EntryEditor : public QWidget {
    Q_OBJECT
  public:
    explicit EntryEditor(QWidget* parent = nullptr);

    // EditorInit: the rows of Combo1, Combo4, Combo3 and the style list, once; then
    // the Tag of Frame3 is "yea".
    void fillChoices(const std::vector<FileTypeChoice>& fileTypes,
                     const std::vector<std::string>& styles);
    bool initialised() const;

    // What the form shows, as a person reads it, and the locks.
    EditorForm form() const;
    // Shows the texts; Combo1 selects the row with exactly its text unless Check1 is
    // set, then the audio-only fields follow it (Comboenabling).
    void showForm(const EditorForm& form);
    // Clears the locks Check1 to Check8 and Check12 to Check14.
    void clearLocks();

    // Frame3's state: Label10, Command5 and Command6, Label21 and FlatBttn8.
    void showPlace(const std::string& caption, bool back, bool next);
    void showChanges(const std::string& caption, bool anyChanges);
    void setForgetEnabled(bool on);
    // With rows Frame1 and Frame2 are on, without them everything is off.
    void enableFrames(bool rows);

    // Check15, "Edit selected entries only". Setting it tells nothing.
    bool selectedOnly() const;
    void setSelectedOnly(bool on);

    // Fills the jump list (ListView3) while its panel is open.
    void showJumpList(const std::vector<JumpRow>& rows);

  signals:
    // A change event of a field, a lock or the style chooser: EditorChanged.
    void edited();
    void backClicked();
    void nextClicked();
    // Check15 was switched off.
    void selectedOnlySwitchedOff();
    // The jump list opened and waits for its rows.
    void jumpListOpened();
    void jumpTo(long position);
    void forgetClicked();
    void applyLocksClicked();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* buildFields();
    QGroupBox* buildFileFrame();
    QGroupBox* buildAudioFrame();
    QGroupBox* buildNavigation();
    void buildStyleChooser();
    void buildJumpList();
    QLineEdit* addLine(const char* name);
    QCheckBox* addLock(const char* name);
    QLineEdit* textOf(int field) const;
    QCheckBox* lockOf(int field) const;
    void Comboenabling();
    void selectFileType(const std::string& text);
    void openStyleChooser();
    void closeStyleChooser();
    void toggleJumpList();
    void Text9_LostFocus();
    void VScroll1_Change(int value);

    QLabel* Label17_;
    QLabel* Label19_;
    QLabel* Label16_;
    QLabel* Label29_;
    QLabel* Label24_;
    QLabel* Label10_;
    QLabel* Label21_;
    QLineEdit* texts_[16] = {};  // Text1 to Text15 by their number
    QComboBox* Combo1_;
    QComboBox* Combo3_;
    QComboBox* Combo4_;
    QCheckBox* checks_[16] = {};  // Check1 to Check15 by their number
    QScrollBar* VScroll1_;
    QPushButton* FlatBttn5_;
    QPushButton* Command5_;
    QPushButton* Command6_;
    QPushButton* FlatBttn8_;
    QGroupBox* Frame1_;
    QGroupBox* Frame2_;
    QGroupBox* Frame3_;
    QFrame* Picture2_;
    QListWidget* ListView2_;
    QFrame* Picture3_;
    QTreeWidget* ListView3_;
    // The audio-only controls with their labels, and Text11 with Label24.
    std::vector<QWidget*> audioControls_;
    // The file-type of a line that no row of Combo1 has: kept while nothing is picked.
    std::string unlistedType_;
    bool StyleCancel_ = false;
};

}  // namespace zvx
