#pragma once
// A Screen for tests: records everything shown, answers questions from a queue, and
// fails the test on a question nobody scripted.

#include <deque>
#include <string>
#include <vector>

#include "common/screen.h"

namespace zvx::test {

struct Shown {
    std::string kind;  // "message", "input", "doubledetect", "filedialog"
    std::string caption;
    std::string text;
    MsgButtons buttons = MsgButtons::OkOnly;
    MsgIcon icon = MsgIcon::None;
};

class ScriptedScreen : public Screen {
  public:
    // Queue the answers, in the order the questions will come.
    void answerMessage(MsgAnswer answer);
    void answerInput(const std::string& text);
    void answerDuplicate(const std::string& choice);
    // An empty list of paths answers as Cancel.
    void answerFileDialog(const FileDialogResult& result);

    MsgAnswer message(const std::string& caption, const std::string& text, MsgButtons buttons,
                      MsgIcon icon) override;
    std::string input(const std::string& caption, const std::string& prompt,
                      const std::string& defaultText) override;
    std::string doubledetect(const DuplicateQuestion& question) override;
    FileDialogResult fileDialog(const FileDialogRequest& request) override;
    void status(const std::string& text) override { statuses.push_back(text); }
    void progress(long long value, long long maximum) override {
        lastProgress = value;
        lastProgressMax = maximum;
    }

    std::vector<Shown> shown;
    std::vector<DuplicateQuestion> duplicates;
    std::vector<FileDialogRequest> fileDialogs;
    std::vector<std::string> statuses;
    long long lastProgress = 0;
    long long lastProgressMax = 0;

    // Answers queued but never asked for.
    size_t unanswered() const { return answers_.size(); }

  private:
    struct Answer {
        std::string kind;
        MsgAnswer message = MsgAnswer::Ok;
        std::string text;
        FileDialogResult files;
    };
    Answer take(const std::string& kind, const std::string& what);
    std::deque<Answer> answers_;
};

}  // namespace zvx::test
