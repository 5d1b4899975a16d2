#pragma once
// The seam between the document logic and the document windows (frmDocument). The
// window program implements it with real windows, tests with fakes.

#include <string>

namespace zvx {

// One frmDocument as the lifecycle sees it.
class DocumentView {
  public:
    virtual ~DocumentView() = default;

    // The caption: the path of the user's file, or "Document N" for a document never
    // saved. It is the only place that holds this path.
    virtual std::string caption() const = 0;
    virtual void setCaption(const std::string& text) = 0;
    // Rebuilds the tree and the list from the working copy, and clears the status at
    // its end.
    virtual void refresh_Click() = 0;
    // Applies the pending changes of the editor tab if it is open.
    virtual void Editor_Final_Apply_Changes() = 0;
};

// The main window's side: making, closing and finding document windows.
class DocumentWindows {
  public:
    virtual ~DocumentWindows() = default;

    // Creates and shows a frmDocument with this caption, running its own part of the
    // load sequence (columns, sub-view, list style). The document is registered with
    // the lifecycle only after this returns.
    virtual DocumentView* createView(const std::string& caption) = 0;
    // Closes the window. Its close handler calls DocumentLifecycle::Close before the
    // window goes.
    virtual void closeView(DocumentView* view) = 0;
    // The active document window, or null when there is none.
    virtual DocumentView* activeView() const = 0;
    // The document window that was active last: the active one, or, while the search
    // window is in front, the one before it. Null when there is none.
    virtual DocumentView* lastActiveView() const { return activeView(); }
};

}  // namespace zvx
