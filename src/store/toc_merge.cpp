#include "store/toc_merge.h"

#include <string>

#include "common/common.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"
#include "store/catalogue_format.h"
#include "store/entry_offset.h"

namespace zvx {

void MergeTocGroups(Common& common, const std::filesystem::path& cfn,
                    const std::filesystem::path& newToc) {
    const std::filesystem::path merged = common.workFile("tempfil.tmp");
    WriteEmptyFile(merged);
    {
        std::string header = ReadFileBytes(cfn, 0, kHeaderSize);
        header.resize(kHeaderSize, '\0');
        AppendWriter writer(merged);
        writer.write(header);
        LineReader old(cfn, kTocStart);
        std::string_view line;
        while (old.next(line) && !line.empty())
            writer.writeLine(line);
        LineReader added(newToc, 0);
        while (added.next(line))
            writer.writeLine(line);
        common.screen().status("Tree-Adding in progress (writing new entries to zvx)...");
        writer.writeLine("");
        while (old.next(line))
            writer.writeLine(line);
        writer.close();
    }
    // Set before the replacement, which is the one step that changes the catalogue.
    UpdateEntryOffset(common, merged);
    ReplaceFile(merged, cfn);
}

}  // namespace zvx
