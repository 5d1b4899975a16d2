#include "shell/Form1.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "common/common.h"
#include "store/settings.h"
#include "ui/command_guard.h"
#include "ui/icons.h"
#include "ui/text_codec.h"

namespace zvx {

namespace {

QPushButton* Button(const char* name, const QString& text, const QString& icon) {
    auto* button = new QPushButton(ThemeIcon(icon), text);
    button->setObjectName(name);
    return button;
}

// The recent list answers the Return key like a double click.
class RecentListWidget : public QListWidget {
  public:
    std::function<void()> onChoose;

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && onChoose)
            onChoose();
        else
            QListWidget::keyPressEvent(event);
    }
};

}  // namespace

Form1::Form1(Common& common, QWidget* parent) : QDialog(parent), common_(common) {
    setObjectName("Form1");
    setWindowTitle("Welcome to ZVX");
    auto* layout = new QHBoxLayout(this);
    auto* buttons = new QVBoxLayout;
    auto* newButton = Button("Command1", "New Document", "document-new");
    auto* openButton = Button("Command2", "Open Document...", "document-open");
    auto* recentButton = Button("Command3", "Recent Documents", "document-open");
    auto* quitButton = Button("Command4", "Quit", "application-exit");
    for (QPushButton* b : {newButton, openButton, recentButton, quitButton})
        buttons->addWidget(b);
    buttons->addStretch();
    layout->addLayout(buttons);

    recentPanel_ = new QWidget;
    recentPanel_->setObjectName("Frame1");
    auto* panel = new QVBoxLayout(recentPanel_);
    panel->addWidget(new QLabel("Recent Documents:"));
    auto* list = new RecentListWidget;
    List1_ = list;
    List1_->setObjectName("List1");
    panel->addWidget(List1_);
    layout->addWidget(recentPanel_, 1);

    // The main window loaded the recent keys into the list just before.
    for (const std::string& path : common_.Recentlist)
        List1_->addItem(ToQString(path));
    // The very first run shows only the buttons.
    recentPanel_->setVisible(ReadSetting(common_, "firststart2", "yes").toText() == "no");

    connect(newButton, &QPushButton::clicked, this, [this] { fire("document_new"); });
    connect(openButton, &QPushButton::clicked, this, [this] { fire("document_open"); });
    connect(recentButton, &QPushButton::clicked, this,
            [this] { recentPanel_->setVisible(!recentPanel_->isVisible()); });
    connect(quitButton, &QPushButton::clicked, this, [this] {
        if (askQuit)
            askQuit();
    });
    connect(List1_, &QListWidget::itemDoubleClicked, this, [this] { openSelectedRecent(); });
    list->onChoose = [this] { openSelectedRecent(); };
}

bool Form1::recentPanelVisible() const {
    return !recentPanel_->isHidden();
}

void Form1::done(int result) {
    RunGuarded(common_, [this] {
        WriteSetting(common_, "firststart", "no");
        WriteSetting(common_, "firststart2", "no");
    });
    QDialog::done(result);
}

void Form1::fire(const std::string& command) {
    done(Accepted);
    if (coreCalls)
        coreCalls(command);
}

void Form1::openSelectedRecent() {
    QListWidgetItem* item = List1_->currentItem();
    if (!item || item->text().isEmpty())
        return;
    common_.pendingDocument = FromQString(item->text());
    hide();
    if (coreCalls)
        coreCalls("document_open");
    done(Accepted);
}

}  // namespace zvx
