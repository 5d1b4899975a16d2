#include "document/entry_editor.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <initializer_list>
#include <tuple>
#include <utility>

#include "ui/content_icons.h"
#include "ui/text_codec.h"

namespace zvx {

namespace {

// The number of the TextN that shows a field, 0 for a field shown otherwise.
constexpr int kTextOfField[23] = {0, 0,  7, 0, 0, 0, 0,  1,  0,  3,  2, 4,
                                  0, 10, 5, 8, 9, 6, 11, 12, 13, 14, 15};
// The number of the CheckN that locks a field, 0 for a field without a lock.
constexpr int kLockOfField[23] = {0, 0,  0, 0, 0,  0, 8,  0, 1, 3, 2, 4,
                                  5, 13, 6, 0, 12, 7, 14, 0, 0, 0, 0};
constexpr const char* kReadOnlyNotAvailable = "Read-only: n/a";

QString ObjectName(const char* prefix, int number) {
    return QString(prefix) + QString::number(number);
}

}  // namespace

EntryEditor::EntryEditor(QWidget* parent) : QWidget(parent) {
    setObjectName("EntryEditor");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    // edmove: the fields pan inside the tab when it is smaller than they are.
    auto* edmove = new QScrollArea;
    edmove->setObjectName("edmove");
    edmove->setWidgetResizable(true);
    edmove->setFrameShape(QFrame::NoFrame);
    edmove->setWidget(buildFields());
    layout->addWidget(edmove, 1);
    layout->addWidget(buildNavigation());
    buildStyleChooser();
    buildJumpList();
    Label16_->setText(QString::fromLatin1(kMediumIdAtStart));
    Comboenabling();
}

QWidget* EntryEditor::buildFields() {
    auto* picture1 = new QWidget;
    picture1->setObjectName("Picture1");
    auto* layout = new QHBoxLayout(picture1);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(buildFileFrame(), 1);
    layout->addWidget(buildAudioFrame(), 1);
    return picture1;
}

QLineEdit* EntryEditor::addLine(const char* name) {
    auto* line = new QLineEdit;
    line->setObjectName(name);
    return line;
}

QCheckBox* EntryEditor::addLock(const char* name) {
    auto* lock = new QCheckBox;
    lock->setObjectName(name);
    lock->setToolTip("Keep this value for the following entries");
    connect(lock, &QCheckBox::toggled, this, &EntryEditor::edited);
    return lock;
}

QGroupBox* EntryEditor::buildFileFrame() {
    Frame1_ = new QGroupBox("File");
    Frame1_->setObjectName("Frame1");
    auto* grid = new QGridLayout(Frame1_);
    int row = 0;
    auto caption = [&](const char* text, QWidget* value) {
        grid->addWidget(new QLabel(text), row, 0);
        grid->addWidget(value, row, 1);
    };
    Label17_ = new QLabel;
    Label17_->setObjectName("Label17");
    caption("File:", Label17_);
    ++row;
    Label19_ = new QLabel;
    Label19_->setObjectName("Label19");
    caption("Location:", Label19_);
    ++row;
    Label16_ = new QLabel;
    Label16_->setObjectName("Label16");
    caption("Medium ID:", Label16_);
    ++row;
    Label29_ = new QLabel(kReadOnlyNotAvailable);
    Label29_->setObjectName("Label29");
    grid->addWidget(Label29_, row++, 1);
    for (QLabel* label : {Label17_, Label19_, Label16_})
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);

    Combo4_ = new QComboBox;
    Combo4_->setObjectName("Combo4");
    Combo4_->setEditable(true);
    caption("Medium description:", Combo4_);
    checks_[8] = addLock("Check8");
    grid->addWidget(checks_[8], row++, 2);
    texts_[7] = addLine("Text7");
    caption("Size", texts_[7]);
    ++row;
    texts_[1] = addLine("Text1");
    caption("Date", texts_[1]);
    ++row;
    Combo1_ = new QComboBox;
    Combo1_->setObjectName("Combo1");
    caption("File-type", Combo1_);
    checks_[1] = addLock("Check1");
    grid->addWidget(checks_[1], row++, 2);
    texts_[10] = addLine("Text10");
    caption("Producer", texts_[10]);
    checks_[13] = addLock("Check13");
    grid->addWidget(checks_[13], row++, 2);
    texts_[6] = addLine("Text6");
    caption("Comment", texts_[6]);
    checks_[7] = addLock("Check7");
    grid->addWidget(checks_[7], row++, 2);
    texts_[11] = addLine("Text11");
    Label24_ = new QLabel("Name / description");
    Label24_->setObjectName("Label24");
    grid->addWidget(Label24_, row, 0);
    grid->addWidget(texts_[11], row, 1);
    checks_[14] = addLock("Check14");
    grid->addWidget(checks_[14], row++, 2);
    grid->setRowStretch(row, 1);
    grid->setColumnStretch(1, 1);

