#pragma once
// Document windows for tests: a view remembers its caption and counts its refreshes,
// and closing a window runs the lifecycle's close sequence as a real close handler does.

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
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
    void Editor_Final_Apply_Changes() override {}

    int refreshes = 0;

  private:
    std::string caption_;
};

class FakeWindows : public DocumentWindows {
  public:
    DocumentView* createView(const std::string& caption) override {
        views.push_back(std::make_unique<FakeView>(caption));
        return active = views.back().get();
    }
    void closeView(DocumentView* view) override {
        Document* document = lifecycle->find(view);
        if (!document) {
            ADD_FAILURE() << "closing a window the lifecycle does not know";
            return;
        }
        lifecycle->Close(*document);
        std::erase_if(views, [&](const auto& open) { return open.get() == view; });
        active = views.empty() ? nullptr : views.back().get();
    }
    DocumentView* activeView() const override { return active; }

    DocumentLifecycle* lifecycle = nullptr;
    std::vector<std::unique_ptr<FakeView>> views;
    FakeView* active = nullptr;
};

// A lifecycle over fake windows and a test environment, recording the recent list and
// the fired event names.
struct LifecycleBench {
    LifecycleBench() {
        windows.lifecycle = &lifecycle;
        env.common.onPlugStart = [this](const std::string& name) { events.push_back(name); };
    }
    // The document of the active window.
    Document& current() {
        if (!lifecycle.active())
            throw std::logic_error("no active document");
        return *lifecycle.active();
    }
    // Opens a file through the pending document, the way a recent-file click does.
    void open(const std::filesystem::path& path) {
        env.common.pendingDocument = path.string();
        lifecycle.LoadDoc();
    }

    TestEnvironment env;
    FakeWindows windows;
    std::vector<std::string> recent;
    std::vector<std::string> events;
    DocumentLifecycle lifecycle{env.common, windows,
                                [this](const std::string& path) { recent.push_back(path); }};
};

// The bytes of an empty catalogue.
inline std::string EmptyCatalogue() {
    return std::string("\x01\x00\x00\x00\x08\r\n", 7);
}

}  // namespace zvx::test
