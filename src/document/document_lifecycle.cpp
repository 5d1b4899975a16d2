#include "document/document_lifecycle.h"

#include <algorithm>

#include "common/common.h"
#include "platform/file_error.h"
#include "platform/file_io.h"

namespace zvx {

DocumentLifecycle::DocumentLifecycle(Common& common, DocumentWindows& windows,
                                     std::function<void(const std::string&)> recentAdd)
    : common_(common), windows_(windows), recentAdd_(std::move(recentAdd)) {
    common_.onActiveDocumentChanged = [this] { markActiveChanged(); };
}

DocumentLifecycle::~DocumentLifecycle() {
    common_.onActiveDocumentChanged = nullptr;
}

Document* DocumentLifecycle::find(const DocumentView* view) {
    if (!view)
        return nullptr;
    for (const auto& document : documents_) {
        if (document->view == view)
            return document.get();
    }
    return nullptr;
}

Document* DocumentLifecycle::active() {
    return find(windows_.activeView());
}

// The search window in front leaves the document behind it the active one here, so that
// its result files' header fix-up marks that document changed.
void DocumentLifecycle::markActiveChanged() {
    if (Document* document = find(windows_.lastActiveView()))
        document->aender = true;
}

void DocumentLifecycle::Close(Document& document) {
    status("Closing ZVX-Document-Window...");
    document.view->Editor_Final_Apply_Changes();
    if (suppressSaveQuestion) {
        suppressSaveQuestion = false;
    } else if (document.aender) {
        MsgAnswer answer = common_.screen().message(
            "", "Would you like to save the changes in: \"" + document.view->caption() + "\" ?",
            MsgButtons::YesNo, MsgIcon::Question);
        if (answer == MsgAnswer::Yes)
            SaveDoc(document);
    }
    // Closing always goes on; a working copy that cannot be removed is left to the
    // clean-up at the end of the run.
    try {
        DeleteFileIfExists(document.cfn);
    } catch (const FileError&) {
    }
    common_.PLUGSTART("ZVXCLOSE");
    table_.release(document.slot);
    std::erase_if(documents_, [&](const auto& open) { return open.get() == &document; });
    clearStatusAndProgress();
}

Document& DocumentLifecycle::addDocument(int slot) {
    auto document = std::make_unique<Document>();
    document->slot = slot;
    document->number = table_.nextDocumentNumber();
    document->cfn = common_.workFile("Document " + std::to_string(document->number) + ".tmp");
    documents_.push_back(std::move(document));
    return *documents_.back();
}

void DocumentLifecycle::openWindow(Document& document, const std::string& caption) {
    status("Loading ZVX-Document-Window...");
    document.view = windows_.createView(caption);
    table_.use(document.slot, document.view);
}

void DocumentLifecycle::closeWithoutQuestion(Document& document) {
    suppressSaveQuestion = true;
    windows_.closeView(document.view);
}

void DocumentLifecycle::status(const std::string& text) {
    common_.screen().status(text);
}

void DocumentLifecycle::clearStatus() {
    status("");
}

void DocumentLifecycle::clearStatusAndProgress() {
    clearStatus();
    common_.progressValue = 0;
    common_.setProgressMax(0);
}

}  // namespace zvx
