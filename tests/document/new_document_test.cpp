#include <gtest/gtest.h>

#include "document/document_table.h"
#include "fake_windows.h"

namespace zvx {
namespace {

using test::ReadAll;

TEST(NewDocument, MakesAnEmptyWorkingCopyAndCountsAsChanged) {
    test::LifecycleBench bench;
    // A working copy of the same name left by a crash goes first.
    test::WriteAll(bench.env.folder / "Document 1.tmp", "left by a crash, longer than seven");
    bench.lifecycle.LoadNewDoc();

    Document& document = bench.current();
    EXPECT_EQ(document.view->caption(), "Document 1");
    EXPECT_EQ(document.slot, 1);
    EXPECT_EQ(document.cfn, bench.env.folder / "Document 1.tmp");
    EXPECT_EQ(ReadAll(document.cfn), test::EmptyCatalogue());
    EXPECT_TRUE(document.aender);
    EXPECT_EQ(bench.events, std::vector<std::string>{"ZVXNEW"});
    EXPECT_EQ(bench.windows.active->refreshes, 1);
    EXPECT_EQ(
        bench.env.screen.statuses,
        (std::vector<std::string>{"Creating new ZVX-Document...", "Loading ZVX-Document-Window...",
                                  "Generating temporary file \"Document 1\"...",
                                  "Generating TOC...", "Updating TOC...", ""}));
}

TEST(NewDocument, CloseWithNoDropsTheWorkingCopyAndNamesCountOnWhileSlotsAreReused) {
    test::LifecycleBench bench;
    bench.lifecycle.LoadNewDoc();
    auto cfn = bench.current().cfn;
    bench.env.screen.answerMessage(MsgAnswer::No);
    bench.windows.closeView(bench.windows.active);

    ASSERT_EQ(bench.env.screen.shown.size(), 1u);
    EXPECT_EQ(bench.env.screen.shown[0].text,
              "Would you like to save the changes in: \"Document 1\" ?");
    EXPECT_EQ(bench.env.screen.shown[0].buttons, MsgButtons::YesNo);
    EXPECT_FALSE(std::filesystem::exists(cfn));
    EXPECT_EQ(bench.events, (std::vector<std::string>{"ZVXNEW", "ZVXCLOSE"}));
    EXPECT_EQ(bench.env.screen.statuses.back(), "");
    EXPECT_EQ(bench.env.screen.lastProgressMax, 0);

    bench.lifecycle.LoadNewDoc();
    EXPECT_EQ(bench.current().view->caption(), "Document 2");
    EXPECT_EQ(bench.current().slot, 1);
    EXPECT_EQ(bench.current().cfn.filename(), "Document 2.tmp");
    bench.lifecycle.LoadNewDoc();
    EXPECT_EQ(bench.current().view->caption(), "Document 3");
    EXPECT_EQ(bench.current().slot, 2);
}

TEST(NewDocument, CloseWithYesSavesThroughTheDialog) {
    test::LifecycleBench bench;
    bench.lifecycle.LoadNewDoc();
    auto target = bench.env.folder / "kept.zvx";

    bench.env.screen.answerMessage(MsgAnswer::Yes);
    bench.env.screen.answerFileDialog({{target.string()}, false});
    bench.windows.closeView(bench.windows.active);

    EXPECT_EQ(ReadAll(target), test::EmptyCatalogue());
    EXPECT_EQ(bench.recent, std::vector<std::string>{target.string()});
    EXPECT_FALSE(std::filesystem::exists(bench.env.folder / "Document 1.tmp"));
    EXPECT_TRUE(bench.windows.views.empty());
}

TEST(DocumentTable, AFullTableHasNoFreeSlot) {
    DocumentTable table;
    test::FakeView view("a");
    for (int slot = 1; slot <= DocumentTable::kSlots; ++slot)
        table.use(slot, &view);
    EXPECT_EQ(table.lowestFreeSlot(), 0);
    table.release(DocumentTable::kSlots);
    EXPECT_EQ(table.lowestFreeSlot(), DocumentTable::kSlots);
}

}  // namespace
}  // namespace zvx
