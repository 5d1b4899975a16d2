#include <gtest/gtest.h>

#include "document/document_table.h"
#include "fake_windows.h"

namespace zvx {
namespace {

TEST(DocumentTable, TakesTheLowestFreeSlotAndCountsEveryDocument) {
    DocumentTable table;
    test::FakeView a("a"), b("b");
    EXPECT_EQ(table.lowestFreeSlot(), 1);
    table.use(1, &a);
    table.use(2, &b);
    EXPECT_EQ(table.lowestFreeSlot(), 3);
    table.release(1);
    EXPECT_EQ(table.lowestFreeSlot(), 1);
    EXPECT_EQ(table.view(2), &b);
    EXPECT_EQ(table.view(1), nullptr);

    EXPECT_EQ(table.nextDocumentNumber(), 1);
    EXPECT_EQ(table.nextDocumentNumber(), 2);

    // A full table has no free slot.
    for (int slot = 1; slot <= DocumentTable::kSlots; ++slot)
        table.use(slot, &a);
    EXPECT_EQ(table.lowestFreeSlot(), 0);
    table.release(DocumentTable::kSlots);
    EXPECT_EQ(table.lowestFreeSlot(), DocumentTable::kSlots);
}

}  // namespace
}  // namespace zvx
