#include "console_screen.h"

#include <algorithm>

#include "common/field_text.h"
#include "common/text_case.h"

namespace zvx::cat {

namespace {

struct ButtonSet {
    std::vector<MsgAnswer> choices;
    MsgAnswer safe;
};

ButtonSet ButtonsOf(MsgButtons buttons) {
    using A = MsgAnswer;
    switch (buttons) {
        case MsgButtons::OkCancel:
            return {{A::Ok, A::Cancel}, A::Cancel};
        case MsgButtons::AbortRetryIgnore:
            return {{A::Abort, A::Retry, A::Ignore}, A::Abort};
        case MsgButtons::YesNoCancel:
            return {{A::Yes, A::No, A::Cancel}, A::Cancel};
        case MsgButtons::YesNo:
            return {{A::Yes, A::No}, A::No};
        case MsgButtons::RetryCancel:
            return {{A::Retry, A::Cancel}, A::Cancel};
        case MsgButtons::OkOnly:
            break;
    }
    return {{A::Ok}, A::Ok};
}

std::string NameOf(MsgAnswer answer) {
    switch (answer) {
        case MsgAnswer::Ok:
            return "ok";
        case MsgAnswer::Cancel:
            return "cancel";
        case MsgAnswer::Abort:
            return "abort";
        case MsgAnswer::Retry:
            return "retry";
        case MsgAnswer::Ignore:
            return "ignore";
        case MsgAnswer::Yes:
            return "yes";
        case MsgAnswer::No:
            return "no";
    }
    return "";
}

// "[y]es/[n]o? "
std::string PromptFor(const std::vector<MsgAnswer>& choices) {
    std::string prompt;
    for (MsgAnswer choice : choices) {
        std::string name = NameOf(choice);
        if (!prompt.empty())
            prompt += "/";
        prompt += "[" + name.substr(0, 1) + "]" + name.substr(1);
    }
    return prompt + "? ";
}

// The texts of the system end lines with CR LF or a lone CR; a terminal wants LF.
std::string TerminalText(const std::string& text) {
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r')
            out += text[i];
        else if (i + 1 == text.size() || text[i + 1] != '\n')
            out += '\n';
    }
    return out;
}

}  // namespace

std::string DuplicateChoiceFor(std::string_view word) {
    static const std::pair<std::string_view, std::string_view> kWords[] = {
        {"keep-old", "keepold"},
        {"keep-all", "keepall"},
        {"overwrite", "delold"},
        {"overwrite-all", "delall"}};
    for (const auto& [flag, choice] : kWords) {
        if (word == flag || word == choice)
            return std::string(choice);
    }
    return "";
}

ConsoleAnswers AnswersFromArguments(const Arguments& arguments) {
    ConsoleAnswers answers;
    if (const std::string* word = arguments.value("--on-duplicate"); word && *word != "ask") {
        answers.duplicate = DuplicateChoiceFor(*word);
        if (answers.duplicate.empty())
            throw UsageError(
                "--on-duplicate takes ask, keep-old, keep-all, overwrite or "
                "overwrite-all, not '" +
                *word + "'");
    }
    if (const std::string* word = arguments.value("--on-error"); word && *word != "ask") {
        if (*word != "ignore" && *word != "abort")
            throw UsageError("--on-error takes ask, ignore or abort, not '" + *word + "'");
        answers.fileError = *word;
    }
    return answers;
}

ConsoleScreen::ConsoleScreen(ConsoleAnswers answers, std::istream& in, std::ostream& err,
                             bool interactive, bool drawProgress)
    : answers_(std::move(answers)),
      in_(in),
      err_(err),
      interactive_(interactive),
      drawProgress_(drawProgress) {}

ConsoleScreen::~ConsoleScreen() {
    clearProgressLine();
}

MsgAnswer ConsoleScreen::message(const std::string& caption, const std::string& text,
                                 MsgButtons buttons, MsgIcon) {
    show(caption, text);
    if (buttons == MsgButtons::OkOnly)
        return MsgAnswer::Ok;
    ButtonSet set = ButtonsOf(buttons);
    if (std::optional<MsgAnswer> answer = fileErrorAnswer(buttons))
        return *answer;
    if (std::optional<MsgAnswer> answer = askMessage(set.choices))
        return *answer;
    note("no answer given, taking \"" + NameOf(set.safe) + "\"");
    return set.safe;
}

