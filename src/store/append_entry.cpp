#include "store/append_entry.h"

#include <string>

#include "common/common.h"
#include "metadata/case_mode.h"
#include "platform/file_io.h"
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

// Writes the line with CR LF at the end of the file; an add run on the file writes it
// through the file it keeps open, and records it.
void AppendLine(Common& common, const std::filesystem::path& target, std::string_view line) {
    DuplicateIndex* index = common.duplicateIndex.get();
    if (index && index->isCatalogue(target)) {
        index->appendLine(line);
        return;
    }
    AppendWriter writer(target);
    writer.writeLine(line);
    writer.close();
}

}  // namespace

bool AppendEntry(Common& common, const std::filesystem::path& target, std::string_view folderId,
                 std::string_view fullPath, EntryValues values, bool readOnly,
                 bool checkDuplicates) {
    ApplyCaseModeToTexts(values, common.settings.caseMode);
    std::string line =
        ComposeEntryLine(folderId, fullPath, values, readOnly, common.settings.renumberingLevel);
    common.SetActiveDocumentChanged();
    if (checkDuplicates && !CheckDuplicate(common, target, line))
        return false;
    AppendLine(common, target, line);
    return true;
}

}  // namespace zvx
