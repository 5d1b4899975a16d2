// Any bytes, taken as a file's path in catalogue form, go through the file-name scan.
// The first byte picks the settings: bit 0 the folder scan, bit 1 the song title
// priority, the bits above it one of a few schemes. No field keeps blanks around it or
// holds a "\", the title and producer come from the name with "_" made blanks, a track
// is a number from 1 to 9999, and a path in UTF-8 gives fields in UTF-8 (no cut splits a
// character).

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "common/common.h"
#include "common/field_text.h"
#include "common/numeric_value.h"
#include "common/text_case.h"
#include "fuzz_check.h"
#include "fuzz_folder.h"
#include "metadata/scan_file_name.h"
#include "silent_screen.h"

namespace {

using zvx::fuzz::Require;

constexpr std::array<const char*, 6> kSchemes = {
    "$A - $S", "$S", "$I - $S", "$A - $B - $S - $P", "$N - $A - $S", "$p-$b-$i-$a-$s -"};

void Configure(zvx::LoadedSettings& settings, uint8_t choice) {
    settings.allowFolderScan = (choice & 1) != 0;
    settings.songGotPriority = (choice & 2) != 0;
    settings.scanScheme = kSchemes[(choice >> 2) % kSchemes.size()];
}

void CheckField(const std::string& field) {
    Require(zvx::Trim(field) == field, "a scanned field has no blanks around it");
    Require(field.find('\\') == std::string::npos, "a scanned field holds no \\");
}

void CheckScan(const zvx::ScanValues& scan, bool utf8) {
    for (const std::string* field : {&scan.ScanArtist, &scan.ScanTitle, &scan.ScanAlbum,
                                     &scan.ScanProducer, &scan.ScanTrack}) {
        CheckField(*field);
        Require(!utf8 || zvx::IsValidUtf8(*field), "a UTF-8 path gives UTF-8 fields");
    }
    Require(scan.ScanTitle.find('_') == std::string::npos &&
                scan.ScanProducer.find('_') == std::string::npos,
            "title and producer come from the name with \"_\" made blanks");
    const double track = zvx::NumericValue(scan.ScanTrack);
    Require(scan.ScanTrack.empty() || (track >= 1 && track <= 9999),
            "a track is a number from 1 to 9999");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0)
        return 0;
    static zvx::fuzz::SilentScreen screen;
    const std::filesystem::path& folder = zvx::fuzz::FuzzFolder();
    zvx::Common common(folder, folder, screen);
    Configure(common.settings, data[0]);
    const std::string_view path(reinterpret_cast<const char*>(data) + 1, size - 1);
    zvx::ScanFileName(common, path);
    CheckScan(common.scan, zvx::IsValidUtf8(path));
    Require(zvx::LeadingDigitCount(path) >= 2, "a leading digit count is at least 2");
    return 0;
}
