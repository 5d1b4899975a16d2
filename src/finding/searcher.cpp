#include "finding/searcher.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>
#include <cstdlib>

#include "common/common.h"
#include "document/column_header.h"
#include "document/document_table.h"
#include "document/frmDocument.h"
#include "finding/result_row.h"
#include "finding/search_result_model.h"
#include "finding/search_run.h"
#include "finding/search_words.h"
#include "finding/searcher_rules.h"
#include "platform/file_error.h"
#include "ui/command_guard.h"
#include "ui/text_codec.h"

namespace zvx {

namespace {

QPushButton* Button(const char* name, const char* caption) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    return button;
}

QComboBox* Choices(const char* name, const auto& texts) {
    auto* combo = new QComboBox;
    combo->setObjectName(name);
    for (const auto& text : texts)
        combo->addItem(ToQString(text));
    return combo;
}

// Ends the process: the tables of a search overflowed, which nothing can go on from.
// Unwinding would run the windows' handlers again, so the process ends at once.
void EndWithMessage(Common& common, const std::string& text) {
    common.screen().message(kErrorBoxCaption, text, MsgButtons::OkOnly, MsgIcon::Critical);
    std::_Exit(EXIT_FAILURE);
}

}  // namespace

searcher::searcher(Common& common, const DocumentTable& documents, QWidget* parent)
    : QWidget(parent), common_(common), documents_(documents) {
    setObjectName("searcher");
    setWindowTitle("Search ZVX");
    endProcess = [this](const std::string& text) { EndWithMessage(common_, text); };
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(buildSentence());
    layout->addWidget(buildSource());
    layout->addWidget(buildResults(), 1);
    resize(720, 520);
}

searcher::~searcher() = default;

// "IF" field comparison text "...", "THEN" word mode, case, and the two actions.
QLayout* searcher::buildSentence() {
    auto* ifLabel = new QLabel("IF");
    ifLabel->setObjectName("Label2");
    Combo1_ = Choices("Combo1", SearchFieldChoices());
    Combo2_ = Choices("Combo2", kComparisonTexts);
    Text1_ = new QLineEdit;
    Text1_->setObjectName("Text1");
    QPushButton* pick = Button("FlatBttn3", "...");
    pick->setFixedWidth(32);
    pick->setToolTip("Pick a value of the chosen field");
    auto* thenLabel = new QLabel("THEN");
    thenLabel->setObjectName("Label3");
    Combo4_ = Choices("Combo4", kWordModeTexts);
    Check3_ = new QCheckBox("Search case-sensitive");
    Check3_->setObjectName("Check3");
    Command1_ = Button("Command1", "New Search-Result");
    Command1_->setDefault(true);
    QPushButton* remove = Button("FlatBttn2", "Remove from result");

    auto* sentence = new QGridLayout;
    sentence->addWidget(ifLabel, 0, 0);
    sentence->addWidget(Combo1_, 0, 1);
    sentence->addWidget(Combo2_, 0, 2);
    sentence->addWidget(Text1_, 0, 3);
    sentence->addWidget(pick, 0, 4);
    sentence->addWidget(thenLabel, 1, 0);
    sentence->addWidget(Combo4_, 1, 1);
    sentence->addWidget(Check3_, 1, 2);
    auto* actions = new QHBoxLayout;
    actions->addStretch();
    actions->addWidget(Command1_);
    actions->addWidget(remove);
    sentence->addLayout(actions, 1, 3, 1, 2);
    sentence->setColumnStretch(3, 1);

    connect(Command1_, &QPushButton::clicked, this, &searcher::Command1_Click);
    connect(Text1_, &QLineEdit::returnPressed, Command1_, &QPushButton::click);
    connect(remove, &QPushButton::clicked, this, &searcher::FlatBttn2_Click);
    return sentence;
}

