#include "adding/insert_run.h"

#include "common/common.h"
#include "metadata/add_file_entry.h"
#include "store/duplicate_index.h"

namespace zvx {

void InsertRun(Common& common, const std::filesystem::path& cfn, std::string_view folderId,
               const std::vector<InsertRow>& rows, bool detag) {
    if (rows.empty())
        return;
    common.AbortAdding = false;
    common.DuplicateChoice.clear();
    common.volumeLabels.reset();
    common.setProgressMax(static_cast<long long>(rows.size()) + 1);
    common.setProgress(0);
    common.screen().status("Adding Entries To ZVX...");
    AddRunScope run(common, cfn);
    for (size_t row = 0; row < rows.size(); ++row) {
        common.setProgress(static_cast<long long>(row) + 1);
        AddFileEntry(common, cfn, rows[row].fullPath(), folderId, detag, true);
        if (common.AbortAdding) {
            common.screen().message("Error.", "Skipped Rest Of Adding-Procedure!",
                                    MsgButtons::OkOnly, MsgIcon::Critical);
            common.AbortAdding = false;
            run.end();
            return;
        }
    }
    run.end();
    common.screen().status("");
}

}  // namespace zvx
