#include "store/write_protection.h"

#include <cerrno>
#include <system_error>

#include "common/common.h"
#include "platform/file_error.h"

namespace zvx {

namespace fs = std::filesystem;

namespace {

constexpr fs::perms kAllWrite =
    fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;

// Clearing the attributes gives the owner write permission back.
bool ClearAttributes(const fs::path& path) {
    std::error_code ec;
    fs::permissions(path, fs::perms::owner_write, fs::perm_options::add, ec);
    return !ec;
}

}  // namespace

bool FileExists(const fs::path& path) {
    std::error_code ec;
    static_cast<void>(fs::file_size(path, ec));
    return !ec;
}

bool IsReadOnly(const fs::path& path) {
    std::error_code ec;
    fs::file_status status = fs::status(path, ec);
    return !ec && (status.permissions() & fs::perms::owner_write) == fs::perms::none;
}

void SetReadOnly(const fs::path& path) {
    std::error_code ec;
    fs::permissions(path, kAllWrite, fs::perm_options::remove, ec);
    if (ec) {
        errno = ec.value();
        ThrowFileError("Cannot set the read-only attribute of", path);
    }
}

bool CheckWriteProtection(const Common& common, const fs::path& path) {
    if (!FileExists(path) || !IsReadOnly(path))
        return false;
    MsgAnswer answer = common.screen().message(
        "",
        "The file \"" + path.string() +
            "\" is write-protected!\r\nWould you like to try to overwrite it and set its mode "
            "to writeable?",
        MsgButtons::YesNo, MsgIcon::Question);
    if (answer == MsgAnswer::No)
        return true;
    if (ClearAttributes(path))
        return false;
    common.screen().message("Error.", "Filemode change to write-enabled was not possible!",
                            MsgButtons::OkOnly, MsgIcon::Critical);
    return true;
}

}  // namespace zvx
