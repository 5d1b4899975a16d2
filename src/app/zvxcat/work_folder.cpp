#include "work_folder.h"

#include <optional>
#include <system_error>

#include "command.h"
#include "common/application_folder.h"

namespace zvx::cat {

namespace {

// A folder that a clearing run took away before this run held it is made anew; a
// clearing run takes only folders that nobody holds, so this ends at once in practice.
constexpr int kAttempts = 8;

// The names of the work folders, as MakePrivateWorkFolder makes them: this and six
// random letters or digits.
constexpr const char* kWorkFolderPrefix = "zvxcat-";

}  // namespace

WorkFolder::WorkFolder() {
    for (int attempt = 0; attempt < kAttempts && path_.empty(); ++attempt) {
        std::filesystem::path made = MakePrivateWorkFolder();
        if (made.empty())
            break;
        if (std::optional<FileHold> hold = HoldNewFolder(made, kWorkFolderLock)) {
            path_ = made;
            hold_ = std::move(*hold);
        } else {
            std::error_code ec;
            std::filesystem::remove(made, ec);  // only while empty: no lock file was made
        }
    }
    if (path_.empty())
        throw ToolFailure("cannot make a private temporary folder");
    RemoveAbandonedFolders(path_.parent_path(), kWorkFolderPrefix, kWorkFolderLock);
}

// The folder goes while the lock is still held, so that no clearing run meets it half
// removed.
WorkFolder::~WorkFolder() {
    std::error_code ec;
    std::filesystem::remove_all(path_, ec);
}

}  // namespace zvx::cat
