#pragma once
// The rewrite pattern: every change of a catalogue other than appending an entry copies
// it into tempfile.tmp with the change applied and then replaces it.
//
//   CatalogueRewrite rewrite(common, workingCopy);
//   TocGroup group;
//   while (rewrite.nextTocGroup(group)) rewrite.writeTocGroup(group);   // change here
//   rewrite.endToc();
//   std::string_view line;
//   while (rewrite.nextEntryLine(line)) rewrite.writeLine(line);        // or here
//   rewrite.finish(/*tocChanged=*/false);

#include <filesystem>
#include <string_view>

#include "platform/file_io.h"
#include "platform/line_reader.h"

namespace zvx {

class Common;
struct TocGroup;

class CatalogueRewrite {
  public:
    // Prepares tempfile.tmp with the catalogue's header and opens both files.
    CatalogueRewrite(const Common& common, const std::filesystem::path& catalogue);

    // The next TOC group of the catalogue; false at the TOC's closing empty line.
    bool nextTocGroup(TocGroup& group);
    // The next line behind the TOC, valid until the next call; false at end of file.
    bool nextEntryLine(std::string_view& line);
    // Progress: the 0-based read position in the catalogue.
    uint64_t readPosition() const { return reader_.position(); }

    void writeTocGroup(const TocGroup& group);
    // Writes the empty line that closes the TOC.
    void endToc();
    void writeLine(std::string_view line);

    // Closes both files and replaces the catalogue; updates the entry offset when the
    // TOC changed in length. Throws FileError and leaves the catalogue as it was.
    void finish(bool tocChanged);

  private:
    const Common& common_;
    std::filesystem::path catalogue_;
    LineReader reader_;
    AppendWriter writer_;
};

}  // namespace zvx
