#include "support/catalogue_bytes.h"

#include "store/entry_offset.h"

namespace zvx::test {

std::string CatalogueBytes(const std::vector<FolderSpec>& folders,
                           const std::vector<std::string>& entryLines, int version) {
    std::string toc;
    for (const FolderSpec& f : folders) {
        toc += f.path + "\r\n" + f.description + static_cast<char>(40 + f.icon) + "\r\n" + f.id +
               "\r\n";
    }
    toc += "\r\n";
    std::string bytes(1, static_cast<char>(version));
    bytes += EncodeEntryOffset(5 + toc.size() + 1) + toc;
    for (const std::string& line : entryLines)
        bytes += line + "\r\n";
    return bytes;
}

std::string EntryLineOf(const std::string& id, std::vector<std::string> fields) {
    fields.resize(22);
    std::string line = id;
    for (const std::string& f : fields)
        line += '\x01' + f;
    return line;
}

}  // namespace zvx::test