    connect(Combo1_, &QComboBox::currentIndexChanged, this, [this] {
        if (Combo1_->currentIndex() >= 0)
            unlistedType_.clear();
        Comboenabling();
        emit edited();
    });
    connect(Combo4_, &QComboBox::currentTextChanged, this, &EntryEditor::edited);
    for (int number : {6, 10, 11})
        connect(texts_[number], &QLineEdit::textChanged, this, &EntryEditor::edited);
    return Frame1_;
}

QGroupBox* EntryEditor::buildAudioFrame() {
    Frame2_ = new QGroupBox("Audio");
    Frame2_->setObjectName("Frame2");
    auto* grid = new QGridLayout(Frame2_);
    int row = 0;
    // A field's row: its label and control, its lock when it has one; audio-only rows
    // are remembered for Comboenabling.
    auto add = [&](const char* label, QWidget* control, int lock, bool audio) {
        auto* caption = new QLabel(label);
        grid->addWidget(caption, row, 0);
        grid->addWidget(control, row, 1);
        if (lock > 0) {
            checks_[lock] = addLock(ObjectName("Check", lock).toLatin1().constData());
            grid->addWidget(checks_[lock], row, 2);
        }
        if (audio)
            audioControls_.insert(audioControls_.end(), {caption, control});
        ++row;
    };
    // The title's label reads "Track", as the form always had it.
    for (const auto& [number, label, lock] :
         std::initializer_list<std::tuple<int, const char*, int>>{
             {3, "Track", 3}, {2, "Artist", 2}, {4, "Album", 4}}) {
        texts_[number] = addLine(ObjectName("Text", number).toLatin1().constData());
        add(label, texts_[number], lock, true);
    }
    Combo3_ = new QComboBox;
    Combo3_->setObjectName("Combo3");
    Combo3_->setEditable(true);
    add("Genre", Combo3_, 5, true);

    auto* style = new QWidget;
    auto* styleLine = new QHBoxLayout(style);
    styleLine->setContentsMargins(0, 0, 0, 0);
    texts_[5] = addLine("Text5");
    FlatBttn5_ = new QPushButton("...");
    FlatBttn5_->setObjectName("FlatBttn5");
    FlatBttn5_->setToolTip("Pick the styles of this entry");
    FlatBttn5_->setFixedWidth(32);
    // The chooser's buttons leave the focus in the style list, so that the list's
    // losing it does not close the chooser before the button is heard.
    FlatBttn5_->setFocusPolicy(Qt::NoFocus);
    styleLine->addWidget(texts_[5], 1);
    styleLine->addWidget(FlatBttn5_);
    add("Style", style, 6, true);
    audioControls_.insert(audioControls_.end(), {texts_[5], FlatBttn5_});

    auto* track = new QWidget;
    auto* trackLine = new QHBoxLayout(track);
    trackLine->setContentsMargins(0, 0, 0, 0);
    texts_[8] = addLine("Text8");
    VScroll1_ = new QScrollBar(Qt::Vertical);
    VScroll1_->setObjectName("VScroll1");
    VScroll1_->setRange(0, 2);
    VScroll1_->setValue(1);
    VScroll1_->setFixedHeight(texts_[8]->sizeHint().height());
    trackLine->addWidget(texts_[8], 1);
    trackLine->addWidget(VScroll1_);
    add("Track #", track, 0, true);
    audioControls_.insert(audioControls_.end(), {texts_[8], VScroll1_});

    texts_[9] = addLine("Text9");
    add("Year", texts_[9], 12, true);
    for (const auto& [number, label] : std::initializer_list<std::pair<int, const char*>>{
             {12, "Length"}, {13, "Bitrate"}, {14, "Frequency"}, {15, "Mode"}}) {
        texts_[number] = addLine(ObjectName("Text", number).toLatin1().constData());
        add(label, texts_[number], 0, true);
    }
    grid->setRowStretch(row, 1);
    grid->setColumnStretch(1, 1);

    for (int number : {2, 3, 4, 5, 8, 9})
        connect(texts_[number], &QLineEdit::textChanged, this, &EntryEditor::edited);
    connect(Combo3_, &QComboBox::currentTextChanged, this, &EntryEditor::edited);
    connect(FlatBttn5_, &QPushButton::clicked, this, [this] {
        if (Picture2_->isVisible())
            closeStyleChooser();
        else
            openStyleChooser();
    });
    connect(VScroll1_, &QScrollBar::valueChanged, this, &EntryEditor::VScroll1_Change);
    texts_[9]->installEventFilter(this);
    return Frame2_;
}

