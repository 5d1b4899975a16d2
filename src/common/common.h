#pragma once
// The common module: the process-wide values of one running program. One object per
// process (tests make their own); nothing lives in hidden statics.

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "common/loaded_settings.h"
#include "common/media_values.h"
#include "common/screen.h"

namespace zvx {

class DuplicateIndex;
class VolumeLabels;

// The version of the extension interface that extensions' requirements are compared with.
inline constexpr int kExtensionInterfaceVersion = 110;
// The status text when nothing is going on.
inline constexpr const char* kIdleStatusText = "Ready.";

class Common {
  public:
    // appFolder holds zvx.ini, CONFIG and PLUGINS; workFolder takes the temporary
    // files. In the window program both are the same folder.
    Common(std::filesystem::path appFolder, std::filesystem::path workFolder, Screen& screen);

    const std::filesystem::path& applicationFolder() const { return appFolder_; }
    const std::filesystem::path& workFolder() const { return workFolder_; }
    // A temporary file by its fixed name ("tempfile.tmp", "decheck.tmp" ...).
    std::filesystem::path workFile(const std::string& name) const { return workFolder_ / name; }
    // The settings file.
    std::filesystem::path iniFile() const;

    Screen& screen() const { return *screen_; }

    // Fires an event name for the plug-ins (PLUGSTART); does nothing until a
    // front end installs a handler.
    void PLUGSTART(const std::string& eventName) const;
    // Sets the change flag (aender) of the active document.
    void SetActiveDocumentChanged() const;

    // Progress counters of long operations, shown through the Screen.
    void setProgress(long long value);
    void setProgressMax(long long maximum);
    long long progressValue = 0;
    long long progressMax = 0;

    LoadedSettings settings;

    // The last answer of the duplicate dialog within one run, or empty.
    std::string DuplicateChoice;
    // The duplicate index of the add run in progress (BeginAddRun), or none.
    std::shared_ptr<DuplicateIndex> duplicateIndex;
    // Set when the user aborts an add run.
    bool AbortAdding = false;
    // What the readers of the last media file found.
    TagValues id3;
    StreamValues stream;
    ScanValues scan;
    // The volume labels read in the current add run; each run begins without any, and
    // the first file read makes them.
    std::shared_ptr<VolumeLabels> volumeLabels;
    // The counter of NextFolderID, set by ScanHighestFolderID.
    long long folderIdCounter = 0;
    // Set by a new sub-folder: the next rebuild of a tree with nodes expands the node it
    // selects, then clears this.
    bool ExpandAfterRefresh = false;
    // A path LoadDoc takes instead of showing its dialog.
    std::string pendingDocument;
    // The device the executer tries a missing file on first (redirectDevice): empty at
    // the start, kept for the rest of the program's run once a person chose to.
    std::string redirectDevice;
    // searchSplitMode: the search window prepares the sub-tree and the folder of the
    // selected node as well, not only the whole catalogue.
    bool searchSplitMode = false;
    // Start folders of the file dialogs (lastsavepath, lastloadpath, lastaddpath).
    std::string lastSavePath;
    std::string lastLoadPath;
    std::string lastAddPath;
    // The value of Firststart: "yes" until the welcome window has been closed once.
    std::string firstStartMarker = "yes";
    // The recent documents, newest first, at most ten (RecentAdd keeps the rule).
    std::vector<std::string> Recentlist;

    std::function<void(const std::string&)> onPlugStart;
    std::function<void()> onActiveDocumentChanged;
    // Rebuilds the recent-file menu from Recentlist (RecentRefresh); the window installs it.
    std::function<void()> onRecentRefresh;

  private:
    std::filesystem::path appFolder_;
    std::filesystem::path workFolder_;
    Screen* screen_;
};

}  // namespace zvx
