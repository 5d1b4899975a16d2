#include "document/copy_target_index.h"

#include <algorithm>
#include <utility>

#include "store/catalogue_format.h"
#include "store/duplicate_check.h"
#include "store/duplicate_index.h"

namespace zvx {

namespace {

// The line without its first eight characters.
std::string_view Rest(std::string_view line) {
    return line.size() > kFolderIdLength ? line.substr(kFolderIdLength) : std::string_view();
}

}  // namespace

CopyTargetIndex::CopyTargetIndex(std::filesystem::path cfn, std::string_view target)
    : cfn_(std::move(cfn)), target_(target) {
    if (target_.size() >= kFolderIdLength)
        prefix_ = target_.substr(0, kFolderIdLength);
}

std::string CopyTargetIndex::retargeted(std::string_view line) const {
    std::string text = target_;
    text += Rest(line);
    return text;
}

void CopyTargetIndex::written(uint64_t offset, std::string_view line, bool retargeted) {
    ++count_;
    const std::string moved = retargeted ? this->retargeted(line) : std::string();
    const std::string_view text = retargeted ? std::string_view(moved) : line;
    if (!prefix_.empty() && text.substr(0, kFolderIdLength) != prefix_)
        return;  // no line written to the target can be its duplicate
    auto [newest, isFirst] = newest_.try_emplace(HashDuplicateKey(text), lines_.size());
    const size_t older = isFirst ? kNone : std::exchange(newest->second, lines_.size());
    lines_.push_back(
        {offset, count_, older, static_cast<uint32_t>(line.size()), retargeted, false});
}

std::string CopyTargetIndex::text(const Line& line) {
    if (!mapped_)
        mapped_ = std::make_unique<MappedFile>(cfn_);
    const std::string_view source = mapped_->bytes().substr(line.offset, line.length);
    return line.retargeted ? retargeted(source) : std::string(source);
}

std::vector<size_t> CopyTargetIndex::candidates(std::string_view newLine) const {
    std::vector<size_t> found;
    auto newest = newest_.find(HashDuplicateKey(newLine));
    if (newest == newest_.end())
        return found;
    for (size_t at = newest->second; at != kNone; at = lines_[at].older) {
        if (!lines_[at].struck)
            found.push_back(at);
    }
    std::reverse(found.begin(), found.end());
    return found;
}

// The check of decheck.tmp that follows the full check of tempfile.tmp never refuses a
// line: it only strikes out of that copy what it has seen, and nothing else reads the
// copy. So the check of tempfile.tmp alone decides, and no copy is needed.
bool CopyTargetIndex::check(Common& common, std::string_view newLine) {
    const std::vector<size_t> found = candidates(newLine);
    const DuplicateVerdict verdict =
        JudgeCandidates(common, newLine, found.size(),
                        [&](size_t position) { return text(lines_[found[position]]); });
    if (verdict.replaced != 0) {
        Line& old = lines_[found[verdict.replaced - 1]];
        old.struck = true;
        struck_.push_back(old.number);
    }
    return verdict.write;
}

void CopyTargetIndex::strikeOut(const Common& common, const std::filesystem::path& temp) const {
    if (struck_.empty())
        return;
    std::vector<uint64_t> numbers = struck_;
    std::sort(numbers.begin(), numbers.end());
    StrikeOutLines(common, temp, [&numbers](uint64_t number) {
        return std::binary_search(numbers.begin(), numbers.end(), number);
    });
}

}  // namespace zvx
