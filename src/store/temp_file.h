#pragma once
// The temporary file of the rewrite pattern, tempfile.tmp in the work folder.

#include <filesystem>

namespace zvx {

class Common;

// Leaves an empty tempfile.tmp, whatever stood there.
void PrepareTempFile(const Common& common);
// Copies bytes 1 to 5 of the catalogue to the start of tempfile.tmp (zero bytes stand
// in for what a truncated file lacks).
void CopyHeaderToTempFile(const Common& common, const std::filesystem::path& catalogue);
// Replaces the catalogue by tempfile.tmp, which is gone afterwards.
void ReplaceFromTempFile(const Common& common, const std::filesystem::path& catalogue);

}  // namespace zvx
