#include "adding/tree_adding.h"

#include <optional>
#include <unordered_map>
#include <vector>

#include "common/common.h"
#include "common/field_text.h"
#include "common/text_case.h"
#include "metadata/add_file_entry.h"
#include "metadata/file_error_dialog.h"
#include "platform/catalogue_path.h"
#include "platform/directory_walk.h"
#include "platform/file_error.h"
#include "platform/file_io.h"
#include "platform/open_file.h"
#include "store/catalogue_format.h"
#include "store/duplicate_index.h"
#include "store/folder_id.h"
#include "store/toc.h"
#include "store/toc_merge.h"

namespace zvx {

namespace {

constexpr const char* kTempToc = "temptoc.tmp";
constexpr const char* kTempCt = "tempct.tmp";
constexpr const char* kTempFil = "tempfil.tmp";
// New TOC groups wait in memory up to this size; temptoc.tmp gets them in one write.
constexpr size_t kTocBlock = 1 << 20;

std::string WithSlash(std::string path) {
    if (!path.ends_with('/'))
        path += '/';
    return path;
}

// The progress counts the directories of the first level; one that cannot be listed
// now is asked about when the walk reaches it.
long long FirstLevelCount(const std::string& root, dev_t device) {
    try {
        return static_cast<long long>(SubDirectoryNames(root, device).size());
    } catch (const FileError&) {
        return 0;
    }
}

class TreeWalk {
  public:
    TreeWalk(Common& common, const std::filesystem::path& cfn, const TreeAddingChoices& choices)
        : common_(common), cfn_(cfn), choices_(choices) {}

    TreeAddingResult run();

  private:
    void prepare();
    void LoadFolderCache();
    std::string CachedFolderID(const std::string& tocPath) const;
    void writeNewToc();
    void mergeNewToc();
    void MakeParentalFolder();
    std::string NewFolder(const std::string& tocPath, const std::string& description, int icon);
    void AddDirectory(const std::string& path);
    void EnterFolder(const std::string& path);
    void AddDirectoryFiles(const std::string& path, const std::vector<std::string>& names);
    void status(const char* text) { common_.screen().status(text); }

