#include "shell/recent_list.h"

#include <gtest/gtest.h>

#include <vector>

#include "store/settings.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

using Paths = std::vector<std::string>;

TEST(RecentList, AnOpenedDocumentMovesToTheTopIgnoringCase) {
    test::TestEnvironment env;
    int refreshes = 0;
    env.common.onRecentRefresh = [&] { ++refreshes; };
    RecentAdd(env.common, "/m/a.zvx");
    RecentAdd(env.common, "  /m/b.zvx ");
    RecentAdd(env.common, "/m/c.zvx");
    RecentAdd(env.common, "/M/B.ZVX");
    EXPECT_EQ(env.common.Recentlist, (Paths{"/M/B.ZVX", "/m/c.zvx", "/m/a.zvx"}));
    EXPECT_EQ(refreshes, 4);
    RecentAdd(env.common, "   ");
    EXPECT_EQ(env.common.Recentlist.size(), 3u);
    EXPECT_EQ(refreshes, 4);
}

TEST(RecentList, TheEleventhDocumentPushesOutTheOldestAndCaptionsAreNumbered) {
    test::TestEnvironment env;
    for (int i = 1; i <= 11; ++i)
        RecentAdd(env.common, "/m/" + std::to_string(i) + ".zvx");
    ASSERT_EQ(env.common.Recentlist.size(), 10u);
    EXPECT_EQ(env.common.Recentlist.front(), "/m/11.zvx");
    EXPECT_EQ(env.common.Recentlist.back(), "/m/2.zvx");
    // Re-adding one already there keeps all ten.
    RecentAdd(env.common, "/m/5.zvx");
    EXPECT_EQ(env.common.Recentlist.size(), 10u);
    EXPECT_EQ(env.common.Recentlist.back(), "/m/2.zvx");
    // The menu captions of the first and the tenth carry their number as mnemonic.
    EXPECT_EQ(RecentCaption(1, "/m/a b.zvx"), "0&1 /m/a b.zvx");
    EXPECT_EQ(RecentCaption(10, "/m/a.zvx"), "&10 /m/a.zvx");
}

TEST(RecentList, StoredAtTheEndAndLoadedSkippingEmptyKeys) {
    test::TestEnvironment env;
    WriteSetting(env.common, "RECENTFILE2", "/m/two.zvx");
    WriteSetting(env.common, "RECENTFILE5", "/m/five.zvx");
    WriteSetting(env.common, "RECENTFILE10", "/m/ten.zvx");
    LoadRecentList(env.common);
    EXPECT_EQ(env.common.Recentlist, (Paths{"/m/two.zvx", "/m/five.zvx", "/m/ten.zvx"}));

    StoreRecentList(env.common);
    EXPECT_EQ(ReadSetting(env.common, "RECENTFILE1", "").toText(), "/m/two.zvx");
    EXPECT_EQ(ReadSetting(env.common, "RECENTFILE3", "").toText(), "/m/ten.zvx");
    EXPECT_EQ(ReadSetting(env.common, "RECENTFILE5", "").toText(), "");
    EXPECT_EQ(ReadSetting(env.common, "RECENTFILE10", "").toText(), "");
    LoadRecentList(env.common);
    EXPECT_EQ(env.common.Recentlist, (Paths{"/m/two.zvx", "/m/five.zvx", "/m/ten.zvx"}));
}

}  // namespace
}  // namespace zvx
