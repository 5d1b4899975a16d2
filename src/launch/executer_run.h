#pragma once
// The executer's run over the selected rows of a list (yo and fileme of ZVXPlay01): each
// selected entry's file is opened where the catalogue says it lies, else on the
// remembered device, else the missing-file dialog asks for the medium. The window steps
// the run one row at a time, so that it repaints and hears Cancel between files.

#include <filesystem>
#include <string>

#include "launch/device_redirection.h"
#include "launch/missing_file.h"

namespace zvx {

class Common;

inline constexpr const char* kExecuterTitle = "ZVX-Executer: Trying to open file for execution...";
inline constexpr const char* kSearchingText = "Searching File...";
inline constexpr const char* kExecutingText = "Executing file...";

// The list a run goes through. Rows are numbered from 1; a row's tag is its entry line.
class ExecuterList {
  public:
    virtual ~ExecuterList() = default;
    virtual long rowCount() const = 0;
    virtual bool isSelected(long row) const = 0;
    virtual std::string tag(long row) const = 0;
};

// Where files are looked for and how they are opened; paths are native.
class FileOpener {
  public:
    virtual ~FileOpener() = default;
    // A regular file, or a link to one, is there.
    virtual bool exists(const std::filesystem::path& file);
    // Opens the file with the desktop's default program. Whether that worked is not
    // looked at: a file without a program fails silently.
    virtual void open(const std::filesystem::path& file) = 0;
};

class ExecuterRun {
  public:
    // The Auto-Redirection and "No File!" boxes go to the common module's Screen, and a
    // remembered device to its redirectDevice.
    ExecuterRun(Common& common, ExecuterList& list, FileOpener& opener, MissingFileDialog& dialog,
                DriveRoots roots);

    // yo: counts the selected rows and starts afresh; false when none is selected.
    bool yo();
    // fileme: deals with the next selected row; false once the run has ended.
    bool fileme();

    // What the window shows: Label1, Label3 in place of Label2, the progress bar.
    const std::string& fileText() const { return fileText_; }
    bool executing() const { return executing_; }
    long doneCount() const { return doneCount_; }
    long selectedCount() const { return selectedCount_; }

  private:
    // Steps 5 to 11 for the row's tag: the file, the remembered device, the dialog.
    void dealWith(const std::string& tag);
    void Executa(const std::string& cataloguePath);
    bool opens(const std::string& cataloguePath);
    bool attempt(const std::string& path, const std::string& device);

    Common& common_;
    ExecuterList& list_;
    FileOpener& opener_;
    MissingFileDialog& dialog_;
    DriveRoots roots_;
    long nextRow_ = 1;
    long doneCount_ = 0;
    long selectedCount_ = 0;
    bool skipAllMissing_ = false;
    bool abortAll_ = false;
    std::string fileText_;
    bool executing_ = false;
};

// The native file a catalogue path names, or the empty path when it names none on this
// system (a Windows path such as "d:\music\a.mp3").
std::filesystem::path NativeFileOf(const std::string& cataloguePath);

}  // namespace zvx
