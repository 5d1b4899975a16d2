#pragma once
// A main window over a temporary application folder, with scripted questions, a fixed
// clock and a desktop that opens nothing.

#include <gtest/gtest.h>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QUrl>
#include <memory>

#include "common/clock.h"
#include "shell/frmMain.h"
#include "support/temp_folder.h"
#include "ui/desktop.h"

namespace zvx::test {

class FixedClock : public Clock {
  public:
    double secondsSinceMidnight() const override { return 3600; }
};

class NoDesktop : public Desktop {
  public:
    bool openUrl(const QUrl&) override { return true; }
};

class MainWindowTest : public ::testing::Test {
  protected:
    void SetUp() override {
        main = std::make_unique<frmMain>(env.common, desktop, clock);
        main->MDIForm_Load();
    }
    QList<QMdiSubWindow*> documents() const { return main->mdiArea()->subWindowList(); }
    // Saves a picture of the window beside the test programs, for a person to look at.
    void screenshot(QWidget* widget, const char* name) const {
        widget->resize(960, 640);
        widget->grab().save(QString(ZVX_SCREENSHOT_DIR) + "/" + name + ".png");
    }

    TestEnvironment env;
    FixedClock clock;
    NoDesktop desktop;
    std::unique_ptr<frmMain> main;
};

}  // namespace zvx::test
