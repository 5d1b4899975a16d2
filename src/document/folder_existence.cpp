#include "document/folder_existence.h"

#include <string>

#include "common/common.h"
#include "common/text_case.h"

namespace zvx {

bool RefuseExistingFolder(const Common& common, const FolderTree& tree, std::string_view path) {
    std::string wanted = LowerCase(path);
    for (const FolderNode& node : tree.nodes) {
        if (LowerCase(node.fullPath) == wanted) {
            common.screen().message("Error",
                                    "The Folder \"" + std::string(path) + "\" does already exist!",
                                    MsgButtons::OkOnly, MsgIcon::Critical);
            return true;
        }
    }
    return false;
}

}  // namespace zvx