QGroupBox* EntryEditor::buildNavigation() {
    Frame3_ = new QGroupBox;
    Frame3_->setObjectName("Frame3");
    auto* line = new QHBoxLayout(Frame3_);
    Command5_ = new QPushButton("< Back");
    Command5_->setObjectName("Command5");
    Command6_ = new QPushButton("Next >");
    Command6_->setObjectName("Command6");
    Label10_ = new QLabel("Entry 0 of 0");
    Label10_->setObjectName("Label10");
    auto* jump = new QPushButton("Jump to");
    jump->setObjectName("FlatBttn2");
    checks_[15] = new QCheckBox("Edit selected entries only");
    checks_[15]->setObjectName("Check15");
    Label21_ = new QLabel("(no changes made yet)");
    Label21_->setObjectName("Label21");
    FlatBttn8_ = new QPushButton("Forget changes...");
    FlatBttn8_->setObjectName("FlatBttn8");
    FlatBttn8_->setEnabled(false);
    auto* apply = new QPushButton("Apply locked fields");
    apply->setObjectName("Command11");
    apply->setToolTip("Give every entry being edited the values of the locked fields");
    for (QWidget* widget : std::initializer_list<QWidget*>{
             Command5_, Label10_, Command6_, jump, checks_[15], Label21_, FlatBttn8_, apply})
        line->addWidget(widget);
    line->insertStretch(5, 1);

    connect(Command5_, &QPushButton::clicked, this, &EntryEditor::backClicked);
    connect(Command6_, &QPushButton::clicked, this, &EntryEditor::nextClicked);
    connect(jump, &QPushButton::clicked, this, &EntryEditor::toggleJumpList);
    connect(checks_[15], &QCheckBox::toggled, this, [this](bool on) {
        if (!on)
            emit selectedOnlySwitchedOff();
    });
    connect(FlatBttn8_, &QPushButton::clicked, this, &EntryEditor::forgetClicked);
    connect(apply, &QPushButton::clicked, this, &EntryEditor::applyLocksClicked);
    return Frame3_;
}

void EntryEditor::fillChoices(const std::vector<FileTypeChoice>& fileTypes,
                              const std::vector<std::string>& styles) {
    const QSignalBlocker quiet1(Combo1_);
    const QSignalBlocker quiet3(Combo3_);
    const QSignalBlocker quiet4(Combo4_);
    for (const FileTypeChoice& type : fileTypes)
        Combo1_->addItem(ContentIcon(type.icon), ToQString(type.text));
    Combo1_->setCurrentIndex(-1);
    for (std::string_view medium : MediumDescriptionChoices())
        Combo4_->addItem(ToQString(medium));
    for (std::string_view genre : GenreNameChoices())
        Combo3_->addItem(ToQString(genre));
    for (const std::string& style : styles) {
        auto* item = new QListWidgetItem(ToQString(style), ListView2_);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        item->setCheckState(Qt::Unchecked);
    }
    Frame3_->setProperty("Tag", "yea");
}

bool EntryEditor::initialised() const {
    return Frame3_->property("Tag").toString() == "yea";
}

QLineEdit* EntryEditor::textOf(int field) const {
    return kTextOfField[field] > 0 ? texts_[kTextOfField[field]] : nullptr;
}

QCheckBox* EntryEditor::lockOf(int field) const {
    return kLockOfField[field] > 0 ? checks_[kLockOfField[field]] : nullptr;
}

