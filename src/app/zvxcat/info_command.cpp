#include "command_list.h"
#include "store/catalogue_format.h"
#include "store/catalogue_info.h"

namespace zvx::cat {

namespace {

std::string VersionText(const CatalogueInfo& info) {
    if (!info.hasVersion)
        return "none (empty file)";
    std::string text = std::to_string(info.formatVersion);
    if (info.formatVersion > kCurrentFormatVersion)
        text += " (newer than this program reads)";
    return text;
}

const char* YesNo(bool value) {
    return value ? "yes" : "no";
}

void CheckInfo(const Arguments& arguments) {
    RequirePositionalCount(arguments, 1, 1);
}

void RunInfo(const Arguments& arguments, Common&, std::ostream& out) {
    CatalogueInfo info = InspectCatalogue(NativePathArgument(arguments.positional[0]));
    out << "format version: " << VersionText(info) << "\n"
        << "entry offset: " << info.entryOffset << "\n"
        << "TOC end: " << info.tocEnd << "\n"
        << "TOC closed: " << YesNo(info.tocClosed) << "\n"
        << "offset matches TOC end: " << YesNo(info.entryOffset == info.tocEnd) << "\n"
        << "folders: " << info.folders << "\n"
        << "entry lines: " << info.entryLines << "\n"
        << "short lines: " << info.shortLines << "\n"
        << "file length: " << info.fileLength << "\n";
}

}  // namespace

const Command& InfoCommand() {
    static const Command command{
        "info",
        "show the structure of a catalogue",
        "Usage: zvxcat info FILE\n"
        "Shows what FILE holds: format version, entry offset, end of the folder table\n"
        "(TOC) and whether the offset points there, the number of folders, entry lines\n"
        "and short lines (lines of fewer than 8 characters, which are no entries), and\n"
        "the file length. Reads damaged files too.\n",
        {},
        CheckInfo,
        RunInfo};
    return command;
}

}  // namespace zvx::cat
