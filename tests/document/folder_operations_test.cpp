#include <gtest/gtest.h>

#include <algorithm>

#include "document/folder_operations.h"
#include "document/folder_refresh.h"
#include "platform/file_error.h"
#include "platform/file_faults.h"
#include "store/entry_offset.h"
#include "support/catalogue_bytes.h"
#include "support/fault_loop.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

using test::CatalogueBytes;
using test::EntryLineOf;
using test::FolderSpec;

// A working copy in a test environment, with the plug-in events it fired.
struct Document {
    explicit Document(const std::vector<FolderSpec>& folders,
                      const std::vector<std::string>& entries = {}) {
        test::WriteAll(cfn, CatalogueBytes(folders, entries));
        env.common.onPlugStart = [this](const std::string& name) { events.push_back(name); };
    }
    FolderTree tree() { return BuildFolderTree(ReadTocGroups(cfn)); }
    // The position of the folder with this FullPath, or -1.
    int at(const std::string& path) {
        const FolderTree current = tree();
        const auto found = std::ranges::find(current.nodes, path, &FolderNode::fullPath);
        return found == current.nodes.end() ? -1 : static_cast<int>(found - current.nodes.begin());
    }
    std::string bytes() const { return test::ReadAll(cfn); }
    // The operations on the folder at `path` ("" for none selected).
    FolderChange create(const std::string& path, const FolderDialogResult& dialog) {
        return CreateFolder(env.common, cfn, tree(), at(path), dialog);
    }
    FolderChange remove(const std::string& path) {
        return DeleteFolder(env.common, cfn, tree(), at(path));
    }
    FolderChange change(const std::string& path, const FolderDialogResult& dialog) {
        return ChangeFolderProperties(env.common, cfn, tree(), at(path), dialog);
    }
    FolderChange move(const std::string& path, const std::string& leaf, const std::string& target) {
        return extrememoving(env.common, cfn, tree(), path, leaf, target);
    }

    test::TestEnvironment env;
    std::filesystem::path cfn = env.folder / "Document 1.tmp";
    std::vector<std::string> events;
};

const std::vector<FolderSpec> kMusic = {{"Music\\", "", 10, "00000000"},
                                        {"Music\\Rock\\", "Loud", 4, "00000001"},
                                        {"Music2\\", "", 10, "00000002"},
                                        {"Art\\", "", 10, "00000003"}};

// "Über" as a name written on Windows (Windows-1252) is stored.
const std::string kUber1252 = "\334ber";

FolderDialogResult Dialog(const std::string& name, bool asSubFolder = false,
                          const std::string& description = "", int icon = 10) {
    return {name, description, icon, asSubFolder};
}

TEST(CreateFolder, TheFirstFolderGetsIdZeroAndStandsBehindTheToc) {
    Document doc({}, {EntryLineOf("00000009", {"x"})});
    FolderChange change = doc.create("", Dialog("a"));
    EXPECT_TRUE(change.changed);
    EXPECT_EQ(change.id, "00000000");
    EXPECT_EQ(doc.bytes(),
              CatalogueBytes({{"a\\", "", 10, "00000000"}}, {EntryLineOf("00000009", {"x"})}));
    EXPECT_EQ(doc.events, std::vector<std::string>{"FOLDERCREATE"});
    EXPECT_GT(doc.env.changedCalls, 0);
    EXPECT_FALSE(doc.env.common.ExpandAfterRefresh);
}

TEST(CreateFolder, ASubFolderGoesUnderTheSelectionAndIsExpandedAfterwards) {
    Document doc(kMusic);
    FolderChange change = doc.create("Music\\Rock", Dialog("Hard", true, "very", 12));
    EXPECT_EQ(change.id, "00000004");
    std::vector<FolderSpec> expected = kMusic;
    expected.push_back({"Music\\Rock\\Hard\\", "very", 12, "00000004"});
    EXPECT_EQ(doc.bytes(), CatalogueBytes(expected, {}));
    EXPECT_TRUE(doc.env.common.ExpandAfterRefresh);
}

