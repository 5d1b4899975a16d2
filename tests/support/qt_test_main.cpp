// main() of the tests that drive real windows: offscreen unless told otherwise, with
// the desktop's configuration and data folders pointed at a temporary folder.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "common/application_folder.h"
#include "ui/icons.h"
#include "ui/zvx_application.h"

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    const std::filesystem::path home = zvx::MakePrivateWorkFolder();
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        setenv(name, (home / name).c_str(), 1);
    zvx::ZvxApplication app(argc, argv);
    zvx::InitUiResources();
    testing::InitGoogleTest(&argc, argv);
    int result = RUN_ALL_TESTS();
    std::error_code ec;
    std::filesystem::remove_all(home, ec);
    return result;
}
