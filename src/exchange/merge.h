#pragma once
// The merge of an import: a source catalogue joins a target catalogue, its folders under
// new IDs (and, where a top folder's name is taken, a new name), its entries moved to
// those IDs.

#include <cstdint>
#include <filesystem>
#include <string>

namespace zvx {

class Common;

struct MergeResult {
    bool merged = false;  // false when the new IDs ran out and nothing changed
    uint64_t folders = 0;
    uint64_t entries = 0;
};

// Merges `source` into `target` under `targetPath` (a TOC path such as "Music\"; empty or
// "\" for the root) through tmpadd.tmp in the work folder. Each imported top folder whose
// path already stands in the target gets " (2)" appended until it is free (an exact
// compare), imported descriptions are prefixed with `targetPath`, and the new IDs count
// on from one above the target's highest. The merged file has the version byte 0. On
// success the source is deleted and the target replaced crash-safely. IDs beyond
// 99999999 bring the error box and leave target and source as they were. Throws
// FileError and leaves the target as it was.
MergeResult MergeCatalogue(Common& common, const std::filesystem::path& target,
                           const std::filesystem::path& source, std::string targetPath);

}  // namespace zvx
