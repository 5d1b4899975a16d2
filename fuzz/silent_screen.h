#pragma once
// A Screen nobody looks at: every message is cancelled, every input left empty, and
// every duplicate question answered "keepold", so that a run never waits and never
// overwrites.

#include <string>

#include "common/screen.h"
#include "store/duplicate_check.h"

namespace zvx::fuzz {

class SilentScreen : public Screen {
  public:
    MsgAnswer message(const std::string&, const std::string&, MsgButtons, MsgIcon) override {
        return MsgAnswer::Cancel;
    }
    std::string input(const std::string&, const std::string&, const std::string&) override {
        return {};
    }
    std::string doubledetect(const DuplicateQuestion&) override { return kKeepOld; }
    FileDialogResult fileDialog(const FileDialogRequest&) override { return {}; }
    void status(const std::string&) override {}
    void progress(long long, long long) override {}
};

}  // namespace zvx::fuzz
