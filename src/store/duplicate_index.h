#pragma once
// The duplicate index of an add run: which entry lines of one catalogue share a duplicate
// key (folder ID, name, path and medium ID), so that the duplicate check of a big run
// costs the same for every file, whatever the size of the catalogue.
//
// While a run is active, its catalogue (under the very path the run was begun with) is
// changed only by AppendEntry and the duplicate check. A line the check strikes out
// stays in the file until the run ends, and then all struck lines go in one rewrite. A
// run interrupted before that leaves the old lines beside the new ones: nothing is lost.
// Appended lines reach the file in blocks of up to 1 MiB and at the latest when the run
// ends; the catalogue of a run is a working copy, never the user's file itself. A block
// that fails part-way keeps the lines the file took whole and cuts off the piece of the
// next; the lines not written wait for the next try, so a retry neither loses nor
// doubles one.

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/mapped_file.h"
#include "platform/open_file.h"

namespace zvx {

class Common;
class LineReader;

// A hash of the duplicate key of an entry line: the same for any two duplicates.
uint64_t HashDuplicateKey(std::string_view line);

class DuplicateIndex {
  public:
    using KeyHash = uint64_t (*)(std::string_view line);

    // Nothing is read before the first check. Tests pass a hash of their own.
    explicit DuplicateIndex(std::filesystem::path catalogue, KeyHash hash = HashDuplicateKey);

    // Whether the index answers the duplicate check for `file`: only for its catalogue,
    // and only if striking lines out at the end leaves the same file as striking each at
    // once would (see the build). The first call for the catalogue builds the index by
    // one scan of the file.
    bool answersFor(const std::filesystem::path& file);
    // Whether `file` is the catalogue of the run, which appendLine writes to.
    bool isCatalogue(const std::filesystem::path& file) const { return file == catalogue_; }

    // The lines not struck out whose key hashes like the new line's, by their 0-based
    // number among the entry lines, in file order. Equal hashes are no proof of a
    // duplicate: the caller compares the lines.
    std::vector<size_t> candidates(std::string_view newLine) const;
    // The line by its number, read back from the catalogue.
    std::string lineAt(size_t number) const;
    // The line no longer hits, and leaves the catalogue when the run ends.
    void strike(size_t number);
    // Appends the line and CR LF to the catalogue, through a file kept open for the run,
    // and records it once the index is built. Lines are gathered in memory and written
    // in large blocks; whatever reads the file in the run (the build, the full scan,
    // the end of the run) writes them first.
    void appendLine(std::string_view line);
    // Does what may fail in appendLine: opens the kept file, and writes the gathered
    // lines when they fill a block. Throws FileError.
    void makeRoom();
    // Writes the gathered lines and closes the kept file: the catalogue is about to be
    // read or replaced under its name. Throws FileError.
    void release();

    // Writes the gathered lines and removes the struck ones in one rewrite through
    // tempfil2.tmp. Throws FileError; then calling it again goes on where it failed.
    void finish(const Common& common);
    // Drops the lines not yet written and closes the file; struck lines stay in it.
    void abandon();

  private:
    struct Line {
        uint64_t offset;
        size_t older;  // the previous line with the same hash, or kNone
        bool struck;
    };
    static constexpr size_t kNone = SIZE_MAX;

    void build();
    bool scanEntries(LineReader& reader);
    void add(uint64_t offset, std::string_view line);

    OpenFile& file() const;
    void flush();
    // The first `bytes` of the pending lines are in the file.
    void taken(uint64_t bytes);

    std::filesystem::path catalogue_;
    mutable std::unique_ptr<OpenFile> file_;
    mutable uint64_t flushedSize_ = 0;  // the file's length with the written lines
    std::string pending_;               // appended lines not yet written
    // The catalogue as it was when the index was built: its lines read back from memory.
    std::unique_ptr<MappedFile> mapped_;
    KeyHash hash_;
    bool built_ = false;
    bool usable_ = false;
    size_t struckCount_ = 0;
    std::vector<Line> lines_;
    std::unordered_map<uint64_t, size_t> newest_;  // hash -> its last line
};

// Begins an add run on the working copy `cfn` unless a run is active already; whether it
// began one. Clearing DuplicateChoice stays the caller's part.
bool BeginAddRun(Common& common, const std::filesystem::path& cfn);
// Ends the active run, if any: the gathered lines reach its catalogue and the struck
// lines leave it. Must come before any other rewrite of the catalogue, such as the
// wizard's TOC merge. Throws FileError and leaves the run active, to be ended again or
// given up.
void EndAddRun(Common& common);
// Gives the active run up, if any: the lines that could not be written are dropped, and
// the struck lines stay in the catalogue.
void AbandonAddRun(Common& common);

// An add run for the life of a scope. A scope that finds a run active leaves it alone.
class AddRunScope {
  public:
    AddRunScope(Common& common, const std::filesystem::path& cfn);
    // Ends the run if neither end() nor abandon() did; what cannot be written then is
    // given up, and the catalogue keeps the old lines beside the new.
    ~AddRunScope();
    AddRunScope(const AddRunScope&) = delete;
    AddRunScope& operator=(const AddRunScope&) = delete;

    // Ends the run this scope began. Throws FileError; the run stays active then.
    void end();
    // Gives the run up (AbandonAddRun).
    void abandon();

  private:
    Common& common_;
    bool began_;
};

}  // namespace zvx
