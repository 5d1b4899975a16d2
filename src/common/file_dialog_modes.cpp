#include "common/file_dialog_modes.h"

#include <filesystem>
#include <stdexcept>

#include "common/common.h"

namespace zvx {

namespace {

using Filters = std::vector<std::pair<std::string, std::string>>;

const Filters kZvxFilters{{"ZVX-Documents (*.zvx)", "*.zvx"}};
const Filters kSaveFilters{{"All Files (*.*)", "*.*"}, {"ZVX-Documents (*.zvx)", "*.zvx"}};
const Filters kAddFilters{{"All Files (*.*)", "*.*"}, {"MP3-Audio-Files (*.mp3)", "*.mp3"}};

FileDialogRequest Request(std::string title, std::string action, std::string startFolder,
                          const Filters& filters, int preselectedFilter) {
    FileDialogRequest request;
    request.title = std::move(title);
    request.actionButton = std::move(action);
    request.startFolder = std::move(startFolder);
    request.filters = filters;
    request.preselectedFilter = preselectedFilter;
    return request;
}

FileDialogRequest OpenRequest(std::string title, std::string action, std::string startFolder,
                              const Filters& filters) {
    FileDialogRequest request =
        Request(std::move(title), std::move(action), std::move(startFolder), filters, 1);
    request.readOnlyBox = true;
    return request;
}

FileDialogRequest SaveRequest(std::string title, std::string action, std::string startFolder) {
    FileDialogRequest request =
        Request(std::move(title), std::move(action), std::move(startFolder), kSaveFilters, 2);
    request.save = true;
    return request;
}

}  // namespace

FileDialogRequest ExpShowingRequest(std::string_view mode, const Common& common,
                                    const std::string& callerStartFolder,
                                    const std::string& proposedName) {
    FileDialogRequest request;
    if (mode == "load") {
        request = OpenRequest("ZVX-Explorer - Load ZVX...", "Load", callerStartFolder, kZvxFilters);
    } else if (mode == "import") {
        request =
            OpenRequest("ZVX-Explorer - Import ZVX...", "Import", common.lastLoadPath, kZvxFilters);
    } else if (mode == "save") {
        request = SaveRequest("ZVX-Explorer - Save ZVX...", "Save", callerStartFolder);
    } else if (mode == "export") {
        request = SaveRequest("ZVX-Explorer - Export ZVX...", "Export", common.lastSavePath);
    } else if (mode == "add") {
        request =
            OpenRequest("ZVX-Explorer - Add File(s)...", "Add", common.lastAddPath, kAddFilters);
        request.multiSelect = true;
    } else {
        throw std::invalid_argument("unknown file dialog mode " + std::string(mode));
    }
    request.fileName = proposedName;
    return request;
}

void RememberDialogFolder(Common& common, std::string_view mode, const FileDialogResult& result) {
    if (result.paths.empty())
        return;
    std::string folder = std::filesystem::path(result.paths.front()).parent_path().string();
    if (mode == "load" || mode == "import")
        common.lastLoadPath = folder;
    else if (mode == "save" || mode == "export")
        common.lastSavePath = folder;
    else if (mode == "add")
        common.lastAddPath = folder;
}

FileDialogResult expshowing(Common& common, std::string_view mode,
                            const std::string& callerStartFolder, const std::string& proposedName) {
    FileDialogResult result = common.screen().fileDialog(
        ExpShowingRequest(mode, common, callerStartFolder, proposedName));
    RememberDialogFolder(common, mode, result);
    return result;
}

}  // namespace zvx
