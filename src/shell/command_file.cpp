#include "shell/command_file.h"

#include <exception>
#include <filesystem>
#include <system_error>

#include "common/common.h"
#include "platform/file_error.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"

namespace zvx {

namespace {

std::filesystem::path CommandFile(const Common& common) {
    return common.applicationFolder() / kCommandFileName;
}

bool IsExistingFile(const std::string& path) {
    std::error_code ec;
    return !path.empty() && std::filesystem::is_regular_file(path, ec);
}

bool HasCommands(const std::filesystem::path& file) {
    std::error_code ec;
    return std::filesystem::is_regular_file(file, ec) && std::filesystem::file_size(file, ec) > 0 &&
           !ec;
}

// Marks the poll as running for as long as it lives, however the tick ends.
class BusyMark {
  public:
    explicit BusyMark(bool& busy) : busy_(busy) { busy_ = true; }
    ~BusyMark() { busy_ = false; }

  private:
    bool& busy_;
};

}  // namespace

bool HandOverDocument(const Common& common, const std::string& path) {
    try {
        AppendWriter out(CommandFile(common));
        if (IsExistingFile(path))
            out.writeLine(path);
        out.close();
        return true;
    } catch (const FileError&) {
        common.screen().message(kCommandFileErrorCaption, kCommandFileErrorText, MsgButtons::OkOnly,
                                MsgIcon::Critical);
        return false;
    }
}

bool RemoveLeftoverCommandFile(const Common& common) {
    try {
        TouchFile(CommandFile(common));
        DeleteFileIfExists(CommandFile(common));
        return true;
    } catch (const FileError&) {
        return false;
    }
}

CommandFilePoll::CommandFilePoll(Common& common, std::function<void()> bringToFront,
                                 std::function<void(const std::string&)> LoadDoc)
    : common_(common), bringToFront_(std::move(bringToFront)), LoadDoc_(std::move(LoadDoc)) {}

void CommandFilePoll::tick() {
    if (busy_ || !HasCommands(CommandFile(common_)))
        return;
    BusyMark mark(busy_);
    try {
        bringToFront_();
        common_.screen().status(kExternalLoadingStatus);
        loadLines();
        DeleteFileIfExists(CommandFile(common_));
    } catch (const std::exception&) {
        // The file stays; the next tick tries again.
    }
    common_.pendingDocument.clear();
}

void CommandFilePoll::loadLines() {
    LineReader reader(CommandFile(common_));
    std::string last;
    std::string_view line;
    while (reader.next(line)) {
        common_.pendingDocument.clear();
        std::string path(line);
        if (IsExistingFile(path) && path != last) {
            last = path;
            common_.pendingDocument = path;
            LoadDoc_(path);
        }
    }
}

}  // namespace zvx
