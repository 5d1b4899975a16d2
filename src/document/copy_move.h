#pragma once
// Copy, move and delete of the selected entries of the list. Each is one pass over the
// working copy by the rewrite pattern; a file line belongs to the selection when its
// folder ID, name, path and medium ID are those of a selected row. A copy or move asks
// the duplicate question for each line it writes to the target as the full check would,
// in the same order and with the same outcome, but answers it from memory, so a run
// costs one pass plus work per selected line whatever the size of the catalogue.
//
// The window hides and shows its list and runs ShowEntries around these; the core does
// the rest. A file error throws FileError and leaves the working copy as it was.

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace zvx {

class Common;

// The selected rows of the list, by the fields the selected-row match compares.
class SelectedRows {
  public:
    // A selected row, by its tag (the whole entry line), in list order.
    void add(std::string_view tag);
    // Whether the line has the folder ID (its first eight characters), name (field 1),
    // path (field 3) and medium ID (field 4) of a selected row. So two lines of one
    // folder with the same name, path and medium ID are both selected, or neither.
    bool matches(std::string_view line) const;
    bool empty() const { return keys_.empty(); }

  private:
    struct Hash {
        using is_transparent = void;
        size_t operator()(std::string_view text) const {
            return std::hash<std::string_view>{}(text);
        }
    };
    using Set = std::unordered_set<std::string, Hash, std::equal_to<>>;

    Set ids_;  // most lines are of another folder and are passed over by their ID alone
    Set keys_;
};

enum class EntryCopyMode { Copy, Move };

// What a copy or move did: the file lines of the selected rows, and how many of them
// went into the target (the others were kept out by the duplicate check; a moved one is
// then gone, and a line copied into its own folder by the bare ID stays only once).
struct EntryCopyCount {
    size_t selected = 0;
    size_t written = 0;
};

// CopyMove: copies or moves the lines of the selected rows to the folder that `target`
// begins with. The menu commands give the folder ID followed by "\", which then stands
// as the ninth character of each line written; dragging gives the bare ID. Clears
// DuplicateChoice first and does nothing more when the list has no rows. A line copied
// into its own folder by the bare ID is written once and asks nothing; a moved line
// takes the place of its source, so a move answered "Keep old" keeps only the target's
// entry. Fires ENTRYMOVE or ENTRYCOPY.
EntryCopyCount CopyMove(Common& common, const std::filesystem::path& cfn, EntryCopyMode mode,
                        std::string_view target, const SelectedRows& selected, bool listHasRows);

// The question before a delete: whether the person answered Yes.
bool ConfirmEntryDelete(Common& common);

// Removes the lines of the selected rows and fires ENTRYDEL; how many went.
size_t DeleteEntries(Common& common, const std::filesystem::path& cfn,
                     const SelectedRows& selected);

}  // namespace zvx
