#include "store/append_entry.h"

#include <string>

#include "common/common.h"
#include "metadata/case_mode.h"
#include "platform/file_error.h"
#include "platform/open_file.h"
#include "store/catalogue_format.h"
#include "store/duplicate_check.h"
#include "store/duplicate_index.h"

namespace zvx {

namespace {

void ApplyCaseModeToTexts(EntryValues& v, int mode) {
    if (mode == kCaseLeaveUntouched)
        return;
    for (std::string* field :
         {&v.title, &v.artist, &v.album, &v.comment, &v.description, &v.producer}) {
        if (!field->empty())
            *field = ApplyCaseMode(*field, mode, true);
    }
}

// Writes the line with CR LF at the end of the file, then strikes the line it replaces.
// An add run on the file gathers the line with the others, unless a scan decided: that
// strike rewrites the file at once, so the line goes straight in. A failure leaves the
// file as it was, so that a retry writes the line once and strikes once.
void AppendLine(Common& common, const std::filesystem::path& target, std::string_view line,
                const DuplicateVerdict& verdict) {
    DuplicateIndex* index = common.duplicateIndex.get();
    const bool runCatalogue = index && index->isCatalogue(target);
    if (runCatalogue && (verdict.replaced == 0 || verdict.byIndex)) {
        index->appendLine(line);
        StrikeReplaced(common, target, verdict);
        return;
    }
    if (runCatalogue)
        index->release();
    OpenFile file(target, true);
    const uint64_t before = file.size();
    file.append(std::string(line) + kLineEnd);
    try {
        StrikeReplaced(common, target, verdict);
    } catch (const FileError&) {
        file.truncate(before);
        throw;
    }
}

}  // namespace

bool AppendEntry(Common& common, const std::filesystem::path& target, std::string_view folderId,
                 std::string_view fullPath, EntryValues values, bool readOnly,
                 bool checkDuplicates) {
    ApplyCaseModeToTexts(values, common.settings.caseMode);
    std::string line =
        ComposeEntryLine(folderId, fullPath, values, readOnly, common.settings.renumberingLevel);
    common.SetActiveDocumentChanged();
    // In a run the writes come before the duplicate question, so that a retry after a
    // failed write does not ask it again.
    if (DuplicateIndex* index = common.duplicateIndex.get(); index && index->isCatalogue(target))
        index->makeRoom();
    const DuplicateVerdict verdict =
        checkDuplicates ? JudgeDuplicate(common, target, line) : DuplicateVerdict{};
    if (verdict.write)
        AppendLine(common, target, line, verdict);
    else
        StrikeReplaced(common, target, verdict);
    return verdict.write;
}

}  // namespace zvx
