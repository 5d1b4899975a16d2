#include <string>

#include "command_list.h"
#include "common/common.h"
#include "metadata/scan_file_name.h"
#include "metadata/scan_scheme.h"
#include "platform/catalogue_path.h"
#include "store/load_settings.h"

namespace zvx::cat {

namespace {

// A text holding a "\" is catalogue text already; a native path gets the swap.
std::string CataloguePathArgument(const std::string& text) {
    if (text.find('\\') != std::string::npos)
        return text;
    return CataloguePathFromNative(NativePathArgument(text).string());
}

void CheckScan(const Arguments& arguments) {
    RequirePositionalCount(arguments, 1, 1);
    const std::string* scheme = arguments.value("--scheme");
    if (scheme && !ValidScanScheme(*scheme)) {
        throw UsageError("--scheme '" + *scheme +
                         "': Illegal Scan-Scheme Declaration! The only characters allowed "
                         "are: $A  $P  $S  $B  $I  -");
    }
}

void RunScan(const Arguments& arguments, Common& common, std::ostream& out) {
    LoadSettings(common);
    if (const std::string* scheme = arguments.value("--scheme"))
        common.settings.scanScheme = *scheme;
    ScanFileName(common, CataloguePathArgument(arguments.positional[0]));
    const ScanValues& scan = common.scan;
    out << "Artist: " << scan.ScanArtist << "\n"
        << "Title: " << scan.ScanTitle << "\n"
        << "Album: " << scan.ScanAlbum << "\n"
        << "Producer: " << scan.ScanProducer << "\n"
        << "Track: " << scan.ScanTrack << "\n";
}

}  // namespace

const Command& ScanCommand() {
    static const Command command{
        "scan",
        "read artist, title, album and track out of a file's path",
        "Usage: zvxcat scan PATH [--scheme S]\n"
        "Scans the file name of PATH as adding a file without a tag does, and prints\n"
        "the lines \"Artist:\", \"Title:\", \"Album:\", \"Producer:\" and \"Track:\". The file\n"
        "need not exist. The scan scheme, the song title priority and the folder scan\n"
        "come from zvx.ini; --scheme S (such as \"$A - $B - $S\") replaces the scheme.\n"
        "PATH is a native path; a text that holds a \\ is taken as catalogue text as it\n"
        "stands (c:\\Music\\a.mp3).\n",
        {"--scheme="},
        CheckScan,
        RunScan};
    return command;
}

}  // namespace zvx::cat