    Common& common_;
    const std::filesystem::path& cfn_;
    const TreeAddingChoices& choices_;
    std::optional<OpenFile> newToc_;  // temptoc.tmp
    std::string newTocPending_;       // groups not written to it yet
    // Listbuf and idbuf: TOC paths as they stand and lower-cased, with their IDs.
    std::unordered_map<std::string, std::string> exactCache_;
    std::unordered_map<std::string, std::string> foldedCache_;
    std::string walkRoot_;
    std::string parentTocPath_;
    std::string currentFolderId_;
    bool folderIsNew_ = false;
    dev_t device_ = 0;
};

// Reads what the run starts from and makes its temporary files.
void TreeWalk::prepare() {
    ScanHighestFolderID(common_, cfn_);
    LoadFolderCache();
    newToc_.reset();
    WriteEmptyFile(common_.workFile(kTempToc));
    WriteEmptyFile(common_.workFile(kTempCt));
    newToc_.emplace(common_.workFile(kTempToc));
    device_ = DeviceOf(choices_.root);
}

void TreeWalk::LoadFolderCache() {
    exactCache_.clear();
    foldedCache_.clear();
    for (const TocGroup& group : ReadTocGroups(cfn_)) {
        exactCache_.emplace(group.path, group.id);
        foldedCache_.emplace(LowerCase(group.path), group.id);
    }
}

// Paths are compared as the TOC holds them: bytes that may not stand in a line are
// blanks there, so a directory named with a line break is found again by a re-run.
// Linux names differ by case, so a folder of the very name wins over one that differs
// only in case; that one serves a directory whose folder exists in another case only.
std::string TreeWalk::CachedFolderID(const std::string& tocPath) const {
    const std::string clean = CleanFieldText(tocPath);
    auto found = exactCache_.find(clean);
    if (found != exactCache_.end())
        return found->second;
    found = foldedCache_.find(LowerCase(clean));
    return found == foldedCache_.end() ? std::string() : found->second;
}

// A block that fails leaves temptoc.tmp as it was and the groups waiting.
void TreeWalk::writeNewToc() {
    if (newTocPending_.empty())
        return;
    newToc_->append(newTocPending_, OpenFile::Keep::Nothing);
    newTocPending_.clear();
}

void TreeWalk::mergeNewToc() {
    writeNewToc();
    newToc_->close();
    MergeTocGroups(common_, cfn_, common_.workFile(kTempToc));
}

// The folder's ID, or an empty text when the groups waiting could not be written and
// the user gave the folder up.
std::string TreeWalk::NewFolder(const std::string& tocPath, const std::string& description,
                                int icon) {
    if (newTocPending_.size() >= kTocBlock && !RunFileStep(common_, [&] { writeNewToc(); }))
        return "";
    std::string id = NextFolderID(common_);
    const TocGroup group = MakeTocGroup(tocPath, description, icon, id);
    for (const std::string* line : {&group.path, &group.descriptionLine, &group.id})
        newTocPending_.append(*line).append(kLineEnd);
    return id;
}

void TreeWalk::MakeParentalFolder() {
    const std::string tocPath = parentTocPath_ + choices_.parentalName + "\\";
    currentFolderId_ = CachedFolderID(tocPath);
    folderIsNew_ = currentFolderId_.empty();
    if (folderIsNew_) {
        status("Tree-Adding in progress (creating parental-folder)...");
        const std::string description =
            choices_.ownDescription ? choices_.description : choices_.root.string();
        currentFolderId_ = NewFolder(tocPath, description, choices_.topIcon);
    }
    parentTocPath_ = tocPath;
}

// A directory below the root gets its own folder, found in the cache or made new.
void TreeWalk::EnterFolder(const std::string& path) {
    const std::string tocPath =
        parentTocPath_ + CataloguePathFromNative(path.substr(walkRoot_.size()));
    currentFolderId_ = CachedFolderID(tocPath);
    folderIsNew_ = currentFolderId_.empty();
    if (folderIsNew_) {
        std::string description = choices_.ownDescription ? choices_.description : path;
        if (!choices_.ownDescription && description.size() > 1)
            description.pop_back();
        currentFolderId_ = NewFolder(tocPath, description, choices_.subIcon);
    }
}

// A failure that AddFileEntry does not ask about itself is asked about here: nothing of
// the file is written before its last step.
void TreeWalk::AddDirectoryFiles(const std::string& path, const std::vector<std::string>& names) {
    const bool checkDoubles = !folderIsNew_;
    for (const std::string& name : names) {
        if (common_.AbortAdding)
            break;
        RunFileStep(common_, [&] {
            AddFileEntry(common_, cfn_, path + name, currentFolderId_, choices_.detag,
                         checkDoubles);
        });
    }
    if (common_.AbortAdding) {
        std::string shown = path.size() > 1 ? path.substr(0, path.size() - 1) : path;
        common_.screen().message("Error.", "Skipped File-Adding Of Directory " + shown + "!",
                                 MsgButtons::OkOnly, MsgIcon::Critical);
        common_.AbortAdding = false;
    }
}

// One listing of the directory serves its files and its sub-directories; one that
// cannot be listed is asked about once, and an abort then skips its files, as an abort
// of its folder does.
void TreeWalk::AddDirectory(const std::string& path) {
    common_.AbortAdding = false;
    if (choices_.realFolders && path.size() > walkRoot_.size())
        EnterFolder(path);
    DirectoryListing listing;
    RunFileStep(common_, [&] { listing = ListDirectory(path, device_, choices_.pattern); });
    if (!currentFolderId_.empty() || common_.AbortAdding)
        AddDirectoryFiles(path, listing.files);
    common_.AbortAdding = false;
    const bool topLevel = common_.progressValue == 0;
    for (const std::string& name : listing.subDirectories) {
        if (topLevel)
            common_.setProgress(common_.progressValue + 1);
        AddDirectory(path + name + "/");
    }
    folderIsNew_ = false;
}

TreeAddingResult TreeWalk::run() {
    status("Tree-Adding in progress (cashing used Folder IDs)...");
    common_.DuplicateChoice.clear();
    common_.volumeLabels.reset();
    folderIsNew_ = false;
    if (!RunStepOfRun(common_, [&] { prepare(); }))
        return {false, false};
    if (choices_.addAsSubData)
        parentTocPath_ = choices_.selectedFolderPath + "\\";
    if (choices_.makeParental)
        MakeParentalFolder();
    if (currentFolderId_.empty() && choices_.addAsSubData)
        currentFolderId_ = CachedFolderID(parentTocPath_);

    status("Tree-Adding in progress (recursive directory-adding)...");
    walkRoot_ = WithSlash(choices_.root.string());
    common_.setProgressMax(FirstLevelCount(walkRoot_, device_) + 1);
    common_.setProgress(0);
    TreeAddingResult result;
    {
        AddRunScope duplicates(common_, cfn_);
        AddDirectory(walkRoot_);
        result.entriesWritten = RunStepOfRun(common_, [&] { duplicates.end(); });
        if (!result.entriesWritten)
            duplicates.abandon();
    }
    common_.setProgress(0);

    status("Tree-Adding in progress (toc-editing)...");
    result.foldersMerged = RunStepOfRun(common_, [&] { mergeNewToc(); });
    status("");
    return result;
}

}  // namespace

TreeAddingResult AddTree(Common& common, const std::filesystem::path& cfn,
                         const TreeAddingChoices& choices) {
    TreeWalk walk(common, cfn, choices);
    return walk.run();
}

void KillTempFiles(const Common& common) {
    for (const char* name : {kTempToc, kTempCt, kTempFil})
        DeleteFileIfExists(common.workFile(name));
}

}  // namespace zvx