EditorForm EntryEditor::form() const {
    EditorForm form;
    for (int field = 1; field <= 22; ++field) {
        if (const QLineEdit* text = textOf(field))
            form.texts[static_cast<size_t>(field)] = FromQString(text->text());
        if (const QCheckBox* lock = lockOf(field))
            form.locks[static_cast<size_t>(field)] = lock->isChecked();
    }
    form.texts[1] = FromQString(Label17_->text());
    form.texts[3] = FromQString(Label19_->text());
    form.texts[4] = FromQString(Label16_->text());
    form.texts[5] = FromQString(Label29_->text());
    form.texts[6] = FromQString(Combo4_->currentText());
    form.texts[8] =
        Combo1_->currentIndex() >= 0 ? FromQString(Combo1_->currentText()) : unlistedType_;
    form.texts[12] = FromQString(Combo3_->currentText());
    return form;
}

void EntryEditor::showForm(const EditorForm& form) {
    for (int field = 1; field <= 22; ++field) {
        if (QLineEdit* text = textOf(field))
            text->setText(ToQString(form.texts[static_cast<size_t>(field)]));
    }
    Label17_->setText(ToQString(form.texts[1]));
    Label19_->setText(ToQString(form.texts[3]));
    Label16_->setText(ToQString(form.texts[4]));
    Label29_->setText(ToQString(form.texts[5]));
    Combo4_->setCurrentText(ToQString(form.texts[6]));
    Combo3_->setCurrentText(ToQString(form.texts[12]));
    if (!checks_[1]->isChecked())
        selectFileType(form.texts[8]);
    Comboenabling();
}

// A file-type that no row has is kept as it is, shown greyed, so that the entry keeps
// it unless the person picks another.
void EntryEditor::selectFileType(const std::string& text) {
    const int row = Combo1_->findText(ToQString(text), Qt::MatchExactly | Qt::MatchCaseSensitive);
    unlistedType_ = row < 0 ? text : std::string();
    Combo1_->setPlaceholderText(ToQString(unlistedType_));
    Combo1_->setCurrentIndex(row);
}

void EntryEditor::clearLocks() {
    for (int number : {1, 2, 3, 4, 5, 6, 7, 8, 12, 13, 14})
        checks_[number]->setChecked(false);
}

void EntryEditor::Comboenabling() {
    const bool audio = AudioFieldsEnabled(
        Combo1_->currentIndex() >= 0 ? FromQString(Combo1_->currentText()) : std::string());
    for (QWidget* control : audioControls_)
        control->setEnabled(audio);
    texts_[11]->setEnabled(!audio);
    Label24_->setEnabled(!audio);
}

void EntryEditor::showPlace(const std::string& caption, bool back, bool next) {
    Label10_->setText(ToQString(caption));
    Command5_->setEnabled(back);
    Command6_->setEnabled(next);
}

void EntryEditor::showChanges(const std::string& caption, bool anyChanges) {
    Label21_->setText(ToQString(caption));
    FlatBttn8_->setEnabled(anyChanges);
}

void EntryEditor::setForgetEnabled(bool on) {
    FlatBttn8_->setEnabled(on);
}

void EntryEditor::enableFrames(bool rows) {
    Frame1_->setEnabled(rows);
    Frame2_->setEnabled(rows);
    if (rows)
        return;
    Command5_->setEnabled(false);
    Command6_->setEnabled(false);
}

bool EntryEditor::selectedOnly() const {
    return checks_[15]->isChecked();
}

void EntryEditor::setSelectedOnly(bool on) {
    const QSignalBlocker quiet(checks_[15]);
    checks_[15]->setChecked(on);
}

void EntryEditor::Text9_LostFocus() {
    texts_[9]->setText(ToQString(YearCheck(FromQString(texts_[9]->text()))));
}

void EntryEditor::VScroll1_Change(int value) {
    if (value == 1)
        return;
    texts_[8]->setText(ToQString(TrackStep(FromQString(texts_[8]->text()), value)));
    VScroll1_->setValue(1);
}

bool EntryEditor::eventFilter(QObject* watched, QEvent* event) {
    if (watched == texts_[9]) {
        if (event->type() == QEvent::FocusOut)
            Text9_LostFocus();
        else if (event->type() == QEvent::FocusIn)
            // After the focus arrives, or the click that brought it moves the cursor.
            QTimer::singleShot(0, texts_[9], [this] { texts_[9]->setSelection(0, 4); });
    } else if (watched == ListView2_) {
        if (event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key == Qt::Key_Escape)
                StyleCancel_ = true;
            if (key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter) {
                closeStyleChooser();
                return true;
            }
        } else if (event->type() == QEvent::FocusOut) {
            closeStyleChooser();
        }
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace zvx
