#include "work_folder.h"

#include <system_error>

#include "command.h"
#include "common/application_folder.h"

namespace zvx::cat {

WorkFolder::WorkFolder() : path_(MakePrivateWorkFolder()) {
    if (path_.empty())
        throw ToolFailure("cannot make a private temporary folder");
}

WorkFolder::~WorkFolder() {
    std::error_code ec;
    std::filesystem::remove_all(path_, ec);
}

}  // namespace zvx::cat
