// Save and save as: SaveDoc and SaveAsDoc. The user's file is replaced by a copy of the
// working copy written beside it and renamed over it, so that a failed save leaves the
// old file as it was.

#include <filesystem>
#include <string>

#include "common/common.h"
#include "common/file_dialog_modes.h"
#include "document/document_lifecycle.h"
#include "document/document_messages.h"
#include "document/document_path.h"
#include "platform/file_error.h"
#include "platform/file_io.h"
#include "store/write_protection.h"

namespace zvx {

namespace {

std::filesystem::path WithoutTrailingSeparator(std::filesystem::path folder) {
    folder = folder.lexically_normal();
    if (!folder.has_filename() && folder.has_relative_path())
        folder = folder.parent_path();
    return folder;
}

bool SameFolder(const std::string& a, const std::filesystem::path& b) {
    return WithoutTrailingSeparator(a) == WithoutTrailingSeparator(b);
}

// The save dialog starts in the document's own folder only while the last save path
// is still the application folder; a document never saved offers its caption.
FileDialogRequest SaveAsStart(const Common& common, const std::string& caption) {
    DocumentPathParts parts = SplitDocumentPath(caption);
    FileDialogRequest start;
    start.startFolder = common.lastSavePath;
    if (parts.hasFolder && SameFolder(common.lastSavePath, common.applicationFolder()))
        start.startFolder = parts.folder;
    start.fileName = WithZvxExtension(parts.hasFolder ? parts.name : caption);
    return start;
}

}  // namespace

void DocumentLifecycle::SaveDoc(Document& document) {
    status("Saving ZVX...");
    const std::string path = document.view->caption();
    if (!HasZvxExtension(path)) {
        SaveAsDoc(document);
        return;
    }
    if (CheckWriteProtection(common_, path)) {
        clearStatus();
        return;
    }
    if (!copyToUserFile(document, path))
        return;
    document.aender = false;
    clearStatus();
}

void DocumentLifecycle::SaveAsDoc(Document& document) {
    for (;;) {
        FileDialogRequest start = SaveAsStart(common_, document.view->caption());
        status("Showing \"Save As\" Dialogue...");
        FileDialogResult chosen = expshowing(common_, "save", start.startFolder, start.fileName);
        clearStatus();
        if (chosen.paths.empty() || chosen.paths.front().empty())
            return;
        std::string path = chosen.paths.front();
        if (SplitDocumentPath(path).extension.empty())
            path = WithZvxExtension(path);
        if (!HasZvxExtension(path)) {
            ShowWrongExtension(common_);
            continue;
        }
        if (CheckWriteProtection(common_, path))
            continue;
        if (!copyToUserFile(document, path))
            return;
        if (recentAdd_)
            recentAdd_(path);
        document.aender = false;
        document.view->setCaption(path);
        return;
    }
}

// On failure the document keeps its change flag and the user's file its old content.
// The edits waiting in an open editor go into the working copy first.
bool DocumentLifecycle::copyToUserFile(Document& document, const std::string& path) {
    document.view->Editor_Final_Apply_Changes();
    try {
        CopyFileSafely(document.cfn, path);
        return true;
    } catch (const FileError&) {
        ShowUnknownError(common_);
        clearStatus();
        return false;
    }
}

}  // namespace zvx
