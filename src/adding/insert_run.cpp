#include "adding/insert_run.h"

#include "common/common.h"
#include "metadata/add_file_entry.h"
#include "metadata/file_error_dialog.h"
#include "store/duplicate_index.h"

namespace zvx {

bool InsertRun(Common& common, const std::filesystem::path& cfn, std::string_view folderId,
               const std::vector<InsertRow>& rows, bool detag) {
    if (rows.empty())
        return true;
    common.AbortAdding = false;
    common.DuplicateChoice.clear();
    common.volumeLabels.reset();
    common.setProgressMax(static_cast<long long>(rows.size()) + 1);
    common.setProgress(0);
    common.screen().status("Adding Entries To ZVX...");
    AddRunScope run(common, cfn);
    bool aborted = false;
    for (size_t row = 0; row < rows.size() && !aborted; ++row) {
        common.setProgress(static_cast<long long>(row) + 1);
        // A failure that AddFileEntry does not ask about itself is asked about here:
        // nothing of the file is written before its last step.
        RunFileStep(common, [&] {
            AddFileEntry(common, cfn, rows[row].fullPath(), folderId, detag, true);
        });
        aborted = common.AbortAdding;
    }
    if (aborted) {
        common.screen().message("Error.", "Skipped Rest Of Adding-Procedure!", MsgButtons::OkOnly,
                                MsgIcon::Critical);
        common.AbortAdding = false;
    }
    const bool whole = RunStepOfRun(common, [&] { run.end(); });
    if (!whole)
        run.abandon();
    else if (!aborted)
        common.screen().status("");
    return whole;
}

}  // namespace zvx
