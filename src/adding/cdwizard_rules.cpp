#include "adding/cdwizard_rules.h"

#include "common/field_text.h"

namespace zvx {

std::string ProposeRootName(bool selectedSubDirsOnly, std::string_view directory,
                            std::string_view drivePath, std::string_view driveLabel) {
    if (selectedSubDirsOnly) {
        while (directory.size() > 1 && directory.ends_with('/'))
            directory.remove_suffix(1);
        const size_t slash = directory.rfind('/');
        return std::string(slash == std::string_view::npos ? directory
                                                           : directory.substr(slash + 1));
    }
    if (driveLabel.empty())
        return "Drive " + std::string(drivePath);
    return std::string(driveLabel) + " (" + std::string(drivePath) + ")";
}

std::string ParentalNameProblem(std::string& name) {
    name = std::string(Trim(name));
    if (name.find('\\', 1) != std::string::npos)
        return "Backslashes are not allowed in a (parental-)foldername.";
    if (name.empty())
        return "Please enter a name for the parental-folder.";
    return {};
}

bool ApplyPattern(bool onlyMatching, std::string_view text, std::string& pattern) {
    if (!onlyMatching) {
        pattern = "*.*";
        return true;
    }
    if (Trim(text).empty() || text.find('/') != std::string_view::npos ||
        text.find('\0') != std::string_view::npos)
        return false;
    pattern = std::string(text);
    return true;
}

}  // namespace zvx
