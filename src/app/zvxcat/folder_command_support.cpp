#include "folder_command_support.h"

#include <algorithm>
#include <charconv>

#include "command.h"
#include "common/common.h"
#include "document/document_messages.h"
#include "document/folder_existence.h"
#include "document/folder_icon_table.h"
#include "platform/file_io.h"
#include "store/catalogue_format.h"
#include "store/toc.h"
#include "store/write_protection.h"

namespace zvx::cat {

namespace {

bool TooNew(const std::filesystem::path& file) {
    std::string version = ReadFileBytes(file, 0, 1);
    return !version.empty() && static_cast<unsigned char>(version[0]) > kCurrentFormatVersion;
}

// The icon number of --icon; anything but a whole number is no icon at all.
int IconNumber(const std::string& text) {
    int number = -1;
    auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? number : -1;
}

}  // namespace

FolderCatalogue::FolderCatalogue(Common& common, const std::string& fileArgument)
    : common_(common), file_(NativePathArgument(fileArgument)) {
    if (TooNew(file_)) {
        ShowVersionError(common_);
        throw ToolFailure(file_.string() + " has a newer format");
    }
}

const std::filesystem::path& FolderCatalogue::openWorkingCopy() {
    workingCopy_ = common_.workFile("working-copy.zvx");
    CopyFileBytes(file_, workingCopy_);
    return workingCopy_;
}

FolderTree FolderCatalogue::tree() const {
    return BuildFolderTree(ReadTocGroups(workingCopy_.empty() ? file_ : workingCopy_));
}

void FolderCatalogue::save() {
    if (CheckWriteProtection(common_, file_))
        throw ToolFailure(file_.string() + " is write-protected and was left as it was");
    CopyFileSafely(workingCopy_, file_);
}

void RefuseChange(const std::filesystem::path& file) {
    throw ToolFailure("refused; " + file.string() + " is unchanged");
}

std::string FolderPathArgument(std::string_view text) {
    std::string path(text);
    if (path.find('\\') == std::string::npos)
        std::replace(path.begin(), path.end(), '/', '\\');
    size_t first = path.find_first_not_of('\\');
    if (first == std::string::npos)
        return "";
    return path.substr(first, path.find_last_not_of('\\') - first + 1);
}

int RequireFolder(const FolderTree& tree, std::string_view text,
                  const std::filesystem::path& file) {
    std::string path = FolderPathArgument(text);
    for (int i = 0; i < tree.size(); ++i) {
        if (SameFolderPath(tree.nodes[i].fullPath, path))
            return i;
    }
    throw ToolFailure("no folder '" + std::string(text) + "' in " + file.string());
}

FolderDialogResult FolderDialogAnswers(const Common& common, const Arguments& arguments,
                                       std::string_view name, std::string description, int icon,
                                       const std::filesystem::path& file) {
    if (const std::string* given = arguments.value("--description"))
        description = *given;
    if (const std::string* given = arguments.value("--icon"))
        icon = IconNumber(*given);
    std::string typed = FolderNameAsTyped(name);
    if (!CheckFolderProps(common, typed, description, FolderIconRow(icon)))
        RefuseChange(file);
    return {typed, description, icon, false};
}

}  // namespace zvx::cat
