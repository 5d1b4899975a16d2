#pragma once
// The run of the tree-adding wizard: a directory tree walked into the active
// catalogue, its directories mirrored as folders or all its files poured into one.

#include <filesystem>
#include <string>

namespace zvx {

class Common;

// The wizard's choices for one run.
struct TreeAddingChoices {
    std::filesystem::path root;      // where the walk starts (native)
    bool addAsSubData = false;       // Option1; otherwise Option2, "Add as root-folder"
    std::string selectedFolderPath;  // the full TOC path of the selected folder, no "\"
    bool makeParental = false;       // Check6
    std::string parentalName;        // Text1
    bool realFolders = false;        // Check3
    bool detag = false;              // Check2
    std::string pattern = "*.*";     // what ApplyPattern gave
    bool ownDescription = false;     // Option3; otherwise the directory's path
    std::string description;         // Text3
    int topIcon = 5;                 // ImageCombo1's image number
    int subIcon = 1;                 // ImageCombo2's image number
};

// How a run ended. Without the merge the entries of new folders are in the catalogue but
// belong to no folder.
struct TreeAddingResult {
    bool entriesWritten = true;  // every entry the run made reached the catalogue
    bool foldersMerged = true;   // the new folders joined the TOC
};

// AddTree: walks `choices.root` into `cfn`. New folders collect in temptoc.tmp and
// join the TOC at the end; entries are appended as the walk goes. Folders already in
// the TOC are reused (the one of the very name first, else one that differs only in
// case), and their files go through the duplicate check. Every failure, the run's start
// and end included, is asked about in the file error dialog; none leaves the run.
TreeAddingResult AddTree(Common& common, const std::filesystem::path& cfn,
                         const TreeAddingChoices& choices);

// KillTempFiles: removes temptoc.tmp, tempct.tmp and tempfil.tmp.
void KillTempFiles(const Common& common);

}  // namespace zvx
