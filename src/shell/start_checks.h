#pragma once
// The checks at the very start of the window program, before anything is loaded: the
// refusal of a root-directory install, and what to do with the command line when
// another instance may already be running.

#include <filesystem>
#include <string>

namespace zvx {

// The critical message of a root-directory install. The wording is kept as it stands.
inline constexpr const char* kRootRefusalCaption = "Hard-Error!";
inline constexpr const char* kRootRefusalText =
    "ZVX cannot been started, if it is installed in the root-directory of a device!\r\n"
    "Re-Install ZVX in a valid folder and try again!";

// True when the folder's canonical path is the root "/": the clean-up of temporary
// files would then sweep a whole device.
bool IsRootFolder(const std::filesystem::path& folder);

// True when the path names a file that can be opened for reading (and is closed again
// at once). A folder is no such file.
bool FileOpensForReading(const std::string& path);

enum class StartDecision {
    EndSilently,  // no command line, another instance runs: end without a message
    HandOver,     // pass the path to the running instance and end
    OpenPending,  // the path becomes the pending document
    StartPlain,   // start without a document; an unreadable path is dropped in silence
};

// What the start does with its command line (after the quote rule).
StartDecision DecideStart(const std::string& commandLine, bool otherInstanceRunning,
                          bool fileReadable);

}  // namespace zvx
