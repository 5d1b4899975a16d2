#include "common/application_folder.h"

#include <gtest/gtest.h>

#include "common/app_files.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

TEST(ApplicationFolder, FollowsTheEnvironmentThenThePortableInstall) {
    test::TempFolder temp;
    FolderEnvironment env{"", "/data", "/home/u", temp.path()};
    env.xdgDataHome = "relative";  // ignored: it must be absolute
    EXPECT_EQ(ResolveApplicationFolder(env), "/home/u/.local/share/zvx");
    env.xdgDataHome = "/data";
    EXPECT_EQ(ResolveApplicationFolder(env), "/data/zvx");
    env.xdgDataHome.clear();
    EXPECT_EQ(ResolveApplicationFolder(env), "/home/u/.local/share/zvx");
    test::WriteAll(temp / "ZVX.INI", "");
    EXPECT_EQ(ResolveApplicationFolder(env), temp.path());
    env.zvxHome = "/somewhere";
    EXPECT_EQ(ResolveApplicationFolder(env), "/somewhere");
}

TEST(ApplicationFolder, FilesAreFoundWithoutRegardToCase) {
    test::TempFolder temp;
    EXPECT_EQ(FindInFolder(temp.path(), "CONFIG"), temp / "CONFIG");
    std::filesystem::create_directory(temp / "Config");
    EXPECT_EQ(FindInFolder(temp.path(), "CONFIG"), temp / "Config");
}

}  // namespace
}  // namespace zvx
