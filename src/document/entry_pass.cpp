#include "document/entry_pass.h"

#include "common/common.h"
#include "store/catalogue_format.h"
#include "store/entry_offset.h"
#include "store/temp_file.h"

namespace zvx {

namespace {

// The header must stand in tempfile.tmp before the reader and the writer open the files.
const std::filesystem::path& PrepareTemp(const Common& common, const std::filesystem::path& cfn) {
    PrepareTempFile(common);
    CopyHeaderToTempFile(common, cfn);
    return cfn;
}

long long ProgressMaximum(const std::filesystem::path& cfn) {
    return static_cast<long long>(FileLength(cfn)) + 1;
}

}  // namespace

EntryPass::EntryPass(Common& common, const std::filesystem::path& cfn)
    : common_(common),
      cfn_(PrepareTemp(common, cfn)),
      temp_(common.workFile(kTempFile)),
      reader_(cfn, kTocStart),
      writer_(std::in_place, temp_),
      progress_(common, ProgressMaximum(cfn)) {
    copyToc(ReadEntryOffset(cfn));
}

// Empty lines that end before the entry offset are copied like any other TOC line.
void EntryPass::copyToc(uint64_t entryOffset) {
    bool crLfOnly = true;
    bool firstEmpty = true;
    std::string_view line;
    uint64_t start = reader_.position();
    while (reader_.next(line)) {
        const uint64_t behind = reader_.position() + 1;  // 1-based, as the offset
        progress_.set(static_cast<long long>(behind));
        crLfOnly = crLfOnly && reader_.position() == start + line.size() + 2;
        writer_->writeLine(line);
        start = reader_.position();
        if (!line.empty())
            continue;
        if (behind >= entryOffset) {
            regular_ = firstEmpty && crLfOnly && behind == entryOffset;
            return;
        }
        firstEmpty = false;
    }
}

bool EntryPass::next(std::string_view& line) {
    lineOffset_ = reader_.position();
    if (!reader_.next(line))
        return false;
    progress_.set(static_cast<long long>(reader_.position()) + 1);
    return true;
}

void EntryPass::write(std::string_view line) {
    writer_->writeLine(line);
}

void EntryPass::resume() {
    writer_.emplace(temp_);
}

void EntryPass::close() {
    writer_->close();
    writer_.reset();
}

void EntryPass::replace() {
    UpdateEntryOffset(common_, temp_);
    ReplaceFromTempFile(common_, cfn_);
    common_.setProgress(0);
}

}  // namespace zvx
