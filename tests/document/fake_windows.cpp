#include "fake_windows.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zvx::test {

DocumentView* FakeWindows::createView(const std::string& caption) {
    views.push_back(std::make_unique<FakeView>(caption));
    active = views.back().get();
    return active;
}

void FakeWindows::closeView(DocumentView* view) {
    Document* document = lifecycle->find(view);
    if (!document) {
        ADD_FAILURE() << "closing a window the lifecycle does not know";
        return;
    }
    lifecycle->Close(*document);
    std::erase_if(views, [&](const auto& open) { return open.get() == view; });
    active = views.empty() ? nullptr : views.back().get();
}

LifecycleBench::LifecycleBench()
    : lifecycle(env.common, windows, [this](const std::string& path) { recent.push_back(path); }) {
    windows.lifecycle = &lifecycle;
    env.common.onPlugStart = [this](const std::string& name) { events.push_back(name); };
}

Document& LifecycleBench::current() {
    Document* document = lifecycle.active();
    if (!document)
        throw std::logic_error("no active document");
    return *document;
}

void LifecycleBench::open(const std::filesystem::path& path) {
    env.common.pendingDocument = path.string();
    lifecycle.LoadDoc();
}

std::string EmptyCatalogue() {
    return std::string("\x01\x00\x00\x00\x08\r\n", 7);
}

}  // namespace zvx::test
