#include <string>

#include "command_list.h"
#include "common/common.h"
#include "document/editor_apply.h"
#include "entry_edit_arguments.h"
#include "entry_selection.h"
#include "folder_command_support.h"
#include "store/load_settings.h"

namespace zvx::cat {

namespace {

std::vector<FieldAssignment> SetAssignments(const Arguments& arguments) {
    std::vector<FieldAssignment> assignments = ParseFieldAssignments(arguments.positional, 2);
    for (const FieldAssignment& assignment : assignments) {
        if (!HasLock(assignment.field))
            throw UsageError("field " + std::to_string(assignment.field) + " has no lock");
        RequireListValue(assignment);
    }
    return assignments;
}

void CheckSet(const Arguments& arguments) {
    RequirePositionalCount(arguments, 3, SIZE_MAX);
    SetAssignments(arguments);
}

// The form with each given field locked on its value; the year as the form's check
// leaves it when the field loses the focus.
EditorForm LockedForm(const std::vector<FieldAssignment>& assignments) {
    EditorForm form;
    for (const FieldAssignment& assignment : assignments) {
        const size_t field = static_cast<size_t>(assignment.field);
        form.texts[field] = field == 16 ? YearCheck(assignment.value) : assignment.value;
        form.locks[field] = true;
    }
    return form;
}

// The locked selection applied to the selected entries, then the final apply.
void RunSet(const Arguments& arguments, Common& common, std::ostream&) {
    const EditorForm form = LockedForm(SetAssignments(arguments));
    LoadSettings(common);
    FolderCatalogue catalogue(common, arguments.positional[0]);
    const EntryRows rows = SelectEntries(common, catalogue.file(), catalogue.tree(), arguments);
    std::vector<std::string_view> lines;
    lines.reserve(rows.size());
    for (size_t row = 0; row < rows.size(); ++row)
        lines.push_back(rows.line(row));
    ChangeBuffers buffers;
    ApplyLockedSelection(common, buffers, lines, form, common.settings.renumberingLevel);
    WriteEdits(common, catalogue, buffers);
}

}  // namespace

const Command& SetCommand() {
    static const Command command{
        "set",
        "set fields of many entries as the editor's locks do",
        "Usage: zvxcat set FILE FOLDERPATH [--sub] [--name NAME]... FIELD=VALUE...\n"
        "Locks each FIELD on VALUE in the entry editor and applies the locks to the\n"
        "selected entries of the folder FOLDERPATH of the catalogue FILE: every entry it\n"
        "lists, with --sub those of the folders below it too, narrowed by each --name to\n"
        "the entries named exactly NAME. FIELD is one of the fields with a lock, by\n"
        "number or word: 6 medium-description, 8 type, 9 title, 10 artist, 11 album,\n"
        "12 genre, 13 producer, 14 style, 16 year, 17 comment, 18 description. The year\n"
        "is checked as the form checks it; the type and the genre must be in the form's\n"
        "lists. As in the editor, an entry whose type is no audio keeps none of the audio\n"
        "fields, an audio entry loses its description, and each entry is written with\n"
        "read-only No. Prints how many entries were changed on stderr.\n"
        "  --sub        select the entries of the folders below FOLDERPATH too\n"
        "  --name NAME  select the entries named NAME (may be given more than once)\n",
        {kSubFlag, kNameOption},
        CheckSet,
        RunSet};
    return command;
}

}  // namespace zvx::cat
