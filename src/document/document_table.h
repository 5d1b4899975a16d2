#pragma once
// The document table: 64000 slots numbered from 1, each free or holding the window of
// an open document, and the document counter that names "Document N".

#include <vector>

namespace zvx {

class DocumentView;

class DocumentTable {
  public:
    static constexpr int kSlots = 64000;

    DocumentTable();

    // The lowest free slot, or 0 when all are used.
    int lowestFreeSlot() const;
    // Marks the slot used by this window.
    void use(int slot, DocumentView* view);
    // Frees the slot; a slot outside the table is ignored.
    void release(int slot);
    // The window of a used slot, or null for a free one.
    DocumentView* view(int slot) const;

    // Counts one more new or opened document and gives its number, the N of
    // "Document N". The count never goes back while the process runs.
    long long nextDocumentNumber() { return ++documentCounter_; }

  private:
    std::vector<DocumentView*> views_;  // index 0 is slot 1; null means free
    long long documentCounter_ = 0;
};

}  // namespace zvx
