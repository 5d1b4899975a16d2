// Any bytes, taken as a catalogue file, go through the entry editor's edits: rows edited
// on the form, a locked field applied to rows, a pair that may match nothing, and the
// final apply. It may fail only with FileError. Afterwards the entry offset is the TOC's
// end, the buffers are empty, and each entry line is its old line or, for the first line
// equal to a buffered one, that pair's new line.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "common/common.h"
#include "common/field_text.h"
#include "document/change_buffers.h"
#include "document/editor_apply.h"
#include "document/editor_form.h"
#include "fuzz_check.h"
#include "fuzz_folder.h"
#include "platform/file_error.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"
#include "silent_screen.h"
#include "store/entry_offset.h"

namespace {

using zvx::fuzz::Require;
using Path = std::filesystem::path;

// Enough rows to meet twins and edited lines, few enough to stay quick.
constexpr size_t kMostRows = 64;
constexpr int kLockableFields[] = {6, 8, 9, 10, 11, 12, 13, 14, 16, 17, 18};

std::vector<std::string> LinesFrom(const Path& path, uint64_t position) {
    std::vector<std::string> lines;
    zvx::LineReader reader(path, position > 0 ? position - 1 : 0);
    std::string_view line;
    while (reader.next(line))
        lines.emplace_back(line);
    return lines;
}

// A piece of the input picked by a number, as text a person might type.
std::string Piece(std::string_view bytes, size_t pick) {
    if (bytes.empty())
        return {};
    const size_t from = pick % bytes.size();
    return zvx::CleanFieldText(bytes.substr(from, pick % 23));
}

void EditRows(zvx::Common& common, zvx::ChangeBuffers& buffers,
              const std::vector<std::string>& lines, std::string_view bytes, size_t seed) {
    std::vector<std::string_view> locked;
    for (size_t i = 0; i < lines.size() && i < kMostRows; ++i) {
        if ((i + seed) % 3 == 0) {
            zvx::EditorForm form;
            zvx::FillForm(form, lines[i], static_cast<int>(seed % 4));
            form.texts[(i + seed) % 22 + 1] = Piece(bytes, i * 7 + seed);
            zvx::TempApply(common, buffers, lines[i], form.texts, static_cast<int>(seed % 4));
        }
        if ((i + seed) % 5 == 0)
            locked.push_back(lines[i]);
    }
    zvx::EditorForm form;
    const int field = kLockableFields[seed % std::size(kLockableFields)];
    form.texts[static_cast<size_t>(field)] = Piece(bytes, seed * 13);
    form.locks[static_cast<size_t>(field)] = true;
    zvx::ApplyLockedSelection(common, buffers, locked, form, 1);
    buffers.record(Piece(bytes, seed * 5 + 1), Piece(bytes, seed * 11 + 2));
}

void Exercise(zvx::Common& common, const Path& catalogue, std::string_view bytes) {
    const std::vector<std::string> before = LinesFrom(catalogue, zvx::FindTocEnd(catalogue));
    const size_t seed = bytes.empty() ? 0 : static_cast<unsigned char>(bytes.back());
    zvx::ChangeBuffers buffers;
    EditRows(common, buffers, before, bytes, seed);
    std::vector<std::string> expected = before;
    zvx::ChangeBuffers pending = buffers;
    for (std::string& line : expected) {
        std::string newLine;
        if (pending.take(line, newLine))
            line = newLine;
    }
    const bool written = zvx::FinalApply(common, catalogue, buffers);
    Require(buffers.empty(), "the final apply empties the buffers");
    if (!written)
        return;
    const uint64_t tocEnd = zvx::FindTocEnd(catalogue);
    Require(zvx::ReadEntryOffset(catalogue) == tocEnd, "the entry offset is the TOC's end");
    Require(LinesFrom(catalogue, tocEnd) == expected, "each pair serves the first equal line");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static zvx::fuzz::SilentScreen screen;
    const Path& folder = zvx::fuzz::FuzzFolder();
    zvx::Common common(folder, folder, screen);
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const Path catalogue = folder / "fuzz.zvx";
    try {
        zvx::WriteEmptyFile(catalogue);
        zvx::WriteFileBytes(catalogue, 0, bytes);
        Exercise(common, catalogue, bytes);
    } catch (const zvx::FileError&) {
        // A file the readers cannot make sense of may fail with FileError, nothing else.
    }
    return 0;
}
