#include "support/journey.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <cstdlib>

#include "common/clock.h"
#include "common/file_pattern.h"
#include "document/frmDocument.h"
#include "shell/frmMain.h"
#include "shell/main_sequence.h"
#include "ui/zvx_application.h"

namespace zvx::test {

namespace {

// A step that waits longer than this is stuck: the program never showed what it needs.
constexpr qint64 kStepLimitMs = 30000;
constexpr int kTickMs = 5;

MsgAnswer CautiousAnswer(MsgButtons buttons) {
    switch (buttons) {
        case MsgButtons::YesNo:
        case MsgButtons::YesNoCancel:
            return MsgAnswer::No;
        case MsgButtons::OkCancel:
        case MsgButtons::RetryCancel:
            return MsgAnswer::Cancel;
        case MsgButtons::AbortRetryIgnore:
            return MsgAnswer::Abort;
        case MsgButtons::OkOnly:
            break;
    }
    return MsgAnswer::Ok;
}

QWidget* WindowInFront() {
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    return nullptr;
}

}  // namespace

void JourneyScreen::expectMessage(const std::string& caption, MsgAnswer answer,
                                  const std::string& textPart) {
    script_.push_back({"message", caption, textPart, answer, {}, {}});
}

void JourneyScreen::expectInput(const std::string& caption, const std::string& answer) {
    script_.push_back({"input", caption, {}, MsgAnswer::Ok, answer, {}});
}

void JourneyScreen::expectFileDialog(const std::string& title, const FileDialogResult& answer) {
    script_.push_back({"filedialog", title, {}, MsgAnswer::Ok, {}, answer});
}

const JourneyScreen::Expected* JourneyScreen::next(const std::string& kind,
                                                   const std::string& caption,
                                                   const std::string& text) {
    asked.push_back(caption);
    const bool fits = !script_.empty() && script_.front().kind == kind &&
                      script_.front().caption == caption &&
                      text.find(script_.front().textPart) != std::string::npos;
    if (!fits) {
        if (!lenient)
            ADD_FAILURE() << "unscripted " << kind << " \"" << caption << "\": " << text;
        return nullptr;
    }
    taken_ = script_.front();
    script_.pop_front();
    return &taken_;
}

MsgAnswer JourneyScreen::message(const std::string& caption, const std::string& text,
                                 MsgButtons buttons, MsgIcon) {
    if (onMessage)
        onMessage(caption);
    const Expected* expected = next("message", caption, text);
    return expected ? expected->answer : CautiousAnswer(buttons);
}

std::string JourneyScreen::input(const std::string& caption, const std::string&,
                                 const std::string&) {
    const Expected* expected = next("input", caption, "");
    return expected ? expected->text : std::string();
}

void JourneyScreen::expectDuplicate(const std::string& choice) {
    script_.push_back({"doubledetect", "", {}, MsgAnswer::Ok, choice, {}});
}

std::string JourneyScreen::doubledetect(const DuplicateQuestion&) {
    const Expected* expected = next("doubledetect", "", "");
    return expected ? expected->text : "keepold";
}

FileDialogResult JourneyScreen::fileDialog(const FileDialogRequest& request) {
    const Expected* expected = next("filedialog", request.title, "");
    return expected ? expected->files : FileDialogResult{};
}

Journey::Journey() {
    if (const char* home = std::getenv("ZVX_HOME"))
        previousHome_ = home;
    setenv("ZVX_HOME", folder_.path().c_str(), 1);
}

Journey::~Journey() {
    if (previousHome_.empty())
        unsetenv("ZVX_HOME");
    else
        setenv("ZVX_HOME", previousHome_.c_str(), 1);
}

void Journey::step(const std::string& what, std::function<bool()> ready,
                   std::function<void()> act) {
    steps_.push_back({what, std::move(ready), std::move(act)});
}

void Journey::onWindow(const std::string& objectName, std::function<void(QWidget&)> act) {
    step(
        objectName,
        [objectName] {
            QWidget* front = WindowInFront();
            return front && front->isVisible() && front->objectName().toStdString() == objectName;
        },
        [act] { act(*WindowInFront()); });
}

void Journey::onMain(const std::string& what, std::function<void(frmMain&)> act) {
    step(
        what,
        [] {
            frmMain* main = MainWindow();
            return main && main->isVisible() && !WindowInFront();
        },
        [act] { act(*MainWindow()); });
}

int Journey::run(const std::string& commandLine) {
    QTimer driver;
    driver.setInterval(kTickMs);
    QElapsedTimer waiting;
    waiting.start();
    QObject::connect(&driver, &QTimer::timeout, [this, &waiting] {
        if (acting_)
            return;
        if (waiting.elapsed() > kStepLimitMs && !stuck_) {
            ADD_FAILURE() << "the journey got stuck "
                          << (next_ < steps_.size() ? "before step: " + steps_[next_].what
                                                    : std::string("after its last step"))
                          << " (the window in front: "
                          << (WindowInFront() ? WindowInFront()->objectName().toStdString()
                                              : std::string("none"))
                          << "; asked so far:" <<
                [this] {
                    std::string all;
                    for (const std::string& caption : screen.asked)
                        all += " \"" + caption + "\"";
                    return all;
                }() << ")";
            stuck_ = true;
            screen.lenient = true;
        }
        if (stuck_) {
            bringToAnEnd();
            return;
        }
        if (next_ >= steps_.size() || !steps_[next_].ready())
            return;
        // The action runs on its own, so that a dialog it opens does not stop the driver.
        acting_ = true;
        QTimer::singleShot(0, [this, &waiting] {
            std::function<void()> act = steps_[next_++].act;
            acting_ = false;
            waiting.restart();
            act();
        });
    });
    driver.start();
    SystemClock clock;
    auto* app = static_cast<ZvxApplication*>(QApplication::instance());
    const int code =
        RunProgram(*app, commandLine, {screen, desktop, clock, folder_.path() / "bin" / "zvx"});
    driver.stop();
    EXPECT_EQ(next_, steps_.size()) << "steps left: the program ended before them";
    EXPECT_EQ(screen.unanswered(), 0u) << "questions scripted but never asked";
    return code;
}

// Closes what stands in front, then the main window, until the program has ended.
void Journey::bringToAnEnd() {
    if (QWidget* front = WindowInFront()) {
        if (auto* dialog = qobject_cast<QDialog*>(front))
            dialog->reject();
        else
            front->close();
    } else if (frmMain* main = MainWindow()) {
        main->close();
    }
}

std::vector<std::string> Journey::temporaryFiles() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.path())) {
        const std::string name = entry.path().filename().string();
        if (entry.is_regular_file() && MatchesFilePattern(name, "*.tmp;*.zvd"))
            names.push_back(name);
    }
    return names;
}

