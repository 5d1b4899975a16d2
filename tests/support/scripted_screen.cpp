#include "support/scripted_screen.h"

#include <gtest/gtest.h>

namespace zvx::test {

void ScriptedScreen::answerMessage(MsgAnswer answer) {
    answers_.push_back({"message", answer, {}, {}});
}
void ScriptedScreen::answerInput(const std::string& text) {
    answers_.push_back({"input", MsgAnswer::Ok, text, {}});
}
void ScriptedScreen::answerDuplicate(const std::string& choice) {
    answers_.push_back({"doubledetect", MsgAnswer::Ok, choice, {}});
}

void ScriptedScreen::answerFileDialog(const FileDialogResult& result) {
    answers_.push_back({"filedialog", MsgAnswer::Ok, {}, result});
}

ScriptedScreen::Answer ScriptedScreen::take(const std::string& kind, const std::string& what) {
    if (answers_.empty() || answers_.front().kind != kind) {
        ADD_FAILURE() << "Unscripted " << kind << ": " << what;
        return {kind, MsgAnswer::Cancel, kind == "doubledetect" ? "keepold" : "", {}};
    }
    Answer answer = answers_.front();
    answers_.pop_front();
    return answer;
}

MsgAnswer ScriptedScreen::message(const std::string& caption, const std::string& text,
                                  MsgButtons buttons, MsgIcon icon) {
    shown.push_back({"message", caption, text, buttons, icon});
    // A box with only an OK button asks nothing.
    if (buttons == MsgButtons::OkOnly)
        return MsgAnswer::Ok;
    return take("message", caption + " | " + text).message;
}

std::string ScriptedScreen::input(const std::string& caption, const std::string& prompt,
                                  const std::string&) {
    shown.push_back({"input", caption, prompt});
    return take("input", caption + " | " + prompt).text;
}

std::string ScriptedScreen::doubledetect(const DuplicateQuestion& question) {
    shown.push_back({"doubledetect", "ZVX - Entry does already exist", question.newname});
    duplicates.push_back(question);
    return take("doubledetect", question.newname).text;
}

FileDialogResult ScriptedScreen::fileDialog(const FileDialogRequest& request) {
    shown.push_back({"filedialog", request.title, request.startFolder});
    fileDialogs.push_back(request);
    return take("filedialog", request.title).files;
}

}  // namespace zvx::test
