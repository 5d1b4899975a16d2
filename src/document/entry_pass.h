#pragma once
// The one pass of a copy, move or delete of entries: tempfile.tmp takes the working
// copy's header, its lines from position 6 up to and including the first empty line that
// ends at or behind the entry offset, and then the entry lines the operation keeps or
// adds. The progress follows the read position; the working copy is replaced at the end.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

#include "document/progress_steps.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"

namespace zvx {

class Common;

class EntryPass {
  public:
    // Prepares tempfile.tmp, copies the header and the TOC part, and sets the progress
    // maximum to the working copy's length plus 1. Throws FileError.
    EntryPass(Common& common, const std::filesystem::path& cfn);

    // Whether tempfile.tmp reads like a well-formed catalogue while it is written: its
    // TOC part ends with its first empty line, exactly at the entry offset of the header,
    // and every line of it ends in CR LF. Then the duplicate check counts its lines from
    // the first entry line written, as the strike-out does.
    bool regular() const { return regular_; }

    // The next entry line of the working copy, valid until the next call; false at the
    // end of the file.
    bool next(std::string_view& line);
    // The 0-based offset in the working copy of the line `next` gave last.
    uint64_t lineOffset() const { return lineOffset_; }

    void write(std::string_view line);
    // Closes tempfile.tmp, for a check that reads or replaces it or at the end; resume
    // opens it again for appending.
    void close();
    void resume();

    // Sets the entry offset of tempfile.tmp and replaces the working copy by it, so that
    // a failure anywhere leaves the working copy as it was. Progress 0.
    void replace();

  private:
    void copyToc(uint64_t entryOffset);

    Common& common_;
    std::filesystem::path cfn_;
    std::filesystem::path temp_;
    LineReader reader_;
    std::optional<AppendWriter> writer_;
    ProgressSteps progress_;
    uint64_t lineOffset_ = 0;
    bool regular_ = false;
};

}  // namespace zvx
