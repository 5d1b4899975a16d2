#pragma once
// Document windows for tests: a view remembers its caption and counts its refreshes,
// and closing a window runs the lifecycle's close sequence as a real close handler does.

#include <memory>
#include <string>
#include <vector>

#include "document/document_lifecycle.h"
#include "document/document_view.h"
#include "support/temp_folder.h"

namespace zvx::test {

class FakeView : public DocumentView {
  public:
    explicit FakeView(std::string caption) : caption_(std::move(caption)) {}
    std::string caption() const override { return caption_; }
    void setCaption(const std::string& text) override { caption_ = text; }
    void refresh_Click() override { ++refreshes; }
    void Editor_Final_Apply_Changes() override { ++editorApplies; }

    int refreshes = 0;
    int editorApplies = 0;

  private:
    std::string caption_;
};

class FakeWindows : public DocumentWindows {
  public:
    DocumentView* createView(const std::string& caption) override;
    void closeView(DocumentView* view) override;
    DocumentView* activeView() const override { return active; }

    DocumentLifecycle* lifecycle = nullptr;
    std::vector<std::unique_ptr<FakeView>> views;
    FakeView* active = nullptr;
};

// A lifecycle over fake windows and a test environment, recording the recent list and
// the fired event names.
struct LifecycleBench {
    LifecycleBench();
    // The document of the active window.
    Document& current();
    // Opens a file through the pending document, the way a recent-file click does.
    void open(const std::filesystem::path& path);

    TestEnvironment env;
    FakeWindows windows;
    std::vector<std::string> recent;
    std::vector<std::string> events;
    DocumentLifecycle lifecycle;
};

// The bytes of an empty catalogue.
std::string EmptyCatalogue();

}  // namespace zvx::test
