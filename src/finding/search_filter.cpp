#include "finding/search_filter.h"

#include <cstring>
#include <optional>

#include "common/common.h"
#include "document/progress_steps.h"
#include "finding/line_blocks.h"
#include "finding/needle_finder.h"
#include "finding/search_files.h"
#include "finding/search_line_test.h"
#include "platform/file_io.h"
#include "store/catalogue_format.h"

namespace zvx {

namespace {

constexpr const char* kSearchInProgress = "Search In Progress...";

// Where the lines taken go: the result file, the caller's rows, the count, and the
// question beyond 2000 matches.
class ResultSink {
  public:
    ResultSink(Common& common, const std::filesystem::path& result, bool asks,
               const ShowEntry& showEntry)
        : common_(common), writer_(result), asks_(asks), showEntry_(showEntry) {}

    // False when the person chose to stop the search.
    bool take(std::string_view line) {
        writer_.writeLine(line);
        const size_t id = std::min(line.size(), kFolderIdLength);
        if (showEntry_)
            showEntry_(line.substr(id), line.substr(0, id));
        ++count_;
        return !(asks_ && count_ > kResultQuestionLimit &&
                 common_.screen().message("", kResultQuestion, MsgButtons::YesNo, MsgIcon::None) ==
                     MsgAnswer::Yes);
    }
    size_t count() const { return count_; }
    void close() { writer_.close(); }

  private:
    Common& common_;
    AppendWriter writer_;
    bool asks_;
    const ShowEntry& showEntry_;
    size_t count_ = 0;
};

// Every line of a block, tested one by one. False when the search is to stop.
bool FilterEachLine(std::string_view block, const SearchLineTest& test, bool removeMode,
                    ResultSink& sink) {
    for (size_t pos = 0; pos < block.size();) {
        const LineSpan line = LineAt(block, pos);
        pos = line.next;
        if (test.matches(line.text) != removeMode && !sink.take(line.text))
            return false;
    }
    return true;
}

// Only the lines of a block that hold the required text, found by one search over the
// whole block, are looked at; the others cannot match. False when the search is to stop.
bool FilterByOccurrence(std::string_view block, const SearchLineTest& test,
                        const NeedleFinder& finder, ResultSink& sink) {
    size_t lineStart = 0;  // the start of the line of the last place looked at
    size_t looked = 0;     // no line break lies between lineStart and this
    for (size_t at = finder.find(block, 0); at != std::string_view::npos;) {
        if (const void* lf = memrchr(block.data() + looked, '\n', at - looked))
            lineStart = static_cast<size_t>(static_cast<const char*>(lf) - block.data()) + 1;
        looked = at;
        const LineSpan line = LineAt(block, lineStart);
        const bool byPlace = test.decidedByOccurrence();
        if (byPlace ? test.occurrenceCounts(line.text, at - lineStart) : test.matches(line.text)) {
            if (!sink.take(line.text))
                return false;
        } else if (byPlace) {
            at = finder.find(block, at + 1);
            continue;
        }
        lineStart = looked = line.next;
        at = finder.find(block, line.next);
    }
    return true;
}

void Filter(Common& common, const std::filesystem::path& source, const SearchLineTest& test,
            bool removeMode, ResultSink& sink) {
    const uint64_t from = EntrySectionStart(source);
    const uint64_t length = FileLength(source);
    if (from >= length)
        return;
    ProgressSteps progress(common, static_cast<long long>(length - from));
    std::optional<NeedleFinder> finder;
    if (!removeMode && !test.requiredText().empty())
        finder.emplace(test.requiredText(), test.foldsCase());
    LineBlocks blocks(source, from);
    std::string_view block;
    while (blocks.next(block)) {
        progress.set(static_cast<long long>(blocks.blockOffset() - from));
        if (!(finder ? FilterByOccurrence(block, test, *finder, sink)
                     : FilterEachLine(block, test, removeMode, sink)))
            return;
    }
}

}  // namespace

size_t SelFiltering(Common& common, const std::filesystem::path& source,
                    const std::filesystem::path& result, const SearchSettings& settings,
                    bool removeMode, const ShowEntry& showEntry) {
    TouchFile(result);
    TouchFile(common.workFile(kSearchResultCopyFile));
    common.screen().status(kSearchInProgress);
    std::string text = settings.text;
    const SearchLineTest test(settings, Wordsplitter(text, settings.mode));
    size_t count = 0;
    if (!test.noWords()) {
        ResultSink sink(common, result, !removeMode, showEntry);
        Filter(common, source, test, removeMode, sink);
        sink.close();
        count = sink.count();
    }
    common.setProgress(0);
    common.screen().status("");
    return count;
}

}  // namespace zvx
