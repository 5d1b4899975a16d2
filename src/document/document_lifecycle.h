#pragma once
// The life of a document: new (LoadNewDoc), open (LoadDoc), save (SaveDoc, SaveAsDoc)
// and close. A document is never edited where it lies: while it is open everything
// happens in its working copy "Document N.tmp" in the work folder, and the user's file
// changes only when a save copies the working copy over it.

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "document/document_table.h"
#include "document/document_view.h"

namespace zvx {

class Common;

// An open document: the fields of its frmDocument. Its caption lives in its view.
struct Document {
    int slot = 0;               // mynumber: its slot in the document table
    long long number = 0;       // the N of its working copy "Document N.tmp"
    std::filesystem::path cfn;  // the working copy
    bool aender = false;        // changed since the user last saved
    DocumentView* view = nullptr;
};

class DocumentLifecycle {
  public:
    // `recentAdd` puts a path at the top of the recent list (RecentAdd). The lifecycle
    // becomes the common module's way to mark the active document changed.
    DocumentLifecycle(Common& common, DocumentWindows& windows,
                      std::function<void(const std::string&)> recentAdd);
    ~DocumentLifecycle();
    DocumentLifecycle(const DocumentLifecycle&) = delete;
    DocumentLifecycle& operator=(const DocumentLifecycle&) = delete;

    // A new empty document "Document N", changed from the outset so that closing it
    // asks whether to save. Fires ZVXNEW. Throws FileError when the working copy
    // cannot be made; the new window is closed again first.
    void LoadNewDoc();
    // Opens the pending document, or else the file chosen in the "load" dialog: checks
    // the extension, the free slot, whether it is already open and its version byte,
    // copies it to the working copy, adds it to the recent list, makes the file
    // read-only if the dialog's box was ticked, fires ZVXLOAD and refreshes the window.
    // Every refusal is a message; a file that cannot be read closes the window again.
    void LoadDoc();
    // Copies the working copy over the user's file, or runs SaveAsDoc for a document
    // without a ".zvx" caption. A write-protected file that the user keeps stops it.
    void SaveDoc(Document& document);
    // Asks for a name in the "save" dialog until it is acceptable or cancelled, saves
    // there, and makes it the document's caption.
    void SaveAsDoc(Document& document);
    // The close sequence, run by the window's close handler: asks whether to save a
    // changed document (unless suppressSaveQuestion), removes the working copy, fires
    // ZVXCLOSE and frees the slot. `document` is gone afterwards. The caller updates
    // the main window's state for the document that is now active.
    void Close(Document& document);

    // The document of a window, or null.
    Document* find(const DocumentView* view);
    // The document of the active window, or null.
    Document* active();
    // Sets aender of the active document; the store calls it through the common module.
    void markActiveChanged();

    const DocumentTable& table() const { return table_; }

    // Set, the very next Close asks nothing, and clears it.
    bool suppressSaveQuestion = false;

  private:
    Document& addDocument(int slot);
    void openWindow(Document& document, const std::string& caption);
    void closeWithoutQuestion(Document& document);
    void loadFailed(Document& document);
    bool alreadyOpen(const std::string& path) const;
    void generateWorkingCopy(Document& document);
    bool copyToUserFile(Document& document, const std::string& path);
    void status(const std::string& text);
    void clearStatus();
    void clearStatusAndProgress();

    Common& common_;
    DocumentWindows& windows_;
    std::function<void(const std::string&)> recentAdd_;
    DocumentTable table_;
    std::vector<std::unique_ptr<Document>> documents_;
};

}  // namespace zvx
