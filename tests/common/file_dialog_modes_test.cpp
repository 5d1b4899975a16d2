#include "common/file_dialog_modes.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace zvx {
namespace {

TEST(FileDialogModes, ModesDifferInStartFolderFiltersAndKind) {
    test::TestEnvironment env;
    env.common.lastLoadPath = "/loads";
    env.common.lastSavePath = "/saves";
    env.common.lastAddPath = "/adds";
    auto request = [&](const char* mode) {
        return ExpShowingRequest(mode, env.common, "/caller", "Document 1.zvx");
    };

    FileDialogRequest load = request("load");
    EXPECT_EQ(load.startFolder, "/caller");
    EXPECT_TRUE(load.readOnlyBox && !load.save && !load.multiSelect);
    EXPECT_EQ(request("import").startFolder, "/loads");
    EXPECT_EQ(request("import").filters, load.filters);

    FileDialogRequest save = request("save");
    EXPECT_EQ(save.startFolder, "/caller");
    EXPECT_EQ(save.fileName, "Document 1.zvx");
    EXPECT_EQ(save.filters.at(save.preselectedFilter - 1).second, "*.zvx");
    EXPECT_TRUE(save.save && !save.readOnlyBox);
    EXPECT_EQ(request("export").startFolder, "/saves");

    FileDialogRequest add = request("add");
    EXPECT_EQ(add.startFolder, "/adds");
    EXPECT_EQ(add.filters.at(1).first, "MP3-Audio-Files (*.mp3)");
    EXPECT_TRUE(add.multiSelect && add.readOnlyBox);
}

TEST(FileDialogModes, TheChosenFoldersBecomeTheLastPathsByMode) {
    test::TestEnvironment env;
    env.common.lastLoadPath = "/before";
    RememberDialogFolder(env.common, "import", {{"/music/cat.zvx"}, false});
    RememberDialogFolder(env.common, "export", {{"/out/part.zvx"}, false});
    RememberDialogFolder(env.common, "add", {{"/mp3/a.mp3", "/other/b.mp3"}, false});
    EXPECT_EQ(env.common.lastLoadPath, "/music");
    EXPECT_EQ(env.common.lastSavePath, "/out");
    EXPECT_EQ(env.common.lastAddPath, "/mp3");

    env.screen.answerFileDialog({});
    EXPECT_TRUE(expshowing(env.common, "load", "/x").paths.empty());
    EXPECT_EQ(env.common.lastLoadPath, "/music");
}

}  // namespace
}  // namespace zvx
