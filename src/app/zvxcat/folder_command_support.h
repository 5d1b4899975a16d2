#pragma once
// What the folder commands share: the catalogue's working copy in the work folder and
// its tree, FOLDERPATH arguments, and the folder dialog's answers from the command line.

#include <filesystem>
#include <string>
#include <string_view>

#include "arguments.h"
#include "document/folder_dialog_rules.h"
#include "document/folder_tree.h"

namespace zvx {
class Common;
}

namespace zvx::cat {

// The catalogue a command reads or changes. A changing command works on a working copy
// in the work folder, as the window program does, and puts it in place at the end.
class FolderCatalogue {
  public:
    // Refuses a catalogue whose format is newer than this program reads, with the
    // window's message. Throws ToolFailure then, and FileError when it cannot be read.
    FolderCatalogue(Common& common, const std::string& fileArgument);

    const std::filesystem::path& file() const { return file_; }
    // Copies the catalogue to the work folder; the path of the copy.
    const std::filesystem::path& openWorkingCopy();
    // The tree as the rebuild builds it from the working copy, or from the catalogue
    // itself before a working copy was made.
    FolderTree tree() const;
    // Replaces the catalogue by the working copy, crash-safely. A write-protected
    // catalogue brings the window's question; when it is kept, ToolFailure.
    void save();

  private:
    Common& common_;
    std::filesystem::path file_;
    std::filesystem::path workingCopy_;
};

// The failure of a change that was refused: the catalogue is left as it was.
[[noreturn]] void RefuseChange(const std::filesystem::path& file);

// A FOLDERPATH in the form of a FullPath: names separated by "\" or "/", with no "\" at
// either end. A text that holds a "\" is taken as it stands, so that a "/" stays part of
// a name there ("\AC/DC" is the root folder AC/DC).
std::string FolderPathArgument(std::string_view text);

// The first node whose FullPath is FOLDERPATH by the rule of SameFolderPath (without
// regard to case or code page); ToolFailure when there is none.
int RequireFolder(const FolderTree& tree, std::string_view text, const std::filesystem::path& file);

// The folder dialog answered from the command line: the name as if typed, --description
// and --icon (a number of the icon table), else the given values. Runs the dialog's
// checks, which show their refusals; a refusal is a ToolFailure.
FolderDialogResult FolderDialogAnswers(const Common& common, const Arguments& arguments,
                                       std::string_view name, std::string description, int icon,
                                       const std::filesystem::path& file);

// The flags of the folder dialog's answers, for the command table.
inline constexpr std::string_view kDescriptionOption = "--description=";
inline constexpr std::string_view kIconOption = "--icon=";

}  // namespace zvx::cat
