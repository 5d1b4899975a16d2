#include "shell/Form1.h"

#include <gtest/gtest.h>
#include <QListWidget>
#include <QPushButton>

#include "common/common.h"
#include "store/settings.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

struct Welcome {
    explicit Welcome(test::TestEnvironment& env) : form(env.common) {
        form.coreCalls = [this](const std::string& name) { fired.push_back(name); };
    }
    QPushButton* button(const char* name) { return form.findChild<QPushButton*>(name); }
    Form1 form;
    std::vector<std::string> fired;
};

TEST(Form1, TheFirstRunShowsOnlyTheButtonsAndClosingEndsTheFirstRun) {
    test::TestEnvironment env;
    Welcome welcome(env);
    EXPECT_FALSE(welcome.form.recentPanelVisible());
    welcome.button("Command3")->click();
    EXPECT_TRUE(welcome.form.recentPanelVisible());
    welcome.button("Command1")->click();
    EXPECT_EQ(welcome.fired, std::vector<std::string>{"document_new"});
    EXPECT_EQ(ReadSetting(env.common, "Firststart", "yes").toText(), "no");
    EXPECT_EQ(ReadSetting(env.common, "firststart2", "yes").toText(), "no");
}

TEST(Form1, ARecentDocumentOpensByDoubleClick) {
    test::TestEnvironment env;
    WriteSetting(env.common, "firststart2", "no");
    env.common.Recentlist = {"/data/b.zvx", "/data/a.zvx"};
    Welcome welcome(env);
    EXPECT_TRUE(welcome.form.recentPanelVisible());
    auto* list = welcome.form.findChild<QListWidget*>("List1");
    ASSERT_EQ(list->count(), 2);
    list->setCurrentRow(1);
    emit list->itemDoubleClicked(list->currentItem());
    EXPECT_EQ(env.common.pendingDocument, "/data/a.zvx");
    EXPECT_EQ(welcome.fired, std::vector<std::string>{"document_open"});
}

}  // namespace
}  // namespace zvx
