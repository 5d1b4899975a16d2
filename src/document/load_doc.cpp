// New and open: LoadNewDoc and LoadDoc with its load error path.

#include <string>

#include "common/common.h"
#include "common/file_dialog_modes.h"
#include "common/text_case.h"
#include "document/document_lifecycle.h"
#include "document/document_messages.h"
#include "document/document_path.h"
#include "platform/file_error.h"
#include "platform/file_io.h"
#include "store/catalogue_format.h"
#include "store/entry_offset.h"
#include "store/write_protection.h"

namespace zvx {

namespace {

std::string DocumentName(long long number) {
    return "Document " + std::to_string(number);
}

// The pending document, taken and cleared, or else the choice of the "load" dialog.
FileDialogResult DocumentToLoad(Common& common) {
    if (!common.pendingDocument.empty()) {
        FileDialogResult pending{{common.pendingDocument}, false};
        common.pendingDocument.clear();
        return pending;
    }
    common.screen().status("Showing \"Load ZVX\"-Dialogue...");
    return expshowing(common, "load", common.lastLoadPath);
}

// Only the version byte tells a catalogue; an empty file counts as version 0.
bool TooNewVersion(const std::string& path) {
    std::string version = ReadFileBytes(path, 0, 1);
    return !version.empty() && static_cast<unsigned char>(version[0]) > kCurrentFormatVersion;
}

}  // namespace

void DocumentLifecycle::LoadNewDoc() {
    status("Creating new ZVX-Document...");
    int slot = table_.lowestFreeSlot();
    if (slot == 0) {
        ShowTooManyDocuments(common_);
        clearStatus();
        return;
    }
    Document& document = addDocument(slot);
    document.aender = true;
    openWindow(document, DocumentName(document.number));
    try {
        generateWorkingCopy(document);
    } catch (const FileError&) {
        closeWithoutQuestion(document);
        throw;
    }
    common_.PLUGSTART("ZVXNEW");
    document.view->refresh_Click();
    clearStatus();
}

// An empty catalogue at cfn, in the steps the status line shows; an old working copy
// of the same name, left by a crash, goes first.
void DocumentLifecycle::generateWorkingCopy(Document& document) {
    status("Generating temporary file \"" + DocumentName(document.number) + "\"...");
    DeleteFileIfExists(document.cfn);
    status("Generating TOC...");
    std::string header(kHeaderSize, '\0');
    header[0] = static_cast<char>(kCurrentFormatVersion);
    WriteFileBytes(document.cfn, 0, header);
    common_.setProgressMax(kHeaderSize);
    common_.setProgress(kHeaderSize);
    WriteFileBytes(document.cfn, kHeaderSize, kLineEnd);
    status("Updating TOC...");
    UpdateEntryOffset(common_, document.cfn);
}

void DocumentLifecycle::LoadDoc() {
    FileDialogResult chosen = DocumentToLoad(common_);
    if (chosen.paths.empty() || chosen.paths.front().empty()) {
        clearStatus();
        return;
    }
    const std::string path = chosen.paths.front();
    if (!HasZvxExtension(path)) {
        clearStatus();
        ShowWrongExtension(common_);
        return;
    }
    int slot = table_.lowestFreeSlot();
    if (slot == 0) {
        ShowTooManyDocuments(common_);
        clearStatus();
        return;
    }
    if (alreadyOpen(path)) {
        ShowAlreadyOpen(common_, path);
        clearStatus();
        return;
    }
    Document& document = addDocument(slot);
    openWindow(document, path);
    clearStatus();
    try {
        DeleteFileIfExists(document.cfn);
        if (TooNewVersion(path)) {
            ShowVersionError(common_);
            closeWithoutQuestion(document);
            clearStatusAndProgress();
            return;
        }
        status("Buffering ZVX-Document...");
        CopyFileBytes(path, document.cfn);
        if (recentAdd_)
            recentAdd_(path);
        // The box protects the user's file only; the working copy stays editable.
        if (chosen.readOnly)
            SetReadOnly(path);
        common_.PLUGSTART("ZVXLOAD");
        document.view->refresh_Click();
    } catch (const FileError&) {
        loadFailed(document);
    }
}

void DocumentLifecycle::loadFailed(Document& document) {
    ShowLoadError(common_);
    closeWithoutQuestion(document);
    clearStatusAndProgress();
}

// Paths are compared lower-cased, as the captions of all used slots.
bool DocumentLifecycle::alreadyOpen(const std::string& path) const {
    const std::string wanted = LowerCase(path);
    for (int slot = 1; slot <= DocumentTable::kSlots; ++slot) {
        const DocumentView* view = table_.view(slot);
        if (view && LowerCase(view->caption()) == wanted)
            return true;
    }
    return false;
}

}  // namespace zvx
