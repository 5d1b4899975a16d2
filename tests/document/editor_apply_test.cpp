#include <gtest/gtest.h>

#include "document/editor_apply.h"
#include "platform/file_error.h"
#include "platform/file_faults.h"
#include "store/entry_offset.h"
#include "support/catalogue_bytes.h"
#include "support/entry_lines.h"
#include "support/fault_loop.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

using test::CatalogueBytes;
using test::EntryLineOf;

const std::vector<test::FolderSpec> kFolders = {{"Music\\", "", 10, "00000001"}};

std::string Song(const std::string& name, const std::string& album = "Album",
                 const std::string& readOnly = "0") {
    return EntryLineOf("00000001",
                       {name,         "1234567",      "c:\\music", "DISC",   readOnly,  "My disc",
                        "04-07-2001", "Audio: Album", "Title",     "Artist", album,     "Rock",
                        "Prod",       "Pop, Rock",    "07",        "1999",   "comment", "",
                        "3:45",       "128",          "44100",     "Stereo"});
}

// A working copy and the editor's buffers over it.
struct Editor {
    explicit Editor(const std::vector<std::string>& lines) {
        test::WriteAll(cfn, CatalogueBytes(kFolders, lines));
    }
    // The form showing `line`, as the editor fills it.
    EditorTexts shown(const std::string& line) {
        EditorForm form;
        FillForm(form, line, 1);
        return form.texts;
    }
    void edit(const std::string& line, const EditorTexts& texts) {
        TempApply(env.common, buffers, line, texts, 1);
    }
    std::string bytes() const { return test::ReadAll(cfn); }

    test::TestEnvironment env;
    std::filesystem::path cfn = env.folder / "Document 1.tmp";
    ChangeBuffers buffers;
};

TEST(ComposeEditedLine, ReadsTheFormBackAsItShowsTheFields) {
    Editor editor({});
    for (const std::string& line : {Song("a.mp3", "Album", "1"), Song("b.mp3")})
        EXPECT_EQ(ComposeEditedLine(line, editor.shown(line), 1), line);
    EditorTexts texts = editor.shown(Song("a.mp3"));
    texts[2] = " 2 000 ";
    texts[14] = " Pop ";
    texts[16] = "85";
    texts[19] = texts[21] = texts[22] = "n/a";
    texts[20] = "320 kbps";
    EXPECT_EQ(test::Fields(ComposeEditedLine(Song("a.mp3"), texts, 1), {2, 14, 16, 19, 20, 21, 22}),
              "2000|Pop|85||320|0||");
}

TEST(EditorTempApply, ChangingAFieldBackRemovesThePair) {
    Editor editor({});
    const std::string line = Song("a.mp3");
    EditorTexts texts = editor.shown(line);
    texts[10] = "Other";
    editor.edit(line, texts);
    ASSERT_EQ(editor.buffers.size(), 1u);
    EXPECT_EQ(test::Fields(*editor.buffers.newLineFor(line), {10}), "Other|");
    texts[10] = "Artist";
    editor.edit(line, texts);
    EXPECT_TRUE(editor.buffers.empty());
    EXPECT_EQ(editor.env.screen.statuses,
              (std::vector<std::string>{"Buffering changes...", "", "Buffering changes...", ""}));
}

TEST(EditorFinalApply, WritesNothingWithoutPairsAndANonAudioTypeClearsTheAudioFields) {
    const std::string line = Song("a.mp3");
    Editor editor({Song("other.mp3"), line});
    const auto written = std::filesystem::last_write_time(editor.cfn);
    EXPECT_FALSE(FinalApply(editor.env.common, editor.cfn, editor.buffers));
    EXPECT_EQ(std::filesystem::last_write_time(editor.cfn), written);
    EXPECT_EQ(editor.env.changedCalls, 0);
    EXPECT_TRUE(editor.env.screen.statuses.empty());

    EditorTexts texts = editor.shown(line);
    texts[8] = "Document: Text";
    texts[18] = "notes";
    editor.edit(line, texts);
    EXPECT_TRUE(FinalApply(editor.env.common, editor.cfn, editor.buffers));
    const std::vector<std::string> lines = test::FolderLines(editor.cfn, "00000001");
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0], Song("other.mp3"));
    EXPECT_EQ(test::Fields(lines[1], {8, 9, 10, 11, 12, 13, 14, 15, 16, 18, 19, 20, 21, 22}),
              "Document: Text||||<unknown>|||00|0|notes||0|0||");
    EXPECT_TRUE(editor.buffers.empty());
    EXPECT_GT(editor.env.changedCalls, 0);
}

TEST(EditorFinalApply, APairServesTheFirstOfTwoIdenticalLines) {
    const std::string twin = Song("a.mp3");
    Editor editor({twin, Song("b.mp3"), twin});
    editor.buffers.record(twin, Song("a.mp3", "New"));
    FinalApply(editor.env.common, editor.cfn, editor.buffers);
    EXPECT_EQ(editor.bytes(),
              CatalogueBytes(kFolders, {Song("a.mp3", "New"), Song("b.mp3"), twin}));
}

TEST(EditorFinalApply, AFailedWriteKeepsTheFileAndTheBuffers) {
    for (const test::FaultKind& fault : test::kFaultKinds) {
        EXPECT_GE(test::ForEachFault([&](int n) {
                      Editor editor({Song("a.mp3")});
                      editor.buffers.record(Song("a.mp3"), Song("a.mp3", "New"));
                      const std::string before = editor.bytes();
                      InjectedFileFault armed(fault.kind, n, fault.err);
                      try {
                          FinalApply(editor.env.common, editor.cfn, editor.buffers);
                      } catch (const FileError&) {
                      }
                      if (armed.fired()) {
                          EXPECT_EQ(editor.bytes(), before);
                          EXPECT_EQ(editor.buffers.size(), 1u);
                      }
                      return armed.fired();
                  }),
                  2);
    }
}

TEST(ApplyLockedSelection, TheLocksChangeOnlyTheRowsGivenAndKeepBufferedEdits) {
    const std::vector<std::string> lines = {Song("a.mp3", "Album", "1"), Song("b.mp3"),
                                            Song("c.mp3")};
    Editor editor(lines);
    EditorTexts edited = editor.shown(lines[0]);
    edited[9] = "Edited title";
    editor.edit(lines[0], edited);
    EditorForm form;
    form.texts = editor.shown(lines[1]);
    form.texts[11] = "Locked album";
    form.locks[11] = true;
    form.texts[10] = "Not locked";
    ApplyLockedSelection(editor.env.common, editor.buffers, {lines[0], lines[2]}, form, 1);
    EXPECT_EQ(editor.buffers.size(), 2u);
    EXPECT_FALSE(editor.buffers.contains(lines[1]));
    EXPECT_EQ(test::Fields(*editor.buffers.newLineFor(lines[0]), {1, 5, 9, 10, 11}),
              "a.mp3|0|Edited title|Artist|Locked album|");
    EXPECT_EQ(*editor.buffers.newLineFor(lines[2]), Song("c.mp3", "Locked album"));
    EXPECT_EQ(editor.env.screen.statuses.back(), "");
    form.texts[8] = "Document: Text";
    form.locks[8] = true;
    ApplyLockedSelection(editor.env.common, editor.buffers, {lines[1]}, form, 1);
    EXPECT_EQ(test::Fields(*editor.buffers.newLineFor(lines[1]), {8, 9, 11, 12, 15, 16, 19, 20}),
              "Document: Text|||<unknown>|00|0||0|")
        << "a type that is no audio resets the album";
}

}  // namespace
}  // namespace zvx
