#include "document/show_entries.h"

#include <algorithm>
#include <optional>
#include <system_error>

#include "common/common.h"
#include "document/progress_steps.h"
#include "document/sub_view.h"
#include "platform/file_error.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"
#include "store/catalogue_format.h"
#include "store/entry_offset.h"

namespace zvx {

namespace {

constexpr const char* kPreparingSubView = "Preparing Sub-View...";
constexpr const char* kUsingBuffer = "Searching and Showing Entries (using Buffer)...";
constexpr const char* kUpdatingBuffer = "Searching and Showing Entries and Updating View-Buffer...";
constexpr const char* kSearching = "Searching and Showing Entries...";
constexpr const char* kBufferDisabled = "Searching and Showing Entries (Buffer Disabled)...";
constexpr const char* kOverflowText =
    "View-Buffering is not possible, because of too many ZVX-entries.\r"
    "Please reduce the size of this ZVX-Document or disable\r"
    "the buffering-function in the options-menu!";

// The file's modification time, in the file system's own resolution; empty when the
// file cannot be looked at.
std::string FileDateText(const std::filesystem::path& path) {
    std::error_code ec;
    auto time = std::filesystem::last_write_time(path, ec);
    return ec ? std::string() : std::to_string(time.time_since_epoch().count());
}

// One listing: the passes and the view-buffer bookkeeping of their end.
class Listing {
  public:
    Listing(Common& common, const std::filesystem::path& workingCopy,
            const ListingSelection& selection, ViewBuffer& buffer)
        : common_(common), file_(workingCopy), selection_(selection), buffer_(buffer) {}

    // One pass from the entry offset on; false when the view buffer overflowed.
    bool pass();
    void giveUpBuffer();
    void finish();
    EntryRows rows;

  private:
    bool buffering() const { return common_.settings.allowViewBuffering && !bufferDisabled_; }
    bool readEntries();
    template <class Wants>
    bool readLines(LineReader& reader, long long fileLength, Wants wants);
    void countBufferedLines();

    Common& common_;
    const std::filesystem::path& file_;
    const ListingSelection& selection_;
    ViewBuffer& buffer_;
    long long counter_ = 0;
    bool bufferDisabled_ = false;
    bool overflowed_ = false;
};

bool Listing::pass() {
    try {
        return readEntries();
    } catch (const FileError&) {
        return true;
    }
}

bool Listing::readEntries() {
    const uint64_t offset = ReadEntryOffset(file_);
    std::optional<WantedFolderIds> wanted;
    if (selection_.SubViewIng) {
        common_.screen().status(kPreparingSubView);
        wanted.emplace(SubViewFolderIds(file_, selection_.fullPath));
    }
    const long long fileLength = static_cast<long long>(FileLength(file_));
    const uint64_t start = offset > 0 ? offset - 1 : 0;
    if (start >= static_cast<uint64_t>(fileLength))
        return true;
    common_.setProgressMax(fileLength + 1);
    if (buffering() && buffer_.BufferValid) {
        common_.screen().status(kUsingBuffer);
        countBufferedLines();
        return true;
    }
    common_.screen().status(common_.settings.allowViewBuffering ? kUpdatingBuffer : kSearching);
    LineReader reader(file_, start);
    if (wanted)
        return readLines(reader, fileLength,
                         [&](std::string_view line) { return wanted->contains(line); });
    const std::string_view id = selection_.folderId;
    return readLines(reader, fileLength,
                     [id](std::string_view line) { return line.substr(0, kFolderIdLength) == id; });
}

// A valid buffer stands for the lines of the last full pass: the progress runs through
// their count, and no line is read.
void Listing::countBufferedLines() {
    const long long count = buffer_.BufferCount;
    ProgressSteps progress(common_, count == 0 ? 1 : count);
    counter_ = 1;
    for (;;) {
        progress.set(counter_);
        if (++counter_ > count)
            return;
    }
}

template <class Wants>
bool Listing::readLines(LineReader& reader, long long fileLength, Wants wants) {
    const bool counting = buffering();
    ProgressSteps progress(common_, fileLength + 1);
    counter_ = 1;
    std::string_view line;
    while (reader.next(line)) {
        progress.set(static_cast<long long>(reader.position()) + 1);
        if (counting && ++counter_ > kViewBufferLineLimit)
            return false;
        if (line.size() >= kMinEntryLineLength && wants(line))
            rows.add(line);
    }
    return true;
}

void Listing::giveUpBuffer() {
    common_.screen().message("", kOverflowText, MsgButtons::OkOnly, MsgIcon::Critical);
    common_.screen().status(kBufferDisabled);
    bufferDisabled_ = true;
    overflowed_ = true;
}

void Listing::finish() {
    // The count is a 16-bit number: a count that does not fit is not stored, and the
    // old one stays, as every failing step of a listing is passed over.
    if (!buffer_.BufferValid && counter_ <= INT16_MAX)
        buffer_.BufferCount = static_cast<int16_t>(counter_);
    if (buffering())
        buffer_.BufferValid = true;
    if (overflowed_)
        buffer_.BufferValid = false;
    if (buffer_.BufferValid)
        buffer_.BufferDate = FileDateText(file_);
    common_.setProgress(0);
    common_.screen().status("");
}

}  // namespace

EntryRows ShowEntries(Common& common, const std::filesystem::path& workingCopy,
                      const ListingSelection& selection, ViewBuffer& buffer) {
    if (FileDateText(workingCopy) != buffer.BufferDate)
        buffer.BufferValid = false;
    Listing listing(common, workingCopy, selection, buffer);
    for (;;) {
        listing.rows.clear();
        common.PLUGSTART("ZVXREFRESHL");
        if (!selection.hasFolders)
            return {};
        if (listing.pass())
            break;
        listing.giveUpBuffer();
    }
    listing.finish();
    return std::move(listing.rows);
}

}  // namespace zvx