TEST(CreateFolder, AnExistingNameIsRefusedAsStoredWithoutRegardToCaseOrCodePage) {
    Document doc({kMusic[0],
                  kMusic[1],
                  {"x y\\", "", 10, "00000002"},
                  {kUber1252 + "\\", "", 10, "00000003"}});
    const std::string before = doc.bytes();
    EXPECT_FALSE(doc.create("Music", Dialog("ROCK", true)).changed);
    ASSERT_EQ(doc.env.screen.shown.size(), 1u);
    EXPECT_EQ(doc.env.screen.shown[0].caption, "Error");
    EXPECT_EQ(doc.env.screen.shown[0].text, "The Folder \"Music\\ROCK\" does already exist!");
    EXPECT_EQ(doc.env.screen.shown[0].icon, MsgIcon::Critical);
    for (const char* name : {"x\x01y", "x\ny", "X\rY", "über", "ÜBER"}) {
        EXPECT_FALSE(doc.create("", Dialog(name)).changed) << name;
    }
    EXPECT_EQ(doc.bytes(), before);
    EXPECT_EQ(doc.env.screen.shown.at(2).text, "The Folder \"x y\" does already exist!");
    EXPECT_TRUE(doc.events.empty());
    // A name from the other code page that is another letter is another folder.
    EXPECT_TRUE(doc.create("", Dialog("übel")).changed);
}

TEST(DeleteFolder, RemovesSubFoldersAndTheirEntriesAndKeepsEmptyLines) {
    Document doc(kMusic, {EntryLineOf("00000000", {"a"}), EntryLineOf("00000002", {"b"}), "",
                          EntryLineOf("00000001", {"c"}), EntryLineOf("00000003", {"d"})});
    doc.env.screen.answerMessage(MsgAnswer::Yes);
    ASSERT_TRUE(ConfirmFolderDelete(doc.env.common));
    EXPECT_EQ(doc.env.screen.shown[0].text,
              "Are you sure that you want delete the selected Folder,\rall its Sub-Folders and "
              "ALL contained entries?");
    EXPECT_EQ(doc.env.screen.shown[0].buttons, MsgButtons::YesNo);
    FolderChange change = doc.remove("Music");
    EXPECT_TRUE(change.changed);
    // Music2 only begins with the same letters: it stays.
    EXPECT_EQ(doc.bytes(),
              CatalogueBytes({kMusic[2], kMusic[3]},
                             {EntryLineOf("00000002", {"b"}), "", EntryLineOf("00000003", {"d"})}));
    EXPECT_EQ(doc.events, std::vector<std::string>{"ZVXFOLDERDEL"});
    EXPECT_EQ(doc.env.screen.statuses,
              (std::vector<std::string>{"Deleting selected folder(s)...",
                                        "Searching and deleting contained files..."}));
}

TEST(DeleteFolder, TheDeletedIdGoesToTheNextNewFolder) {
    Document doc(kMusic);
    doc.env.screen.answerMessage(MsgAnswer::No);
    EXPECT_FALSE(ConfirmFolderDelete(doc.env.common));
    doc.remove("Music2");
    FolderChange change = doc.create("", Dialog("New"));
    EXPECT_EQ(change.id, "00000002");
    EXPECT_FALSE(doc.remove("").changed);  // nothing selected
}

TEST(DeleteFolder, MoreFoldersThanTheIdListHoldsFailBeforeAnythingIsWritten) {
    std::vector<FolderSpec> folders = {{"A\\", "", 10, "00000000"}};
    for (int i = 1; i <= 64001; ++i)
        folders.push_back({"A\\" + std::to_string(i) + "\\", "", 10, std::to_string(i)});
    Document doc(folders);
    std::string before = doc.bytes();
    FolderTree tree = BuildFolderTree({MakeTocGroup("A\\", "", 10, "00000000")});
    EXPECT_THROW(DeleteFolder(doc.env.common, doc.cfn, tree, 0), FolderListFull);
    EXPECT_EQ(doc.bytes(), before);
}

TEST(FolderProperties, RenamingMusicMakesItsSiblingMusic2AChild) {
    Document doc(kMusic, {EntryLineOf("00000000", {"a"})});
    FolderChange change = doc.change("Music", Dialog("Sound", false, "new", 5));
    EXPECT_TRUE(change.changed);
    EXPECT_EQ(doc.bytes(), CatalogueBytes({{"Sound\\", "new", 5, "00000000"},
                                           {"Sound\\Rock\\", "Loud", 4, "00000001"},
                                           {"Sound\\2\\", "", 10, "00000002"},
                                           {"Art\\", "", 10, "00000003"}},
                                          {EntryLineOf("00000000", {"a"})}));
    EXPECT_TRUE(doc.events.empty());
    EXPECT_GT(doc.env.changedCalls, 0);
}

