#include "launch/executer_run.h"

#include "common/common.h"
#include "common/field_text.h"
#include "platform/catalogue_path.h"
#include "store/entry_line.h"

namespace zvx {

namespace {

constexpr int kNameField = 1;
constexpr int kPathField = 3;
constexpr int kDeviceIdField = 4;
constexpr int kDeviceDescriptionField = 6;

}  // namespace

std::filesystem::path NativeFileOf(const std::string& cataloguePath) {
    std::filesystem::path native = NativePathFromCatalogue(cataloguePath);
    // Only an absolute path names a file here; a relative one would be looked up in
    // whatever folder the program happens to stand in.
    return native.is_absolute() ? native : std::filesystem::path();
}

bool FileOpener::exists(const std::filesystem::path& file) {
    std::error_code error;
    return std::filesystem::is_regular_file(file, error);
}

ExecuterRun::ExecuterRun(Common& common, ExecuterList& list, FileOpener& opener,
                         MissingFileDialog& dialog, DriveRoots roots)
    : common_(common), list_(list), opener_(opener), dialog_(dialog), roots_(std::move(roots)) {}

bool ExecuterRun::yo() {
    abortAll_ = false;
    skipAllMissing_ = false;
    selectedCount_ = 0;
    for (long row = 1, rows = list_.rowCount(); row <= rows; ++row)
        selectedCount_ += list_.isSelected(row) ? 1 : 0;
    doneCount_ = 0;
    nextRow_ = 1;
    return selectedCount_ != 0;
}

bool ExecuterRun::fileme() {
    executing_ = false;
    const long rows = list_.rowCount();
    if (nextRow_ > rows)
        return false;
    while (nextRow_ <= rows) {
        const long row = nextRow_++;
        if (list_.isSelected(row)) {
            ++doneCount_;
            dealWith(list_.tag(row));
            break;
        }
    }
    return !abortAll_;
}

void ExecuterRun::dealWith(const std::string& tag) {
    const EntryFields fields = SplitEntryLine(tag, kDeviceDescriptionField);
    const std::string name(Trim(fields[kNameField]));
    std::string path(Trim(fields[kPathField]));
    // A row without a name or a path names no file: passed over without a word.
    if (name.empty() || path.empty())
        return;
    if (!path.ends_with('\\'))
        path += '\\';
    const std::string full = path + name;
    fileText_ = "File: " + full;
    if (opens(full)) {
        Executa(full);
        return;
    }
    if (skipAllMissing_)
        return;
    if (!common_.redirectDevice.empty()) {
        const std::string moved = replaceme(full, common_.redirectDevice, roots_);
        if (opens(moved)) {
            Executa(moved);
            return;
        }
    }
    // A remembered device that lacks the file too is not forgotten: the dialog asks.
    const MissingFile missing{full, std::string(fields[kDeviceIdField]),
                              std::string(fields[kDeviceDescriptionField])};
    const MissingChoice choice =
        dialog_.showing(missing, [&](const std::string& device) { return attempt(full, device); });
    if (choice == MissingChoice::SkipAll)
        skipAllMissing_ = true;
    if (choice == MissingChoice::AbortAll)
        abortAll_ = true;
}

bool ExecuterRun::opens(const std::string& cataloguePath) {
    const std::filesystem::path file = NativeFileOf(cataloguePath);
    return !file.empty() && opener_.exists(file);
}

void ExecuterRun::Executa(const std::string& cataloguePath) {
    executing_ = true;
    opener_.open(NativeFileOf(cataloguePath));
}

// "Attempt!" of the dialog: the file moved to the chosen device.
bool ExecuterRun::attempt(const std::string& path, const std::string& device) {
    const std::string moved = replaceme(path, device, roots_);
    Screen& screen = common_.screen();
    if (!opens(moved)) {
        screen.message("No File!", "Sorry - File Still Not Found!", MsgButtons::OkOnly,
                       MsgIcon::Information);
        return false;
    }
    const MsgAnswer remember = screen.message(
        "Auto-Redirection",
        "File successfully found.\r\nShould the next non-locateable file(s) automatically be "
        "searched in this device?",
        MsgButtons::YesNo, MsgIcon::None);
    if (remember == MsgAnswer::Yes)
        common_.redirectDevice = device;
    Executa(moved);
    return true;
}

}  // namespace zvx
