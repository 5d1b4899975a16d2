#pragma once
// Builds catalogue bytes in a test, so fixtures state the format byte by byte.

#include <string>
#include <vector>

namespace zvx::test {

struct FolderSpec {
    std::string path;  // "Music\"
    std::string description;
    int icon = 10;
    std::string id;  // "00000000"
};

// The header (version, the entry offset computed from the TOC), the TOC groups and the
// closing empty line, then the entry lines, all ended by CR LF.
std::string CatalogueBytes(const std::vector<FolderSpec>& folders,
                           const std::vector<std::string>& entryLines, int version = 1);

// An entry line: the folder ID, then the fields in order, each behind a byte 01;
// missing fields up to 22 are empty.
std::string EntryLineOf(const std::string& id, std::vector<std::string> fields);

}  // namespace zvx::test
