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

// The fields the form only shows: name, path, medium ID and read-only.
bool ReadOnlyOnTheForm(int field) {
    return field == 1 || field == 3 || field == 4 || field == 5;
}

std::vector<FieldAssignment> EditAssignments(const Arguments& arguments) {
    std::vector<FieldAssignment> assignments = ParseFieldAssignments(arguments.positional, 3);
    for (const FieldAssignment& assignment : assignments) {
        if (ReadOnlyOnTheForm(assignment.field))
            throw UsageError("field " + std::to_string(assignment.field) +
                             " is read-only on the form");
        RequireListValue(assignment);
    }
    return assignments;
}

void CheckEdit(const Arguments& arguments) {
    RequirePositionalCount(arguments, 4, SIZE_MAX);
    EditAssignments(arguments);
}

// Digits, with a fraction or not, and blanks around them.
bool IsBareNumber(std::string_view text) {
    const size_t first = text.find_first_not_of(' ');
    const size_t last = text.find_last_not_of(' ');
    if (first == std::string_view::npos)
        return false;
    const std::string_view number = text.substr(first, last - first + 1);
    const size_t point = number.find('.');
    auto digits = [](std::string_view part) {
        return !part.empty() && part.find_first_not_of("0123456789") == std::string_view::npos;
    };
    return point == std::string_view::npos
               ? digits(number)
               : digits(number.substr(0, point)) && digits(number.substr(point + 1));
}

// What the field's control holds once the value is typed into it: the year after the
// check it gets on losing the focus; a bare bitrate or frequency with the unit the form
// shows behind it, so that reading the form back takes the number.
std::string Typed(const FieldAssignment& assignment) {
    switch (assignment.field) {
        case 16:
            return YearCheck(assignment.value);
        case 20:
            return IsBareNumber(assignment.value) ? assignment.value + " kbps" : assignment.value;
        case 21:
            return IsBareNumber(assignment.value) ? assignment.value + " hz" : assignment.value;
        default:
            return assignment.value;
    }
}

// The editor on the first listed entry of the name: the form shows it, the values are
// typed in, and leaving the editor writes what the form then makes of the entry.
void RunEdit(const Arguments& arguments, Common& common, std::ostream&) {
    const std::vector<FieldAssignment> assignments = EditAssignments(arguments);
    LoadSettings(common);
    const int level = common.settings.renumberingLevel;
    FolderCatalogue catalogue(common, arguments.positional[0]);
    const FolderTree tree = catalogue.tree();
    const FolderNode& folder =
        tree.nodes[RequireFolder(tree, arguments.positional[1], catalogue.file())];
    const EntryRows rows =
        SelectEntries(common, catalogue.file(), folder, false, {arguments.positional[2]});
    ChangeBuffers buffers;
    if (!rows.empty()) {
        EditorForm form;
        FillForm(form, rows.line(0), level);
        for (const FieldAssignment& assignment : assignments)
            form.texts[static_cast<size_t>(assignment.field)] = Typed(assignment);
        TempApply(common, buffers, rows.line(0), form.texts, level);
    }
    WriteEdits(common, catalogue, buffers);
}

}  // namespace

const Command& EditCommand() {
    static const Command command{
        "edit",
        "edit one entry as the entry editor does",
        "Usage: zvxcat edit FILE FOLDERPATH NAME FIELD=VALUE...\n"
        "Shows the first entry named NAME of the folder FOLDERPATH of the catalogue FILE\n"
        "in the entry editor, types each VALUE into the FIELD's control and leaves the\n"
        "editor, which writes the entry as the form then reads it. FIELD is a number, 1\n"
        "to 22, or one of: size medium-description date type title artist album genre\n"
        "producer style track year comment description length bitrate frequency mode\n"
        "(name, path, medium and read-only are only shown on the form). The year is\n"
        "checked as the form checks it (7 is 1997, 123 is 2000); the size is read as a\n"
        "number passing over blanks (\"1 234 567\"); bitrate and frequency take a bare\n"
        "number (320) or the form's text (\"320 kbps\"); n/a is stored as 0 for them and\n"
        "as nothing for length and mode. The type and the genre must be in the form's\n"
        "lists. A type that is no audio stores the audio fields empty. Prints how many\n"
        "entries were changed on stderr; without an entry of that name nothing changes.\n",
        {},
        CheckEdit,
        RunEdit};
    return command;
}

}  // namespace zvx::cat
