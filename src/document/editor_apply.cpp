#include "document/editor_apply.h"

#include <exception>
#include <utility>
#include <vector>

#include "common/common.h"
#include "common/field_text.h"
#include "common/numeric_value.h"
#include "common/text_case.h"
#include "document/progress_steps.h"
#include "store/catalogue_format.h"
#include "store/catalogue_rewrite.h"
#include "store/entry_line.h"
#include "store/toc.h"

namespace zvx {

namespace {

constexpr const char* kNotAvailable = "n/a";

std::string NumberOf(std::string_view text) {
    return std::string(Trim(NumberText(NumericValue(text))));
}

// The text without its last `unit` characters; a shorter text leaves nothing.
std::string WithoutUnit(std::string_view text, size_t unit) {
    return std::string(text.substr(0, text.size() > unit ? text.size() - unit : 0));
}

std::string StoredNumber(std::string_view shown, size_t unit) {
    return shown == kNotAvailable ? "0" : WithoutUnit(shown, unit);
}

std::string StoredText(std::string_view shown) {
    return shown == kNotAvailable ? "" : std::string(shown);
}

void ReadAudioFields(const EditorTexts& t, EntryValues& v) {
    v.title = t[9];
    v.artist = t[10];
    v.album = t[11];
    v.genre = t[12];
    v.producer = t[13];
    v.style = Trim(t[14]);
    v.track = NumberOf(t[15]);
    v.year = NumberOf(t[16]);
    v.length = StoredText(t[19]);
    v.bitrate = StoredNumber(t[20], 5);
    v.frequency = StoredNumber(t[21], 3);
    v.mode = StoredText(t[22]);
}

// A type that is no audio keeps none of the audio fields, whatever the form shows.
void ResetAudioFields(EntryValues& v) {
    v.track = "0";
    v.year = "0";
    v.genre = "<unknown>";
    v.bitrate = "0";
    v.frequency = "0";
}

// The locked selection's resets, in the form's shape, so that reading the form back
// gives the stored resets.
void ResetLockedRow(EditorTexts& t) {
    if (!TextEquals(std::string_view(t[8]).substr(0, 6), "audio:")) {
        for (int field : {9, 10, 11, 13, 14, 19, 22})
            t[static_cast<size_t>(field)].clear();
        t[15] = "0";
        t[16] = "0";
        t[12] = "<unknown>";
        t[20] = kNotAvailable;
        t[21] = kNotAvailable;
    } else {
        t[18].clear();
    }
}

// One pass of the rewrite pattern: a line equal to a pair's old line takes its new line,
// and the pair leaves, into `served`.
void RewriteWithPairs(const Common& common, const std::filesystem::path& cfn,
                      ChangeBuffers& pending,
                      std::vector<std::pair<std::string, std::string>>& served) {
    CatalogueRewrite rewrite(common, cfn);
    TocGroup group;
    while (rewrite.nextTocGroup(group))
        rewrite.writeTocGroup(group);
    rewrite.endToc();
    std::string_view line;
    std::string newLine;
    while (rewrite.nextEntryLine(line)) {
        if (!pending.empty() && pending.take(line, newLine)) {
            rewrite.writeLine(newLine);
            served.emplace_back(line, std::move(newLine));
        } else {
            rewrite.writeLine(line);
        }
    }
    // The TOC is written as it was read, which can change its length (a line ended by
    // LF alone gets CR LF, a missing closing line is added): the entry offset is set
    // from what was written.
    rewrite.finish(true);
}

}  // namespace

std::string ComposeEditedLine(std::string_view oldLine, const EditorTexts& t,
                              int renumberingLevel) {
    std::string fullPath = t[3];
    if (!fullPath.ends_with('\\'))
        fullPath += '\\';
    fullPath += t[1];
    EntryValues v;
    if (TextEquals(std::string_view(t[8]).substr(0, 5), "audio"))
        ReadAudioFields(t, v);
    else
        ResetAudioFields(v);
    v.description = t[18];
    v.size = NumberOf(t[2]);
    v.driveId = Trim(t[4]);
    v.driveDescription = Trim(t[6]);
    v.date = Trim(t[7]);
    v.contentType = Trim(t[8]);
    v.comment = Trim(t[17]);
    const bool readOnly = TextEquals(Right(t[5], 2), "es");
    return ComposeEntryLine(oldLine.substr(0, kFolderIdLength), fullPath, v, readOnly,
                            renumberingLevel);
}

void TempApply(Common& common, ChangeBuffers& buffers, std::string_view oldLine,
               const EditorTexts& texts, int renumberingLevel) {
    common.screen().status("Buffering changes...");
    try {
        buffers.record(oldLine, ComposeEditedLine(oldLine, texts, renumberingLevel));
    } catch (const std::exception&) {
        // The row is left out of the buffers; the editor goes on.
    }
    common.screen().status("");
}

bool FinalApply(Common& common, const std::filesystem::path& cfn, ChangeBuffers& buffers) {
    if (buffers.empty())
        return false;
    common.screen().status("Applying Changes...");
    common.setProgressMax(static_cast<long long>(cfn.string().size()) + 1);
    // The pass takes the pairs out as it meets their lines; a failed write puts back
    // those it took, so that the buffers stay whole.
    ChangeBuffers pending = std::move(buffers);
    buffers.clear();
    std::vector<std::pair<std::string, std::string>> served;
    try {
        RewriteWithPairs(common, cfn, pending, served);
    } catch (...) {
        for (auto& [oldLine, newLine] : served)
            pending.record(oldLine, std::move(newLine));
        buffers = std::move(pending);
        throw;
    }
    common.SetActiveDocumentChanged();
    return true;
}

void ApplyLockedSelection(Common& common, ChangeBuffers& buffers,
                          const std::vector<std::string_view>& rowLines, const EditorForm& form,
                          int renumberingLevel) {
    common.screen().status("Applying locked selection to all entries...");
    common.setProgress(0);
    ProgressSteps progress(common, static_cast<long long>(rowLines.size()) + 1);
    // Filling a copy of the form keeps the locked fields' values and takes all others
    // from the row's line. One copy serves all rows, so that its texts keep their room.
    EditorForm rowForm = form;
    for (size_t row = 0; row < rowLines.size(); ++row) {
        progress.set(static_cast<long long>(row) + 1);
        const std::string_view tag = rowLines[row];
        const std::string* buffered = buffers.newLineFor(tag);
        rowForm.texts = form.texts;
        FillForm(rowForm, buffered ? std::string_view(*buffered) : tag, renumberingLevel);
        ResetLockedRow(rowForm.texts);
        rowForm.texts[5] = "Read-only: No";
        buffers.record(tag, ComposeEditedLine(tag, rowForm.texts, renumberingLevel));
    }
    common.setProgress(0);
    common.screen().status("");
}

}  // namespace zvx
