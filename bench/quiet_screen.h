#pragma once
// A screen nobody looks at, for benchmarks of code that talks to the Screen: status and
// progress go nowhere, and every question takes the first answer.

#include <string>

#include "common/screen.h"

namespace zvx::bench {

class QuietScreen : public Screen {
  public:
    MsgAnswer message(const std::string&, const std::string&, MsgButtons, MsgIcon) override {
        return MsgAnswer::Ok;
    }
    std::string input(const std::string&, const std::string&, const std::string&) override {
        return {};
    }
    std::string doubledetect(const DuplicateQuestion&) override { return "keepold"; }
    FileDialogResult fileDialog(const FileDialogRequest&) override { return {}; }
    void status(const std::string&) override {}
    void progress(long long, long long) override {}
};

}  // namespace zvx::bench
