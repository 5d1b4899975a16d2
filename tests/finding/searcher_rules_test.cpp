#include "finding/searcher_rules.h"

#include <gtest/gtest.h>

#include "finding/search_run.h"
#include "store/toc.h"

namespace zvx {
namespace {

TEST(Docucache, TheRememberedDocumentIsPreparedAgainAndAClosedOneEmptiesTheChoice) {
    DocucachePlan kept = docucache({"Document 1", "/m/b.zvx"}, "/m/b.zvx");
    EXPECT_EQ(kept.text, "/m/b.zvx");
    EXPECT_EQ(kept.prepare, 1u);
    EXPECT_FALSE(kept.documentGone);
    EXPECT_TRUE(kept.searchEnabled);

    DocucachePlan closed = docucache({"Document 1"}, "/m/b.zvx");
    EXPECT_EQ(closed.text, "");
    EXPECT_TRUE(closed.documentGone);
    EXPECT_FALSE(closed.prepare);
    EXPECT_FALSE(closed.searchEnabled);

    // Nothing chosen yet (the first opening): nothing is gone, nothing prepared.
    DocucachePlan first = docucache({"Document 1"}, "");
    EXPECT_FALSE(first.documentGone);
    EXPECT_FALSE(first.prepare);
    EXPECT_FALSE(first.searchEnabled);
    EXPECT_EQ(first.captions.size(), 1u);
}

TEST(JumpNode, TheFirstNodeWhosePathAndABackslashAreTheFolderText) {
    const FolderTree tree = BuildFolderTree({MakeTocGroup("Music\\", "", 10, "00000000"),
                                             MakeTocGroup("Music\\Rock\\", "", 10, "00000001")});
    EXPECT_EQ(JumpNode(tree, "Music\\Rock\\"), 1);
    EXPECT_EQ(JumpNode(tree, "Music\\"), 0);
    for (const char* nowhere : {"Music", "music\\", "Music\\Rock\\Live\\", kUnresolvedFolder, ""})
        EXPECT_FALSE(JumpNode(tree, nowhere)) << nowhere;
}

}  // namespace
}  // namespace zvx
