#include "document/folder_existence.h"

#include "common/code_page.h"
#include "common/common.h"
#include "common/field_text.h"
#include "common/text_case.h"

namespace zvx {

// Name by name, since a path can join a name from a Windows catalogue with one typed
// here in UTF-8.
std::string FolderPathKey(std::string_view path) {
    const std::string stored = CleanFieldText(path);
    std::string_view rest = stored;
    std::string key;
    for (size_t cut; (cut = rest.find('\\')) != std::string_view::npos; rest.remove_prefix(cut + 1))
        key += LowerCase(TextAsUtf8(rest.substr(0, cut))) + '\\';
    return key + LowerCase(TextAsUtf8(rest));
}

bool SameFolderPath(std::string_view a, std::string_view b) {
    return FolderPathKey(a) == FolderPathKey(b);
}

bool RefuseExistingFolder(const Common& common, const FolderTree& tree, std::string_view path) {
    const std::string wanted = FolderPathKey(path);
    for (const FolderNode& node : tree.nodes) {
        if (FolderPathKey(node.fullPath) == wanted) {
            common.screen().message(
                "Error", "The Folder \"" + CleanFieldText(path) + "\" does already exist!",
                MsgButtons::OkOnly, MsgIcon::Critical);
            return true;
        }
    }
    return false;
}

}  // namespace zvx
