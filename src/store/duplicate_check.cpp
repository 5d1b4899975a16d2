#include "store/duplicate_check.h"

#include <string>

#include "platform/file_io.h"
#include "platform/line_reader.h"
#include "shell/common.h"
#include "store/catalogue_format.h"
#include "store/entry_line.h"
#include "store/entry_offset.h"

namespace zvx {

namespace {

bool SameEntry(const EntryFields& a, const EntryFields& b) {
    return a[1] == b[1] && a[3] == b[3] && a[4] == b[4];
}

// Copies the file without the `lineNumber`th line behind its TOC, through tempfil2.tmp.
void StrikeOut(const Common& common, const std::filesystem::path& file, uint64_t lineNumber) {
    std::filesystem::path scratch = common.workFile(kTempFile2);
    std::string header = ReadFileBytes(file, 0, kHeaderSize);
    header.resize(kHeaderSize, '\0');
    WriteEmptyFile(scratch);
    {
        AppendWriter writer(scratch);
        writer.write(header);
        LineReader reader(file, kTocStart);
        std::string_view line;
        while (reader.next(line)) {
            writer.writeLine(line);
            if (line.empty())
                break;
        }
        for (uint64_t number = 1; reader.next(line); ++number) {
            if (number != lineNumber)
                writer.writeLine(line);
        }
        writer.close();
    }
    ReplaceFile(scratch, file);
}

bool AskOverwrite(Common& common, const EntryFields& old, const EntryFields& added) {
    if (common.DuplicateChoice != kKeepAll && common.DuplicateChoice != kDelAll) {
        DuplicateQuestion q{std::string(old[1]),   std::string(old[2]),   std::string(old[7]),
                            std::string(added[1]), std::string(added[2]), std::string(added[7])};
        common.DuplicateChoice = common.screen().doubledetect(q);
    }
    return common.DuplicateChoice == kDelOld || common.DuplicateChoice == kDelAll;
}

}  // namespace

bool CheckDuplicate(Common& common, const std::filesystem::path& file, std::string_view newLine) {
    const bool isDecheck = file == common.workFile(kDecheckFile);
    const std::string_view newId = newLine.substr(0, kFolderIdLength);
    const EntryFields added = SplitEntryLine(newLine);
    const uint64_t offset = ReadEntryOffset(file);
    bool result = true;
    uint64_t hit = 0;
    {
        LineReader reader(file, offset > 0 ? offset - 1 : 0);
        std::string_view line;
        for (uint64_t number = 1; reader.next(line); ++number) {
            if (line.substr(0, kFolderIdLength) != newId)
                continue;
            if (!SameEntry(SplitEntryLine(line), added))
                continue;
            if (isDecheck || AskOverwrite(common, SplitEntryLine(line), added)) {
                hit = number;
                break;
            }
            result = false;
        }
    }
    if (hit > 0)
        StrikeOut(common, file, hit);
    return result;
}

}  // namespace zvx
