// Any bytes, taken as a catalogue file, go through a copy, move or delete of entries. The
// first byte picks the operation and the target (a folder ID of the TOC, bare or as the
// menu gives it, or a piece of the input), the second the selected rows among the entry
// lines; the duplicate questions are answered by the bytes in turn. It may fail only with
// FileError. After a rewrite the entry offset is the TOC's end, decheck.tmp is gone, and a
// delete from a catalogue whose entry offset was its TOC's end has kept exactly the
// lines of no selected row.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "common/common.h"
#include "document/copy_move.h"
#include "fuzz_check.h"
#include "fuzz_folder.h"
#include "platform/file_error.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"
#include "silent_screen.h"
#include "store/catalogue_format.h"
#include "store/entry_offset.h"
#include "store/toc.h"

namespace {

using zvx::fuzz::Require;
using Path = std::filesystem::path;

std::vector<std::string> LinesFrom(const Path& path, uint64_t position) {
    std::vector<std::string> lines;
    zvx::LineReader reader(path, position > 0 ? position - 1 : 0);
    std::string_view line;
    while (reader.next(line))
        lines.emplace_back(line);
    return lines;
}

// Answers each duplicate question with the next byte of the input.
class ByteScreen : public zvx::fuzz::SilentScreen {
  public:
    explicit ByteScreen(std::string_view bytes) : bytes_(bytes) {}
    std::string doubledetect(const zvx::DuplicateQuestion&) override {
        static const char* const kChoices[] = {zvx::kKeepOld, zvx::kKeepAll, zvx::kDelOld,
                                               zvx::kDelAll};
        if (bytes_.empty())
            return zvx::kKeepOld;
        return kChoices[static_cast<unsigned char>(bytes_[next_++ % bytes_.size()]) % 4];
    }

  private:
    std::string_view bytes_;
    size_t next_ = 0;
};

std::string Target(const Path& catalogue, std::string_view bytes, unsigned pick) {
    const std::vector<zvx::TocGroup> groups = zvx::ReadTocGroups(catalogue);
    std::string target =
        groups.empty() || pick % 8 == 7
            ? std::string(bytes.substr(0, pick % 11))
            : groups[(pick / 8) % groups.size()].id.substr(0, zvx::kFolderIdLength);
    if (pick & 1)
        target += '\\';
    return target;
}

void Exercise(zvx::Common& common, const Path& catalogue, std::string_view bytes, unsigned pick,
              unsigned choose) {
    const uint64_t oldTocEnd = zvx::FindTocEnd(catalogue);
    // Only then the pass takes the lines behind the TOC as the entry lines.
    const bool offsetAtTocEnd = zvx::ReadEntryOffset(catalogue) == oldTocEnd;
    const std::vector<std::string> before = LinesFrom(catalogue, oldTocEnd);
    std::vector<std::string> rows;
    for (size_t i = 0; i < before.size(); ++i) {
        if (before[i].size() >= zvx::kMinEntryLineLength && (i + choose) % 4 == 0)
            rows.push_back(before[i]);
    }
    zvx::SelectedRows selected;
    for (const std::string& row : rows)
        selected.add(row);
    const unsigned operation = (pick / 2) % 3;
    if (operation == 2) {
        zvx::DeleteEntries(common, catalogue, selected);
    } else {
        const auto mode = operation == 0 ? zvx::EntryCopyMode::Copy : zvx::EntryCopyMode::Move;
        zvx::CopyMove(common, catalogue, mode, Target(catalogue, bytes, pick), selected,
                      !rows.empty());
        if (rows.empty())
            return;  // nothing was rewritten
    }
    const uint64_t tocEnd = zvx::FindTocEnd(catalogue);
    Require(zvx::ReadEntryOffset(catalogue) == tocEnd, "the entry offset is the TOC's end");
    Require(!std::filesystem::exists(common.workFile(zvx::kDecheckFile)), "decheck.tmp is gone");
    if (operation != 2 || !offsetAtTocEnd)
        return;
    std::vector<std::string> kept;
    for (const std::string& line : before) {
        if (!selected.matches(line))
            kept.push_back(line);
    }
    Require(LinesFrom(catalogue, tocEnd) == kept, "a delete keeps the other lines");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 2)
        return 0;
    const Path& folder = zvx::fuzz::FuzzFolder();
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 2, size - 2);
    ByteScreen screen(bytes);
    zvx::Common common(folder, folder, screen);
    const Path catalogue = folder / "fuzz.zvx";
    try {
        zvx::WriteEmptyFile(catalogue);
        zvx::WriteFileBytes(catalogue, 0, bytes);
        Exercise(common, catalogue, bytes, data[0], data[1]);
    } catch (const zvx::FileError&) {
        // A file the readers cannot make sense of may fail with FileError, nothing else.
    }
    return 0;
}
