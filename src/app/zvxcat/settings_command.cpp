#include <string_view>

#include "command_list.h"
#include "common/numeric_value.h"
#include "store/settings.h"

namespace zvx::cat {

namespace {

bool HoldsLineBreak(std::string_view text) {
    return text.find_first_of("\r\n") != std::string_view::npos;
}

// zvx.ini has no escapes: a line break would split the line, an "=" would end the key.
void CheckSettings(const Arguments& arguments) {
    RequirePositionalCount(arguments, 2, 3);
    const std::string& action = arguments.positional[0];
    if (action != "get" && action != "set")
        throw UsageError("unknown action '" + action + "'");
    if (action == "set")
        RequirePositionalCount(arguments, 3, 3);
    const std::string& key = arguments.positional[1];
    if (key.empty() || key.find('=') != std::string::npos || HoldsLineBreak(key)) {
        throw UsageError("a key must not be empty nor hold \"=\" or a line break");
    }
    if (arguments.positional.size() > 2 && HoldsLineBreak(arguments.positional[2])) {
        throw UsageError("a value must not hold a line break");
    }
}

void RunSettings(const Arguments& arguments, Common& common, std::ostream& out) {
    const std::vector<std::string>& p = arguments.positional;
    std::string third = p.size() > 2 ? p[2] : std::string();
    if (p[0] == "set") {
        WriteSetting(common, p[1], third);
        return;
    }
    SettingValue value = ReadSetting(common, p[1], third);
    if (value.isNumber)
        out << "number\t" << NumberText(value.number) << "\n";
    else
        out << "text\t" << value.text << "\n";
}

}  // namespace

const Command& SettingsCommand() {
    static const Command command{
        "settings",
        "read or write a key of zvx.ini",
        "Usage: zvxcat settings get KEY [DEFAULT]\n"
        "       zvxcat settings set KEY VALUE\n"
        "Reads or writes a key of zvx.ini in the application folder; keys are taken\n"
        "without regard to case. \"get\" prints \"number\" or \"text\", a tab and the value;\n"
        "a key that is not stored, or stored empty, gives DEFAULT (or the empty text).\n"
        "A value that is wholly a non-zero number reads as a number, so \"5\" is a\n"
        "number and \"0005\" a text.\n",
        {},
        CheckSettings,
        RunSettings};
    return command;
}

}  // namespace zvx::cat