QWidget* searcher::buildSource() {
    auto* frame = new QGroupBox("Search-source:");
    frame->setObjectName("Frame1");
    Combo3_ = new QComboBox;
    Combo3_->setObjectName("Combo3");
    Combo3_->setMinimumContentsLength(24);
    Option1_ = new QRadioButton("Search in entire ZVX");
    Option1_->setObjectName("Option1");
    Option1_->setChecked(true);
    Option2_ = new QRadioButton("Search in selected (sub-) tree");
    Option2_->setObjectName("Option2");
    Option3_ = new QRadioButton("Search in selected folder");
    Option3_->setObjectName("Option3");
    auto* options = new QButtonGroup(this);
    for (QRadioButton* option : {Option1_, Option2_, Option3_})
        options->addButton(option);
    auto* layout = new QHBoxLayout(frame);
    layout->addWidget(Combo3_, 1);
    layout->addWidget(Option1_);
    layout->addWidget(Option2_);
    layout->addWidget(Option3_);

    connect(Combo3_, &QComboBox::activated, this, &searcher::Form_Activate);
    connect(Option2_, &QRadioButton::clicked, this, &searcher::Option2_Click);
    connect(Option3_, &QRadioButton::clicked, this, &searcher::Option3_Click);
    return frame;
}

QWidget* searcher::buildResults() {
    auto* frame = new QGroupBox("Results:");
    frame->setObjectName("Frame2");
    QPushButton* exportButton = Button("Command4", "Export...");
    QPushButton* clear = Button("FlatBttn1", "Clear");
    FlatBttn4_ = Button("FlatBttn4", "Jump to ZVX-entry");
    Label1_ = new QLabel(ToQString(FoundText(0)));
    Label1_->setObjectName("Label1");
    model_ = new SearchResultModel(common_.settings, this);
    ListView1_ = new QTreeView;
    ListView1_->setObjectName("ListView1");
    ListView1_->setModel(model_);
    ListView1_->setRootIsDecorated(false);
    ListView1_->setUniformRowHeights(true);
    ListView1_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    ListView1_->setContextMenuPolicy(Qt::NoContextMenu);
    ListView1_->header()->setSectionsMovable(true);
    ListView1_->header()->setSectionsClickable(true);
    ListView1_->installEventFilter(this);
    ListView1_->viewport()->installEventFilter(this);
    loadColumnSetting(StartColumnSettingName(common_));

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(exportButton);
    buttons->addWidget(clear);
    buttons->addWidget(FlatBttn4_);
    buttons->addStretch();
    buttons->addWidget(Label1_);
    auto* layout = new QVBoxLayout(frame);
    layout->addLayout(buttons);
    layout->addWidget(ListView1_);

    // Timer1: the information on the selection follows a click once the click is done.
    Timer1_ = new QTimer(this);
    Timer1_->setObjectName("Timer1");
    Timer1_->setSingleShot(true);
    Timer1_->setInterval(0);
    connect(Timer1_, &QTimer::timeout, this, &searcher::listclickinfo);
    // FlatBttn4's row follows the selection at once, so that a jump never takes the row
    // selected before.
    connect(ListView1_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        showJumpRow();
        Timer1_->start();
    });
    connect(ListView1_, &QAbstractItemView::doubleClicked, this, [this] {
        if (coreCalls)
            coreCalls("search_results_execute");
    });
    connect(ListView1_->header(), &QHeaderView::sectionClicked, this,
            [this](int logical) { sortBy(logical + 1); });
    connect(exportButton, &QPushButton::clicked, this, &searcher::Command4_Click);
    connect(clear, &QPushButton::clicked, this, &searcher::FlatBttn1_Click);
    connect(FlatBttn4_, &QPushButton::clicked, this, &searcher::FlatBttn4_Click);
    return frame;
}

// Every action runs under the command handler: a file that fails is told in the error
// box, and an overflow of the search's tables ends the process.
void searcher::run(const std::function<void()>& action) {
    const bool wasBusy = busy_;
    busy_ = true;
    RunGuarded(common_, [&] {
        try {
            action();
        } catch (const SearchOverflow& overflow) {
            endProcess(overflow.what());
        }
    });
    busy_ = wasBusy;
    ListView1_->show();
}

