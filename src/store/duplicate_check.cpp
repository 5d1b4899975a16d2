#include "store/duplicate_check.h"

#include <string>
#include <vector>

#include "common/common.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"
#include "store/catalogue_format.h"
#include "store/duplicate_index.h"
#include "store/entry_line.h"
#include "store/entry_offset.h"

namespace zvx {

namespace {

// Name, path and medium ID: the fields that make two entries of a folder one.
constexpr int kLastKeyField = 4;

bool SameEntry(const EntryFields& a, const EntryFields& b) {
    return a[1] == b[1] && a[3] == b[3] && a[4] == b[4];
}

bool IsDuplicate(std::string_view line, std::string_view newLine, const EntryFields& added) {
    return line.substr(0, kFolderIdLength) == newLine.substr(0, kFolderIdLength) &&
           SameEntry(SplitEntryLine(line, kLastKeyField), added);
}

// The 0-based position of the entry section by the header.
uint64_t EntryOffsetIndex(const std::filesystem::path& file) {
    const uint64_t offset = ReadEntryOffset(file);
    return offset > 0 ? offset - 1 : 0;
}

bool AskOverwrite(Common& common, const EntryFields& old, const EntryFields& added) {
    if (common.DuplicateChoice != kKeepAll && common.DuplicateChoice != kDelAll) {
        DuplicateQuestion q{std::string(old[1]),   std::string(old[2]),   std::string(old[7]),
                            std::string(added[1]), std::string(added[2]), std::string(added[7])};
        common.DuplicateChoice = common.screen().doubledetect(q);
    }
    return common.DuplicateChoice == kDelOld || common.DuplicateChoice == kDelAll;
}

// One scan of the entry section, counting lines from the entry offset.
DuplicateVerdict JudgeByScan(Common& common, const std::filesystem::path& file,
                             std::string_view newLine, bool isDecheck) {
    const EntryFields added = SplitEntryLine(newLine);
    LineReader reader(file, EntryOffsetIndex(file));
    DuplicateVerdict verdict;
    std::string_view line;
    for (uint64_t number = 1; reader.next(line); ++number) {
        if (!IsDuplicate(line, newLine, added))
            continue;
        if (isDecheck || AskOverwrite(common, SplitEntryLine(line), added)) {
            verdict.replaced = number;
            break;
        }
        verdict.write = false;
    }
    return verdict;
}

// The same hits in the same order as the scan, found through the run's index.
DuplicateVerdict JudgeByIndex(Common& common, DuplicateIndex& index, std::string_view newLine) {
    const std::vector<size_t> candidates = index.candidates(newLine);
    DuplicateVerdict verdict =
        JudgeCandidates(common, newLine, candidates.size(),
                        [&](size_t position) { return index.lineAt(candidates[position]); });
    if (verdict.replaced != 0)
        verdict.replaced = candidates[verdict.replaced - 1] + 1;
    verdict.byIndex = true;
    return verdict;
}

}  // namespace

void StrikeOutLines(const Common& common, const std::filesystem::path& file,
                    const std::function<bool(uint64_t number)>& struck) {
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
            if (!struck(number))
                writer.writeLine(line);
        }
        writer.close();
    }
    ReplaceFile(scratch, file);
}

DuplicateVerdict JudgeCandidates(Common& common, std::string_view newLine, size_t count,
                                 const std::function<std::string(size_t)>& lineAt) {
    const EntryFields added = SplitEntryLine(newLine);
    DuplicateVerdict verdict;
    for (size_t position = 0; position < count; ++position) {
        const std::string line = lineAt(position);
        if (!IsDuplicate(line, newLine, added))
            continue;  // another key of the same hash
        if (AskOverwrite(common, SplitEntryLine(line), added)) {
            verdict.replaced = position + 1;
            break;  // the new line stays refused if an earlier hit was kept
        }
        verdict.write = false;
        // Under "Keep all" every further hit is kept without a question.
        if (common.DuplicateChoice == kKeepAll)
            break;
    }
    return verdict;
}

DuplicateVerdict JudgeDuplicate(Common& common, const std::filesystem::path& file,
                                std::string_view newLine) {
    const bool isDecheck = file == common.workFile(kDecheckFile);
    DuplicateIndex* index = common.duplicateIndex.get();
    if (!isDecheck && index && index->answersFor(file))
        return JudgeByIndex(common, *index, newLine);
    // The scan reads the file, which must hold every line of the run first.
    if (index && index->isCatalogue(file))
        index->release();
    return JudgeByScan(common, file, newLine, isDecheck);
}

void StrikeReplaced(Common& common, const std::filesystem::path& file,
                    const DuplicateVerdict& verdict) {
    const uint64_t hit = verdict.replaced;
    if (hit == 0)
        return;
    if (verdict.byIndex) {
        common.duplicateIndex->strike(hit - 1);
        return;
    }
    // The strike replaces the file, which the run must then open anew.
    if (DuplicateIndex* index = common.duplicateIndex.get(); index && index->isCatalogue(file))
        index->release();
    StrikeOutLines(common, file, [hit](uint64_t number) { return number == hit; });
}

bool CheckDuplicate(Common& common, const std::filesystem::path& file, std::string_view newLine) {
    const DuplicateVerdict verdict = JudgeDuplicate(common, file, newLine);
    StrikeReplaced(common, file, verdict);
    return verdict.write;
}

}  // namespace zvx
