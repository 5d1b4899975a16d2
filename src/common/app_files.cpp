#include "common/app_files.h"

#include <system_error>

#include "common/text_case.h"

namespace zvx {

std::filesystem::path FindInFolder(const std::filesystem::path& folder, const std::string& name) {
    std::filesystem::path exact = folder / name;
    std::error_code ec;
    if (std::filesystem::exists(exact, ec))
        return exact;
    for (std::filesystem::directory_iterator it(folder, ec), end; !ec && it != end;
         it.increment(ec)) {
        if (TextEquals(it->path().filename().string(), name))
            return it->path();
    }
    return exact;
}

}  // namespace zvx