void searcher::Form_Activate() {
    if (busy_)
        return;
    run([this] {
        if (onActivated)
            onActivated();
        prepare();
    });
}

void searcher::docucache() {
    run([this] { prepare(); });
}

// docucache's steps: Combo3 refilled, the remembered document prepared anew.
void searcher::prepare() {
    const std::vector<frmDocument*> documents = openDocuments();
    std::vector<std::string> captions;
    for (const frmDocument* document : documents)
        captions.push_back(document->caption());
    const DocucachePlan plan = zvx::docucache(captions, FromQString(Combo3_->currentText()));
    {
        const QSignalBlocker quiet(Combo3_);
        Combo3_->clear();
        for (const std::string& caption : plan.captions)
            Combo3_->addItem(ToQString(caption));
        Combo3_->setCurrentIndex(plan.prepare ? static_cast<int>(*plan.prepare) : -1);
    }
    if (plan.documentGone) {
        Option1_->setChecked(true);
        common_.searchSplitMode = false;
    }
    if (plan.prepare)
        documents[*plan.prepare]->SearchInit();
    Command1_->setEnabled(plan.searchEnabled);
}

void searcher::setSource(const std::string& caption) {
    Combo3_->setCurrentIndex(Combo3_->findText(ToQString(caption), Qt::MatchExactly));
}

std::vector<frmDocument*> searcher::openDocuments() const {
    std::vector<frmDocument*> documents;
    for (int slot = 1; slot <= DocumentTable::kSlots; ++slot) {
        if (auto* document = dynamic_cast<frmDocument*>(documents_.view(slot)))
            documents.push_back(document);
    }
    return documents;
}

void searcher::Option2_Click() {
    run([this] { splitSource(); });
}

void searcher::Option3_Click() {
    run([this] { splitSource(); });
}

// The first click on a split option prepares the split files of every document of the
// chosen caption; later clicks use them as the last activation left them.
void searcher::splitSource() {
    if (common_.searchSplitMode)
        return;
    common_.searchSplitMode = true;
    const std::string chosen = FromQString(Combo3_->currentText());
    for (frmDocument* document : openDocuments()) {
        if (document->caption() == chosen)
            document->SearchInit();
    }
}

bool searcher::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonRelease:
            if (static_cast<QMouseEvent*>(event)->button() == Qt::RightButton && onListPopup)
                onListPopup(static_cast<QMouseEvent*>(event)->globalPosition().toPoint());
            Timer1_->start();
            break;
        case QEvent::KeyPress: {
            const auto* key = static_cast<QKeyEvent*>(event);
            if (key->key() == Qt::Key_A && key->modifiers() == Qt::ControlModifier) {
                ListView1_->selectAll();
                listclickinfo();
                return true;
            }
            // The context-menu key, key 93.
            if (key->key() == Qt::Key_Menu && key->modifiers() == Qt::NoModifier && onListPopup) {
                onListPopup(ListView1_->mapToGlobal(ListView1_->rect().center()));
                return true;
            }
            break;
        }
        case QEvent::KeyRelease: {
            const auto* key = static_cast<QKeyEvent*>(event);
            if ((key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) &&
                !key->isAutoRepeat() && coreCalls)
                coreCalls("search_results_execute");
            break;
        }
        default:
            break;
    }
    return QWidget::eventFilter(watched, event);
}

void searcher::loadColumnSetting(const std::string& name) {
    ListLayout layout(kResultColumnCount, kColumnWidth);
    try {
        LoadColumnSetting(common_, layout, name, true);
    } catch (const FileError&) {
        return;  // a missing layout leaves the columns as they are
    }
    ApplyColumnLayout(ListView1_->header(), layout);
    sort_ = layout.sort;
}

void searcher::saveColumnSetting(const std::string& name) {
    ListLayout layout = HeaderColumnLayout(ListView1_->header());
    layout.sort = sort_;
    SaveColumnSetting(common_, layout, name, true);
}

}  // namespace zvx
