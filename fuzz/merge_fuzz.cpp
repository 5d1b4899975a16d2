// Any bytes, taken as two catalogue files, go through an import's merge, and the merged
// file through the export's "optimize" mode. The input is the target, then the marker
// "<source>" and the source; the first byte picks whether the source goes to the root or
// below the target's first folder. It may fail only with FileError. A merge that ran
// keeps every folder of both files, and its entry offset is the TOC's end; a refused one
// leaves the target as it was. The optimized file's entry offset is its TOC's end.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "common/common.h"
#include "exchange/export_toc.h"
#include "exchange/merge.h"
#include "fuzz_check.h"
#include "fuzz_folder.h"
#include "platform/file_error.h"
#include "platform/file_io.h"
#include "silent_screen.h"
#include "store/entry_offset.h"
#include "store/toc.h"

namespace {

using zvx::fuzz::Require;
using Path = std::filesystem::path;

constexpr std::string_view kMarker = "<source>";

void WriteFile(const Path& path, std::string_view bytes) {
    zvx::WriteEmptyFile(path);
    zvx::WriteFileBytes(path, 0, bytes);
}

std::string TargetPath(const Path& target, bool below) {
    const std::vector<zvx::TocGroup> groups = zvx::ReadTocGroups(target);
    return below && !groups.empty() ? groups.front().path : std::string();
}

void Optimize(zvx::Common& common, const Path& merged) {
    const Path file = zvx::fuzz::FuzzFolder() / "export.tmp";
    zvx::ApplyExportToc(common, file, merged, zvx::ExportTocMode::Optimize, "");
    Require(zvx::ReadEntryOffset(file) == zvx::FindTocEnd(file),
            "the optimized entry offset is the TOC's end");
}

void Merge(zvx::Common& common, std::string_view bytes) {
    const Path& folder = zvx::fuzz::FuzzFolder();
    const Path target = folder / "target.zvx";
    const Path source = folder / "imported.tmp";
    const size_t cut = std::min(bytes.find(kMarker), bytes.size());
    const std::string targetBytes(bytes.substr(0, cut));
    WriteFile(target, targetBytes);
    WriteFile(source, bytes.substr(std::min(cut + kMarker.size(), bytes.size())));
    const size_t targetFolders = zvx::ReadTocGroups(target).size();
    const bool below = !bytes.empty() && (static_cast<unsigned char>(bytes[0]) & 1);
    const zvx::MergeResult result =
        zvx::MergeCatalogue(common, target, source, TargetPath(target, below));
    if (!result.merged) {
        Require(zvx::ReadFileBytes(target, 0, targetBytes.size() + 1) == targetBytes,
                "a refused merge leaves the target");
        return;
    }
    Require(zvx::ReadEntryOffset(target) == zvx::FindTocEnd(target),
            "the merged entry offset is the TOC's end");
    Require(zvx::ReadTocGroups(target).size() == targetFolders + result.folders,
            "the merged TOC holds the folders of both files");
    Optimize(common, target);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static zvx::fuzz::SilentScreen screen;
    const std::filesystem::path& folder = zvx::fuzz::FuzzFolder();
    zvx::Common common(folder, folder, screen);
    try {
        Merge(common, std::string_view(reinterpret_cast<const char*>(data), size));
    } catch (const zvx::FileError&) {
        // Only a failing file may end a run early.
    }
    return 0;
}
