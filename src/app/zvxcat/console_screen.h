#pragma once
// The Screen of zvxcat. Messages go to the error stream as "caption: text". A question
// is answered by what the command line configured, else on a terminal by the person,
// else by its safe choice (Cancel, No, Abort, "keepold", the empty input) with a note,
// so that a script never blocks and never agrees to anything by accident. The status
// and progress line is drawn only on a terminal.

#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "arguments.h"
#include "common/screen.h"

namespace zvx::cat {

struct ConsoleAnswers {
    // The duplicate dialog's answer for the whole run ("keepold", "keepall", "delold",
    // "delall"), or empty to ask.
    std::string duplicate;
    // The file error dialog's answer for the whole run ("ignore" or "abort"), or empty to
    // ask. A dialog without Ignore takes Cancel for "ignore".
    std::string fileError;
};

// The answers that --on-duplicate and --on-error give; "ask" leaves a question to the
// terminal. Throws UsageError for any other word.
ConsoleAnswers AnswersFromArguments(const Arguments& arguments);

// The duplicate dialog's answer for a command-line word: "keep-old", "keep-all",
// "overwrite", "overwrite-all" or the answer itself; empty for any other word.
std::string DuplicateChoiceFor(std::string_view word);

class ConsoleScreen : public Screen {
  public:
    // `in` is read only when `interactive`; the progress line is drawn on `err` only
    // when `drawProgress`.
    ConsoleScreen(ConsoleAnswers answers, std::istream& in, std::ostream& err, bool interactive,
                  bool drawProgress);
    ~ConsoleScreen() override;

    MsgAnswer message(const std::string& caption, const std::string& text, MsgButtons buttons,
                      MsgIcon icon) override;
    std::string input(const std::string& caption, const std::string& prompt,
                      const std::string& defaultText) override;
    std::string doubledetect(const DuplicateQuestion& question) override;
    // A command line has no file dialog: paths come as arguments, so this is a cancel.
    FileDialogResult fileDialog(const FileDialogRequest&) override { return {}; }
    void status(const std::string& text) override;
    void progress(long long value, long long maximum) override;

  private:
    void show(const std::string& caption, const std::string& text);
    void note(const std::string& text);
    // Asks on the terminal; nullopt when not interactive or at the end of the input.
    std::optional<std::string> ask(const std::string& prompt);
    // The configured answer of the file error dialog, if any.
    std::optional<MsgAnswer> fileErrorAnswer(MsgButtons buttons) const;
    std::optional<MsgAnswer> askMessage(const std::vector<MsgAnswer>& choices);
    std::string askDuplicate();
    void drawProgressLine();
    void clearProgressLine();

    ConsoleAnswers answers_;
    std::istream& in_;
    std::ostream& err_;
    bool interactive_;
    bool drawProgress_;
    std::string statusText_;
    long long progressValue_ = 0;
    long long progressMax_ = 0;
    std::string drawnLine_;
};

}  // namespace zvx::cat
