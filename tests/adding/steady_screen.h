#pragma once
// A screen for the fault loops of the add runs: every file error dialog gets the same
// answer, every duplicate is overwritten, and each error dialog notes the progress
// position it came at (the row of an insert run).

#include <string>
#include <vector>

#include "common/common.h"
#include "store/duplicate_check.h"
#include "support/temp_folder.h"

namespace zvx::test {

class SteadyScreen : public ScriptedScreen {
  public:
    MsgAnswer message(const std::string& caption, const std::string& text, MsgButtons buttons,
                      MsgIcon icon) override {
        shown.push_back({"message", caption, text, buttons, icon});
        if (caption != "ZVX - Error!!!")
            return MsgAnswer::Ok;
        errorsAt.push_back(lastProgress);
        return errorAnswer;
    }
    std::string doubledetect(const DuplicateQuestion& question) override {
        duplicates.push_back(question);
        return kDelOld;
    }

    MsgAnswer errorAnswer = MsgAnswer::Retry;
    std::vector<long long> errorsAt;
};

struct SteadyEnvironment {
    TempFolder folder;
    SteadyScreen screen;
    Common common{folder.path(), folder.path(), screen};
};

}  // namespace zvx::test
