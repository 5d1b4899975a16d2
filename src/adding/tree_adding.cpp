#include "adding/tree_adding.h"

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
#include "store/duplicate_index.h"
#include "store/folder_id.h"
#include "store/toc.h"
#include "store/toc_merge.h"

namespace zvx {

namespace {

constexpr const char* kTempToc = "temptoc.tmp";
constexpr const char* kTempCt = "tempct.tmp";
constexpr const char* kTempFil = "tempfil.tmp";

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
        : common_(common), cfn_(cfn), choices_(choices), newToc_(common.workFile(kTempToc)) {}

    void run();

  private:
    void LoadFolderCache();
    std::string CachedFolderID(const std::string& tocPath) const;
    void MakeParentalFolder();
    std::string NewFolder(const std::string& tocPath, const std::string& description, int icon);
    void AddDirectory(const std::string& path);
    void EnterFolder(const std::string& path);
    void AddDirectoryFiles(const std::string& path, const std::vector<std::string>& names);
    void status(const char* text) { common_.screen().status(text); }

    Common& common_;
    const std::filesystem::path& cfn_;
    const TreeAddingChoices& choices_;
    AppendWriter newToc_;
    std::unordered_map<std::string, std::string> cache_;  // Listbuf and idbuf
    std::string walkRoot_;
    std::string parentTocPath_;
    std::string currentFolderId_;
    bool folderIsNew_ = false;
    dev_t device_ = 0;
};

void TreeWalk::LoadFolderCache() {
    for (TocGroup& group : ReadTocGroups(cfn_))
        cache_.emplace(LowerCase(group.path), std::move(group.id));
}

// Paths are compared as the TOC holds them: bytes that may not stand in a line are
// blanks there, so a directory named with a line break is found again by a re-run.
std::string TreeWalk::CachedFolderID(const std::string& tocPath) const {
    auto found = cache_.find(LowerCase(CleanFieldText(tocPath)));
    return found == cache_.end() ? std::string() : found->second;
}

std::string TreeWalk::NewFolder(const std::string& tocPath, const std::string& description,
                                int icon) {
    std::string id = NextFolderID(common_);
    const TocGroup group = MakeTocGroup(tocPath, description, icon, id);
    newToc_.writeLine(group.path);
    newToc_.writeLine(group.descriptionLine);
    newToc_.writeLine(group.id);
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

void TreeWalk::AddDirectoryFiles(const std::string& path, const std::vector<std::string>& names) {
    const bool checkDoubles = !folderIsNew_;
    for (const std::string& name : names) {
        if (common_.AbortAdding)
            break;
        AddFileEntry(common_, cfn_, path + name, currentFolderId_, choices_.detag, checkDoubles);
    }
    if (common_.AbortAdding) {
        std::string shown = path.size() > 1 ? path.substr(0, path.size() - 1) : path;
        common_.screen().message("Error.", "Skipped File-Adding Of Directory " + shown + "!",
                                 MsgButtons::OkOnly, MsgIcon::Critical);
        common_.AbortAdding = false;
    }
}

// One listing of the directory serves its files and its sub-directories; one that
// cannot be listed is asked about once, and an abort then skips its files.
void TreeWalk::AddDirectory(const std::string& path) {
    if (choices_.realFolders && path.size() > walkRoot_.size())
        EnterFolder(path);
    DirectoryListing listing;
    common_.AbortAdding = false;
    RunFileStep(common_, [&] { listing = ListDirectory(path, device_, choices_.pattern); });
    if (!currentFolderId_.empty())
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

void TreeWalk::run() {
    status("Tree-Adding in progress (cashing used Folder IDs)...");
    common_.DuplicateChoice.clear();
    common_.volumeLabels.reset();
    folderIsNew_ = false;
    ScanHighestFolderID(common_, cfn_);
    LoadFolderCache();
    WriteEmptyFile(common_.workFile(kTempCt));
    if (choices_.addAsSubData)
        parentTocPath_ = choices_.selectedFolderPath + "\\";
    if (choices_.makeParental)
        MakeParentalFolder();
    if (currentFolderId_.empty() && choices_.addAsSubData)
        currentFolderId_ = CachedFolderID(parentTocPath_);

    status("Tree-Adding in progress (recursive directory-adding)...");
    walkRoot_ = WithSlash(choices_.root.string());
    device_ = DeviceOf(choices_.root);
    common_.setProgressMax(FirstLevelCount(walkRoot_, device_) + 1);
    common_.setProgress(0);
    {
        AddRunScope duplicates(common_, cfn_);
        AddDirectory(walkRoot_);
        duplicates.end();
    }
    common_.setProgress(0);
    newToc_.close();

    status("Tree-Adding in progress (toc-editing)...");
    MergeTocGroups(common_, cfn_, common_.workFile(kTempToc));
    status("");
}

}  // namespace

void AddTree(Common& common, const std::filesystem::path& cfn, const TreeAddingChoices& choices) {
    WriteEmptyFile(common.workFile(kTempToc));
    TreeWalk walk(common, cfn, choices);
    walk.run();
}

void KillTempFiles(const Common& common) {
    for (const char* name : {kTempToc, kTempCt, kTempFil})
        DeleteFileIfExists(common.workFile(name));
}

}  // namespace zvx
