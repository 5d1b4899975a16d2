// Any bytes, taken as zvx.ini, go through the reading and writing of settings. Reads
// and the loading of the settings may fail only with FileError; the loaded renumbering
// level stays within 0 to 3; a written value is read back as written.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "common/app_files.h"
#include "common/common.h"
#include "fuzz_check.h"
#include "fuzz_folder.h"
#include "platform/file_error.h"
#include "platform/file_io.h"
#include "silent_screen.h"
#include "store/load_settings.h"
#include "store/settings.h"

namespace {

using zvx::fuzz::Require;
using Path = std::filesystem::path;

// The key of the file's first line, so that odd keys are tried as well.
std::string FirstKey(std::string_view bytes) {
    std::string_view line = bytes.substr(0, bytes.find_first_of("\r\n"));
    return std::string(line.substr(0, line.find('=')));
}

void ReadSome(const zvx::Common& common, std::string_view bytes) {
    zvx::ReadSetting(common, "FIRSTSTART", "yes");
    zvx::ReadSetting(common, "MainLeft", 1500.0);
    zvx::ReadSetting(common, "scanscheme", "$A - $S");
    zvx::ReadSetting(common, FirstKey(bytes), "");
}

void CheckLoad(zvx::Common& common) {
    zvx::LoadSettings(common);
    const zvx::LoadedSettings& s = common.settings;
    Require(s.renumberingLevel >= 0 && s.renumberingLevel <= 3,
            "the renumbering level loads within 0 to 3");
    Require(s.renumberingLevel != 0 || !s.viewRenumbering,
            "level 0 leaves the list's renumbering off");
}

void CheckWrite(const zvx::Common& common, std::string_view bytes) {
    const std::string key = FirstKey(bytes);
    zvx::WriteSetting(common, key, "fuzz value");
    const zvx::SettingValue read = zvx::ReadSetting(common, key, "");
    Require(!read.isNumber && read.text == "fuzz value", "a written value reads back");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static zvx::fuzz::SilentScreen screen;
    const Path& folder = zvx::fuzz::FuzzFolder();
    zvx::Common common(folder, folder, screen);
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    try {
        const Path ini = folder / zvx::kIniFileName;
        zvx::WriteEmptyFile(ini);
        zvx::WriteFileBytes(ini, 0, bytes);
        ReadSome(common, bytes);
        CheckLoad(common);
        CheckWrite(common, bytes);
    } catch (const zvx::FileError&) {
        // Only a failing file may end a run early.
    }
    return 0;
}
