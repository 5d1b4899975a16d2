#include "shell/column_setting_name.h"

#include "common/common.h"
#include "common/field_text.h"

namespace zvx {

std::string AskColumnSettingName(const Common& common) {
    const std::string prompt = "Please enter a name for the setting.";
    std::string shown = prompt;
    for (;;) {
        std::string name =
            common.screen().input("Save Current Listview-Setting", shown, "<no name>");
        if (!Trim(name).empty())
            return name;
        shown = "Invalid Name!\r\n" + prompt;
    }
}

}  // namespace zvx
