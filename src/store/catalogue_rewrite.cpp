#include "store/catalogue_rewrite.h"

#include "common/common.h"
#include "store/catalogue_format.h"
#include "store/entry_offset.h"
#include "store/temp_file.h"
#include "store/toc.h"

namespace zvx {

namespace {
// The header has to stand in tempfile.tmp before the writer opens it for appending.
const Common& PrepareHeader(const Common& common, const std::filesystem::path& catalogue) {
    PrepareTempFile(common);
    CopyHeaderToTempFile(common, catalogue);
    return common;
}
}  // namespace

CatalogueRewrite::CatalogueRewrite(const Common& common, const std::filesystem::path& catalogue)
    : common_(PrepareHeader(common, catalogue)),
      catalogue_(catalogue),
      reader_(catalogue, kTocStart),
      writer_(common.workFile(kTempFile)) {}

bool CatalogueRewrite::nextTocGroup(TocGroup& group) {
    return ReadTocGroup(reader_, group);
}

bool CatalogueRewrite::nextEntryLine(std::string_view& line) {
    return reader_.next(line);
}

void CatalogueRewrite::writeTocGroup(const TocGroup& group) {
    writer_.writeLine(group.path);
    writer_.writeLine(group.descriptionLine);
    writer_.writeLine(group.id);
}

void CatalogueRewrite::endToc() {
    writer_.writeLine("");
}

void CatalogueRewrite::writeLine(std::string_view line) {
    writer_.writeLine(line);
}

// The entry offset is set in tempfile.tmp, so that the catalogue changes in one step,
// the replacement, and a failure anywhere leaves it as it was.
void CatalogueRewrite::finish(bool tocChanged) {
    writer_.close();
    if (tocChanged)
        UpdateEntryOffset(common_, common_.workFile(kTempFile));
    ReplaceFromTempFile(common_, catalogue_);
}

}  // namespace zvx
