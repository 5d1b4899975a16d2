#include "document/document_table.h"

namespace zvx {

DocumentTable::DocumentTable() : views_(kSlots, nullptr) {}

int DocumentTable::lowestFreeSlot() const {
    for (int slot = 1; slot <= kSlots; ++slot) {
        if (!views_[slot - 1])
            return slot;
    }
    return 0;
}

void DocumentTable::use(int slot, DocumentView* view) {
    views_.at(slot - 1) = view;
}

void DocumentTable::release(int slot) {
    if (slot >= 1 && slot <= kSlots)
        views_[slot - 1] = nullptr;
}

DocumentView* DocumentTable::view(int slot) const {
    return views_.at(slot - 1);
}

}  // namespace zvx
