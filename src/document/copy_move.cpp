#include "document/copy_move.h"

#include <optional>

#include "common/common.h"
#include "document/copy_target_index.h"
#include "document/entry_pass.h"
#include "platform/file_io.h"
#include "store/catalogue_format.h"
#include "store/duplicate_check.h"
#include "store/entry_line.h"

namespace zvx {

namespace {

// Field 0 with its length in front, so that a line shorter than eight characters cannot
// pass for a longer one; fields 1, 3 and 4 cannot hold the separator.
std::string MatchKey(std::string_view line) {
    const EntryFields fields = SplitEntryLine(line, 4);
    std::string key(1, static_cast<char>(fields[0].size()));
    for (int field : {0, 1, 3, 4})
        key.append(fields[field]).push_back(kFieldSeparator);
    return key;
}

std::string_view FolderIdOf(std::string_view line) {
    return line.substr(0, kFolderIdLength);
}

// One copy or move: each selected line goes to the target, after the duplicate checks.
class CopyMoveRun {
  public:
    CopyMoveRun(Common& common, const std::filesystem::path& cfn, EntryCopyMode mode,
                std::string_view target)
        : common_(common), mode_(mode), target_(target), pass_(common, cfn) {
        // The full checks need decheck.tmp, the byte copy of the working copy against
        // which lines not yet written are checked; the index needs no copy (see
        // CopyTargetIndex::check).
        if (pass_.regular())
            index_.emplace(cfn, target_);
        else
            CopyFileBytes(cfn, common.workFile(kDecheckFile));
    }

    EntryCopyCount run(const SelectedRows& selected) {
        std::string_view line;
        while (pass_.next(line)) {
            if (selected.matches(line))
                copySelected(line);
            else
                write(line, line, false);
        }
        pass_.close();
        if (index_)
            index_->strikeOut(common_, common_.workFile(kTempFile));
        return count_;
    }

    void replace() { pass_.replace(); }

  private:
    // The target text stands in place of the ID as it is, "\" and all; so a line goes
    // into its own folder only by the bare ID.
    void copySelected(std::string_view line) {
        ++count_.selected;
        const bool ownFolder = target_ == FolderIdOf(line);
        if (mode_ == EntryCopyMode::Copy) {
            write(line, line, false);
            if (ownFolder)
                return;
        }
        std::string moved = target_;
        if (line.size() > kFolderIdLength)
            moved += line.substr(kFolderIdLength);
        if (ownFolder || check(moved)) {
            write(line, moved, true);
            ++count_.written;
        }
    }

    bool check(const std::string& moved) {
        if (index_)
            return index_->check(common_, moved);
        // The full checks read and may replace tempfile.tmp.
        pass_.close();
        const bool write = CheckDuplicate(common_, common_.workFile(kTempFile), moved) &&
                           CheckDuplicate(common_, common_.workFile(kDecheckFile), moved);
        pass_.resume();
        return write;
    }

    void write(std::string_view source, std::string_view line, bool retargeted) {
        pass_.write(line);
        if (index_)
            index_->written(pass_.lineOffset(), source, retargeted);
    }

    Common& common_;
    EntryCopyMode mode_;
    std::string target_;
    EntryPass pass_;
    std::optional<CopyTargetIndex> index_;
    EntryCopyCount count_;
};

}  // namespace

void SelectedRows::add(std::string_view tag) {
    ids_.emplace(FolderIdOf(tag));
    keys_.insert(MatchKey(tag));
}

bool SelectedRows::matches(std::string_view line) const {
    return ids_.find(FolderIdOf(line)) != ids_.end() && keys_.count(MatchKey(line)) > 0;
}

EntryCopyCount CopyMove(Common& common, const std::filesystem::path& cfn, EntryCopyMode mode,
                        std::string_view target, const SelectedRows& selected, bool listHasRows) {
    common.DuplicateChoice.clear();
    if (!listHasRows)
        return {};
    const bool copy = mode == EntryCopyMode::Copy;
    common.screen().status(copy ? "Copying selected entries..." : "Moving selected entries...");
    CopyMoveRun run(common, cfn, mode, target);
    const EntryCopyCount count = run.run(selected);
    DeleteFileIfExists(common.workFile(kDecheckFile));
    run.replace();
    common.PLUGSTART(copy ? "ENTRYCOPY" : "ENTRYMOVE");
    common.screen().status("");
    return count;
}

bool ConfirmEntryDelete(Common& common) {
    return common.screen().message("Question", "Are you sure to delete the selected entries?",
                                   MsgButtons::YesNo, MsgIcon::None) == MsgAnswer::Yes;
}

size_t DeleteEntries(Common& common, const std::filesystem::path& cfn,
                     const SelectedRows& selected) {
    common.screen().status("Removing selected entries...");
    EntryPass pass(common, cfn);
    size_t removed = 0;
    std::string_view line;
    while (pass.next(line)) {
        if (selected.matches(line))
            ++removed;
        else
            pass.write(line);
    }
    pass.close();
    pass.replace();
    common.PLUGSTART("ENTRYDEL");
    common.screen().status("");
    return removed;
}

}  // namespace zvx