frmMain* MainWindow() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* main = qobject_cast<frmMain*>(window))
            return main;
    }
    return nullptr;
}

void Click(QWidget& window, const char* buttonName) {
    auto* button = window.findChild<QAbstractButton*>(buttonName);
    ASSERT_NE(button, nullptr) << "no button " << buttonName << " on "
                               << window.objectName().toStdString();
    button->click();
}

void Choose(frmMain& main, const char* menuKey) {
    QAction* entry = main.menuEntry(menuKey);
    ASSERT_NE(entry, nullptr) << "no menu entry " << menuKey;
    ASSERT_TRUE(entry->isEnabled()) << "menu entry " << menuKey << " is disabled";
    entry->trigger();
}

bool MenuEnabled(frmMain& main, const char* menuKey) {
    QAction* entry = main.menuEntry(menuKey);
    return entry && entry->isEnabled();
}

bool ToolItemEnabled(frmMain& main, const QString& tag) {
    for (QToolButton* button : main.findChildren<QToolButton*>()) {
        if (button->property("tag").toString() == tag)
            return button->isEnabled();
        if (!button->menu())
            continue;
        for (QAction* item : button->menu()->actions()) {
            if (item->property("tag").toString() == tag)
                return item->isEnabled();
        }
    }
    ADD_FAILURE() << "no tool bar item " << tag.toStdString();
    return false;
}

void Type(QWidget& window, const char* field, const QString& text) {
    auto* edit = window.findChild<QLineEdit*>(field);
    ASSERT_NE(edit, nullptr) << "no field " << field;
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

void NameNewFolder(Journey& journey, const QString& name, bool atRoot) {
    journey.onWindow("folderprops", [name, atRoot](QWidget& dialog) {
        Type(dialog, "Text1", name);
        if (atRoot)
            Click(dialog, "Option2");
        Click(dialog, "Command1");
    });
}

frmDocument* ActiveDocument(frmMain& main) {
    return dynamic_cast<frmDocument*>(main.activeView());
}

namespace {

QString PathOf(const QTreeWidgetItem* item) {
    QString path = item->text(0);
    for (const QTreeWidgetItem* up = item->parent(); up; up = up->parent())
        path = up->text(0) + "\\" + path;
    return path;
}

QTreeWidget* Tree(frmDocument& document) {
    return document.findChild<QTreeWidget*>("List2");
}

QTreeView* List(frmDocument& document) {
    return document.findChild<QTreeView*>("ListView1");
}

void ClickAt(QAbstractItemView* view, const QModelIndex& index,
             Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    view->scrollTo(index);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers,
                      view->visualRect(index).center());
}

// The tree's folders from top to bottom, each with its path.
std::vector<std::pair<QString, QTreeWidgetItem*>> Folders(frmDocument& document) {
    std::vector<std::pair<QString, QTreeWidgetItem*>> folders;
    for (QTreeWidgetItemIterator item(Tree(document)); *item; ++item)
        folders.emplace_back(PathOf(*item), *item);
    return folders;
}

}  // namespace

QStringList FolderPaths(frmDocument& document) {
    QStringList paths;
    for (const auto& [path, item] : Folders(document))
        paths.append(path);
    return paths;
}

void ClickFolder(frmDocument& document, const QString& path) {
    QTreeWidget* tree = Tree(document);
    tree->expandAll();
    for (const auto& [shown, item] : Folders(document)) {
        if (shown == path)
            return ClickAt(tree, tree->indexFromItem(item));
    }
    ADD_FAILURE() << "no folder " << path.toStdString() << " in "
                  << FolderPaths(document).join(", ").toStdString();
}

void ClickRow(frmDocument& document, int row, Qt::KeyboardModifiers modifiers) {
    QTreeView* list = List(document);
    ASSERT_LT(row, list->model()->rowCount()) << "the list has no row " << row;
    ClickAt(list, list->model()->index(row, 0), modifiers);
}

int RowCount(frmDocument& document) {
    return List(document)->model()->rowCount();
}

}  // namespace zvx::test
