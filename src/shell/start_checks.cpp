#include "shell/start_checks.h"

#include <fstream>
#include <system_error>

namespace zvx {

bool IsRootFolder(const std::filesystem::path& folder) {
    std::error_code ec;
    std::filesystem::path canonical = std::filesystem::weakly_canonical(folder, ec);
    return !ec && canonical == canonical.root_path();
}

bool FileOpensForReading(const std::string& path) {
    std::error_code ec;
    // Linux opens a folder for reading too; a document has to be a file.
    if (path.empty() || !std::filesystem::is_regular_file(path, ec))
        return false;
    std::ifstream file(path, std::ios::binary);
    return file.is_open();
}

StartDecision DecideStart(const std::string& commandLine, bool otherInstanceRunning,
                          bool fileReadable) {
    if (commandLine.empty())
        return otherInstanceRunning ? StartDecision::EndSilently : StartDecision::StartPlain;
    if (otherInstanceRunning)
        return StartDecision::HandOver;
    return fileReadable ? StartDecision::OpenPending : StartDecision::StartPlain;
}

}  // namespace zvx