std::optional<MsgAnswer> ConsoleScreen::fileErrorAnswer(MsgButtons buttons) const {
    if (answers_.fileError.empty())
        return std::nullopt;
    if (buttons == MsgButtons::RetryCancel)
        return MsgAnswer::Cancel;
    if (buttons != MsgButtons::AbortRetryIgnore)
        return std::nullopt;
    return answers_.fileError == "ignore" ? MsgAnswer::Ignore : MsgAnswer::Abort;
}

std::string ConsoleScreen::input(const std::string& caption, const std::string& prompt,
                                 const std::string& defaultText) {
    show(caption, prompt);
    if (std::optional<std::string> line = ask("[" + defaultText + "] ")) {
        return line->empty() ? defaultText : *line;
    }
    note("no answer given, taking the empty text");
    return "";
}

std::string ConsoleScreen::doubledetect(const DuplicateQuestion& q) {
    if (!answers_.duplicate.empty())
        return answers_.duplicate;
    show("Duplicate", "in the catalogue: " + q.oldname + " (" + q.oldsize + ", " + q.olddate +
                          ")\nto be added:     " + q.newname + " (" + q.newsize + ", " + q.newdate +
                          ")");
    std::string choice = askDuplicate();
    if (!choice.empty())
        return choice;
    note("no answer given, taking \"keep-old\"");
    return "keepold";
}

void ConsoleScreen::status(const std::string& text) {
    statusText_ = text;
    drawProgressLine();
}

void ConsoleScreen::progress(long long value, long long maximum) {
    progressMax_ = std::max(maximum, 0LL);
    progressValue_ = std::clamp(value, 0LL, progressMax_);
    drawProgressLine();
}

void ConsoleScreen::show(const std::string& caption, const std::string& text) {
    clearProgressLine();
    err_ << (caption.empty() ? "zvxcat" : caption) << ": " << TerminalText(text) << "\n";
}

void ConsoleScreen::note(const std::string& text) {
    clearProgressLine();
    err_ << "zvxcat: " << text << "\n";
}

std::optional<std::string> ConsoleScreen::ask(const std::string& prompt) {
    if (!interactive_)
        return std::nullopt;
    clearProgressLine();
    err_ << prompt << std::flush;
    std::string line;
    if (!std::getline(in_, line))
        return std::nullopt;
    return line;
}

std::optional<MsgAnswer> ConsoleScreen::askMessage(const std::vector<MsgAnswer>& choices) {
    while (std::optional<std::string> line = ask(PromptFor(choices))) {
        std::string word = LowerCase(Trim(*line));
        for (MsgAnswer choice : choices) {
            std::string name = NameOf(choice);
            if (!word.empty() && (word == name || word == name.substr(0, 1)))
                return choice;
        }
    }
    return std::nullopt;
}

std::string ConsoleScreen::askDuplicate() {
    while (std::optional<std::string> line = ask("keep-old/keep-all/overwrite/overwrite-all? ")) {
        std::string choice = DuplicateChoiceFor(LowerCase(Trim(*line)));
        if (!choice.empty())
            return choice;
    }
    return "";
}

// One line, redrawn in place, and only when its text changes, so that a run of many
// small steps does not flood the terminal.
void ConsoleScreen::drawProgressLine() {
    if (!drawProgress_)
        return;
    std::string line = statusText_;
    if (progressMax_ > 0) {
        if (!line.empty())
            line += " ";
        line += std::to_string(progressValue_ * 100 / progressMax_) + "%";
    }
    if (line == drawnLine_)
        return;
    if (line.empty()) {
        clearProgressLine();
        return;
    }
    err_ << "\r" << line << "\x1b[K" << std::flush;
    drawnLine_ = line;
}

void ConsoleScreen::clearProgressLine() {
    if (drawnLine_.empty())
        return;
    err_ << "\r\x1b[K" << std::flush;
    drawnLine_.clear();
}

}  // namespace zvx::cat