TEST(FolderProperties, ACaseChangePassesAndAnotherExistingNameIsRefused) {
    Document doc(kMusic);
    std::string before = doc.bytes();
    EXPECT_FALSE(doc.change("Music2", Dialog("art")).changed);
    EXPECT_EQ(doc.env.screen.shown.at(0).text, "The Folder \"art\" does already exist!");
    EXPECT_EQ(doc.bytes(), before);
    EXPECT_TRUE(doc.change("Music\\Rock", Dialog("ROCK", false, "Loud", 4)).changed);
    EXPECT_NE(doc.at("Music\\ROCK"), -1);
    EXPECT_EQ(doc.env.screen.shown.size(), 1u);

    // A Windows-1252 "Über" spelt "über" in UTF-8 is a change of case alone.
    Document windows({{kUber1252 + "\\", "", 10, "00000000"}});
    EXPECT_TRUE(windows.change(kUber1252, Dialog("über")).changed);
    EXPECT_EQ(windows.at("über"), 0);
    EXPECT_TRUE(windows.env.screen.shown.empty());
}

TEST(MoveFolder, MovesTheFolderWithItsSubFoldersAndLeavesEntriesAlone) {
    std::vector<FolderSpec> folders = kMusic;
    folders.push_back({"Music\\Rock\\Hard\\", "", 10, "00000004"});
    Document doc(folders, {EntryLineOf("00000004", {"h"})});
    FolderChange change = doc.move("Music\\Rock", "Rock", "Art\\");
    EXPECT_TRUE(change.changed);
    EXPECT_EQ(change.reselect, "Art\\");
    EXPECT_EQ(doc.bytes(), CatalogueBytes({kMusic[0],
                                           {"Art\\Rock\\", "Loud", 4, "00000001"},
                                           kMusic[2],
                                           kMusic[3],
                                           {"Art\\Rock\\Hard\\", "", 10, "00000004"}},
                                          {EntryLineOf("00000004", {"h"})}));
    EXPECT_EQ(doc.events, std::vector<std::string>{"ZVXFOLDERMOVE"});

    change = doc.move("Art\\Rock", "Rock", "\\");
    EXPECT_EQ(change.reselect, "");
    EXPECT_NE(doc.at("Rock\\Hard"), -1);
}

TEST(MoveFolder, RefusalsComeInTheirOrder) {
    Document doc(kMusic);
    std::string before = doc.bytes();
    auto move = [&](const std::string& source, const std::string& leaf, const std::string& target) {
        doc.env.screen.shown.clear();
        EXPECT_FALSE(doc.move(source, leaf, target).changed);
        return doc.env.screen.shown.empty() ? std::string() : doc.env.screen.shown[0].text;
    };
    // A cancelled dialog with a root folder selected meets the same-name test.
    EXPECT_EQ(move("Art", "Art", ""),
              "A Folder with the same name does already exist in the specified target-folder.");
    EXPECT_EQ(move("Music\\Rock", "Rock", ""), "");
    EXPECT_EQ(move("Art", "Art", "\\"),
              "Yo cannot copy / move an object if target and source are the same objects!");
    EXPECT_EQ(move("Music", "Music", "music\\Rock\\"),
              "A Folder cannot be a Sub-Folder of itself!");
    EXPECT_EQ(doc.bytes(), before);
    EXPECT_TRUE(doc.events.empty());
}

TEST(FolderRewrites, AFailureAtAnyWriteLeavesTheWorkingCopyAsItWas) {
    using Change = std::function<void(Document&)>;
    const Change changes[] = {
        [](Document& doc) { doc.remove("Music"); },
        [](Document& doc) { doc.change("Music", Dialog("Songs", false, "renamed")); }};
    for (const Change& change : changes) {
        for (const test::FaultKind& fault : test::kFaultKinds) {
            EXPECT_GE(test::ForEachFault([&](int n) {
                          Document doc(kMusic, {EntryLineOf("00000001", {"a.mp3"})});
                          const std::string before = doc.bytes();
                          InjectedFileFault armed(fault.kind, n, fault.err);
                          try {
                              change(doc);
                          } catch (const FileError&) {
                          }
                          if (armed.fired()) {
                              EXPECT_EQ(doc.bytes(), before);
                          }
                          EXPECT_EQ(ReadEntryOffset(doc.cfn), FindTocEnd(doc.cfn));
                          return armed.fired();
                      }),
                      2);
        }
    }
}

}  // namespace
}  // namespace zvx
