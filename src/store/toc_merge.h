#pragma once
// The end of an adding run that made folders: the TOC groups collected in a file of
// their own join the catalogue's TOC, behind the old ones, in one rewrite.

#include <filesystem>

namespace zvx {

class Common;

// Rewrites `cfn` through tempfil.tmp: header, the old TOC, the groups of `newToc`,
// the empty line, then every line behind the old TOC, with the entry offset set anew.
// Throws FileError and leaves `cfn` as it was, so that the merge can run again.
void MergeTocGroups(Common& common, const std::filesystem::path& cfn,
                    const std::filesystem::path& newToc);

}  // namespace zvx
