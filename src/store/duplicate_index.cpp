#include "store/duplicate_index.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "common/common.h"
#include "platform/file_error.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"
#include "store/catalogue_format.h"
#include "store/duplicate_check.h"
#include "store/entry_line.h"
#include "store/entry_offset.h"

namespace zvx {

namespace {

// Appended lines wait in memory up to this size; the file gets them in one write.
constexpr size_t kPendingLimit = 1 << 20;
// Most entry lines are shorter, so one read brings a line back.
constexpr size_t kReadBackChunk = 512;
// For reserving the hash table once instead of growing it step by step.
constexpr uint64_t kTypicalLineLength = 150;

uint64_t Combine(uint64_t hash, std::string_view text) {
    const uint64_t value = std::hash<std::string_view>{}(text);
    return hash ^ (value + 0x9e3779b97f4a7c15ULL + (hash << 12) + (hash >> 4));
}

// Reads the TOC through its closing empty line. False when there is none, or when one of
// its lines ends in a bare LF: striking a line out writes every line with CR LF and keeps
// the entry offset, so such a TOC would grow, and the checks after the strike would read
// from inside it.
bool SkipTocEndedByCrLf(LineReader& reader) {
    std::string_view line;
    uint64_t start = reader.position();
    while (reader.next(line)) {
        if (reader.position() != start + line.size() + 2)
            return false;
        if (line.empty())
            return true;
        start = reader.position();
    }
    return false;
}

}  // namespace

uint64_t HashDuplicateKey(std::string_view line) {
    const EntryFields fields = SplitEntryLine(line, 4);
    uint64_t hash = 0;
    for (int field : {0, 1, 3, 4})
        hash = Combine(hash, fields[field]);
    return hash;
}

DuplicateIndex::DuplicateIndex(std::filesystem::path catalogue, KeyHash hash)
    : catalogue_(std::move(catalogue)), hash_(hash) {}

bool DuplicateIndex::answersFor(const std::filesystem::path& file) {
    if (file != catalogue_)
        return false;
    if (!built_) {
        flush();
        build();
    }
    return usable_;
}

OpenFile& DuplicateIndex::file() const {
    if (!file_) {
        file_ = std::make_unique<OpenFile>(catalogue_);
        flushedSize_ = file_->size();
    }
    return *file_;
}

// The check counts lines from the entry offset, the strike-out from the TOC's end, so the
// two must be the same place for the numbers to agree.
void DuplicateIndex::build() {
    lines_.clear();
    newest_.clear();
    const uint64_t entryOffset = ReadEntryOffset(catalogue_);
    LineReader reader(catalogue_, kTocStart);
    usable_ =
        SkipTocEndedByCrLf(reader) && reader.position() + 1 == entryOffset && scanEntries(reader);
    if (!usable_) {
        lines_ = {};
        newest_ = {};
    } else {
        mapped_ = std::make_unique<MappedFile>(catalogue_);
    }
    built_ = true;
}

// False when the last line has no line end: the next append would continue it.
bool DuplicateIndex::scanEntries(LineReader& reader) {
    std::string_view line;
    uint64_t start = reader.position();
    newest_.reserve((FileLength(catalogue_) - start) / kTypicalLineLength);
    bool open = false;
    while (reader.next(line)) {
        add(start, line);
        open = reader.position() == start + line.size();
        start = reader.position();
    }
    return !open;
}

void DuplicateIndex::add(uint64_t offset, std::string_view line) {
    auto [newest, isFirst] = newest_.try_emplace(hash_(line), lines_.size());
    const size_t older = isFirst ? kNone : std::exchange(newest->second, lines_.size());
    lines_.push_back({offset, older, false});
}

std::vector<size_t> DuplicateIndex::candidates(std::string_view newLine) const {
    std::vector<size_t> numbers;
    auto newest = newest_.find(hash_(newLine));
    if (newest == newest_.end())
        return numbers;
    for (size_t number = newest->second; number != kNone; number = lines_[number].older) {
        if (!lines_[number].struck)
            numbers.push_back(number);
    }
    std::reverse(numbers.begin(), numbers.end());
    return numbers;
}

std::string DuplicateIndex::lineAt(size_t number) const {
    const uint64_t offset = lines_[number].offset;
    if (file_ && offset >= flushedSize_) {
        std::string_view rest = std::string_view(pending_).substr(offset - flushedSize_);
        return std::string(rest.substr(0, rest.find("\r\n")));
    }
    if (mapped_ && offset < mapped_->bytes().size()) {
        std::string_view rest = mapped_->bytes().substr(offset);
        std::string_view line = rest.substr(0, rest.find('\n'));
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        return std::string(line);
    }
    for (size_t chunk = kReadBackChunk;; chunk *= 2) {
        std::string bytes = file().readAt(offset, chunk);
        const size_t lf = bytes.find('\n');
        if (lf == std::string::npos) {
            if (bytes.size() == chunk)
                continue;
            return bytes;
        }
        bytes.resize(lf > 0 && bytes[lf - 1] == '\r' ? lf - 1 : lf);
        return bytes;
    }
}

void DuplicateIndex::strike(size_t number) {
    lines_[number].struck = true;
    ++struckCount_;
}

// A failed write leaves the lines it could not write pending.
void DuplicateIndex::makeRoom() {
    file();
    if (pending_.size() >= kPendingLimit)
        flush();
}

// A failed write leaves the new line unrecorded, so that a retry of the append adds it
// once.
void DuplicateIndex::appendLine(std::string_view line) {
    makeRoom();
    const uint64_t offset = flushedSize_ + pending_.size();
    pending_.append(line).append("\r\n");
    if (built_ && usable_)
        add(offset, line);
}

// The lines the file took whole count as written even when the block failed part-way;
// the others stay pending for the next try.
void DuplicateIndex::flush() {
    if (pending_.empty())
        return;
    OpenFile& out = file();
    const uint64_t before = out.size();
    try {
        out.append(pending_);
    } catch (const FileError&) {
        taken(out.size() - before);
        throw;
    }
    taken(pending_.size());
}

void DuplicateIndex::taken(uint64_t bytes) {
    flushedSize_ += bytes;
    pending_.erase(0, static_cast<size_t>(bytes));
}

void DuplicateIndex::release() {
    flush();
    if (file_)
        file_->close();
    file_.reset();
    mapped_.reset();
}

// The struck lines are forgotten once they are gone, so that ending again strikes nothing
// twice.
void DuplicateIndex::finish(const Common& common) {
    release();
    if (struckCount_ == 0)
        return;
    StrikeOutLines(common, catalogue_, [this](uint64_t number) {
        return number >= 1 && number <= lines_.size() && lines_[number - 1].struck;
    });
    struckCount_ = 0;
}

void DuplicateIndex::abandon() {
    pending_.clear();
    if (file_) {
        try {
            file_->close();
        } catch (...) {
            // Nothing more can be done for a file that cannot even be cut back.
        }
    }
    file_.reset();
    mapped_.reset();
}

bool BeginAddRun(Common& common, const std::filesystem::path& cfn) {
    if (common.duplicateIndex)
        return false;
    common.duplicateIndex = std::make_shared<DuplicateIndex>(cfn);
    return true;
}

void EndAddRun(Common& common) {
    if (!common.duplicateIndex)
        return;
    common.duplicateIndex->finish(common);
    common.duplicateIndex.reset();
}

void AbandonAddRun(Common& common) {
    if (std::shared_ptr<DuplicateIndex> index = std::exchange(common.duplicateIndex, nullptr))
        index->abandon();
}

AddRunScope::AddRunScope(Common& common, const std::filesystem::path& cfn)
    : common_(common), began_(BeginAddRun(common, cfn)) {}

AddRunScope::~AddRunScope() {
    if (!began_)
        return;
    try {
        EndAddRun(common_);
    } catch (...) {
        // A destructor cannot ask, nor let anything pass while another failure is on its
        // way; what could be written is in the catalogue.
    }
    AbandonAddRun(common_);
}

void AddRunScope::end() {
    if (!began_)
        return;
    EndAddRun(common_);
    began_ = false;
}

void AddRunScope::abandon() {
    if (std::exchange(began_, false))
        AbandonAddRun(common_);
}

}  // namespace zvx
