#pragma once
// The hand-over between processes: a second start with a document writes the path to
// the command file in the application folder and ends; the running instance polls the
// file and loads what it finds. The file holds one path a line, CR LF, in the order of
// arrival; an empty file means nothing. This file is the whole protocol between the two.

#include <functional>
#include <string>

namespace zvx {

class Common;

inline constexpr const char* kCommandFileName = "zvxopen.tmp";
inline constexpr const char* kCommandFileErrorCaption = "ZVX-Error";
inline constexpr const char* kCommandFileErrorText =
    "Unable To Open Command-File To the Running ZVX-Application!\r\n"
    "Try to Drag & Drop the file(s) directly into the ZVX Window!";
inline constexpr const char* kExternalLoadingStatus = "External Document Loading Detected...";

// The second process's part: appends `path` as one line to the command file, creating
// it. A path that names no existing file is dropped without a word (the file is still
// made). On a failure it shows the "ZVX-Error" message and gives false.
bool HandOverDocument(const Common& common, const std::string& path);

// The start's removal of a command file left by an earlier run (open for appending,
// close, delete), so that it is not taken for a command. False when that failed.
bool RemoveLeftoverCommandFile(const Common& common);

// The running process's poll, one tick every 300 milliseconds (Timer2).
class CommandFilePoll {
  public:
    // bringToFront raises the main window; LoadDoc loads common.pendingDocument, which
    // holds the path it is also given.
    CommandFilePoll(Common& common, std::function<void()> bringToFront,
                    std::function<void(const std::string&)> LoadDoc);

    // Does nothing for a missing or empty command file. Otherwise raises the window,
    // shows "External Document Loading Detected..." and loads each line that names an
    // existing file, in order, skipping a line equal to the one loaded last in this
    // tick (a double start writes the same path twice); then deletes the file and
    // clears the pending document. On an error the tick ends and the file stays for the
    // next one. A tick that comes while a load of this poll waits in a dialog does
    // nothing, so the same lines are not loaded again underneath it.
    void tick();

  private:
    void loadLines();

    Common& common_;
    std::function<void()> bringToFront_;
    std::function<void(const std::string&)> LoadDoc_;
    bool busy_ = false;
};

}  // namespace zvx
