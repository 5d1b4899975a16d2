#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <random>

#include "common/text_case.h"
#include "exchange/export_prep.h"
#include "exchange/export_target.h"
#include "exchange/export_toc.h"
#include "store/entry_offset.h"
#include "store/toc.h"
#include "support/catalogue_bytes.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

using test::CatalogueBytes;
using test::EntryLineOf;
using test::FolderSpec;

struct ExportBench {
    test::TestEnvironment env;
    std::filesystem::path file = env.folder / "export.tmp";
    std::filesystem::path backup;

    explicit ExportBench(const std::string& bytes) {
        test::WriteAll(file, bytes);
        backup = TakeExportBackup(env.common, file);
    }
    std::string run(ExportTocMode mode) {
        ApplyExportToc(env.common, file, backup, mode, "1/2/26");
        return test::ReadAll(file);
    }
};

// The optimiser as a plain reading of its rules: the used list searched for every ID, the
// TOC walked for every used ID.
std::string ReferenceOptimize(const std::filesystem::path& file) {
    const std::vector<TocGroup> toc = ReadTocGroups(file);
    const std::string bytes = test::ReadAll(file);
    std::vector<std::string> entries;
    for (size_t pos = ReadEntryOffset(file) - 1, end; pos < bytes.size(); pos = end + 1) {
        end = std::min(bytes.find('\n', pos), bytes.size());
        std::string line = bytes.substr(pos, end - pos);
        if (end < bytes.size() && line.ends_with('\r'))
            line.pop_back();
        entries.push_back(line);
    }
    std::vector<std::string> used;
    auto addId = [&](const std::string& id) {
        if (std::find(used.begin(), used.end(), id) == used.end())
            used.push_back(id);
    };
    for (const std::string& line : entries)
        if (line.size() >= 8)
            addId(line.substr(0, 8));
    const std::vector<std::string> snapshot = used;
    std::vector<FolderSpec> kept;
    for (const std::string& id : snapshot) {
        std::string path = "<\?\?\?>";
        for (const TocGroup& group : toc)
            if (group.id == id) {
                path = group.path;
                break;
            }
        for (const TocGroup& group : toc)
            if (group.path.size() <= path.size() &&
                LowerCase(path).starts_with(LowerCase(group.path)))
                addId(group.id);
    }
    for (const std::string& id : used)
        for (const TocGroup& group : toc)
            if (group.id == id) {
                kept.push_back({group.path, group.description(), group.icon(), group.id});
                break;
            }
    return CatalogueBytes(kept, entries);
}

TEST(ExportToc, NewPutsEveryEntryOfASelectionIntoOneFolder) {
    test::TestEnvironment env;
    const std::filesystem::path cfn = env.folder / "Document 1.tmp";
    const std::vector<FolderSpec> folders = {{"Music\\", "", 10, "00000000"},
                                             {"Music\\Rock\\", "r", 3, "00000004"},
                                             {"Music\\Jazz\\", "", 10, "00000007"},
                                             {"Other\\", "", 10, "00000002"}};
    test::WriteAll(cfn, CatalogueBytes(folders, {EntryLineOf("00000004", {"a.mp3"}),
                                                 EntryLineOf("00000002", {"b.mp3"}),
                                                 EntryLineOf("00000007", {"c.mp3"}),
                                                 EntryLineOf("00000000", {"d.mp3"})}));
    const std::filesystem::path file = env.folder / "export.tmp";
    PrepareExportFile(env.common, cfn, ExportSource::SubTree, SearchFolder{"Music", "00000000"},
                      file);
    EXPECT_EQ(env.screen.statuses,
              (std::vector<std::string>{
                  "Preparing Export...", "Preparing Export (Mode: Splitted ZVX - Creating TOCs)...",
                  "Preparing Export (Mode Splitted ZVX - Filtering Entries)...", ""}));
    ApplyExportToc(env.common, file, TakeExportBackup(env.common, file), ExportTocMode::New,
                   "1/2/26");
    EXPECT_EQ(
        test::ReadAll(file),
        CatalogueBytes({{"Exported Entries\\", "Exported with ZVX (1/2/26)", 5, "00000001"}},
                       {EntryLineOf("00000001", {"a.mp3"}), EntryLineOf("00000001", {"c.mp3"}),
                        EntryLineOf("00000001", {"d.mp3"})}));
}

TEST(ExportToc, OptimizeKeepsUsedFoldersThenTheirAncestorsByPathPrefix) {
    ExportBench empty(CatalogueBytes({}, {}));
    EXPECT_EQ(empty.run(ExportTocMode::Optimize), CatalogueBytes({}, {}));

    const FolderSpec a{"a\\", "", 10, "00000000"}, ab{"A\\b\\", "x", 4, "00000001"},
        abc{"a\\B\\c\\", "", 10, "00000002"}, abWord{"ab\\", "", 10, "00000003"},
        other{"z\\", "", 10, "00000004"};
    const std::string inC = EntryLineOf("00000002", {"c"}), inAb = EntryLineOf("00000003", {"w"});
    // The trailing "\" keeps "a\" from being an ancestor of "ab\".
    ExportBench bench(CatalogueBytes({a, ab, abc, abWord, other}, {inC, inAb, inC}));
    EXPECT_EQ(bench.run(ExportTocMode::Optimize),
              CatalogueBytes({abc, abWord, a, ab}, {inC, inAb, inC}));
    // Each run starts again from the untouched copy.
    EXPECT_EQ(bench.run(ExportTocMode::New).substr(5, 19), "Exported Entries\\\r\n");
    EXPECT_EQ(bench.run(ExportTocMode::All), test::ReadAll(bench.backup));
}

TEST(ExportToc, OptimizeEqualsTheWalkOfItsRulesOnRandomCatalogues) {
    std::mt19937 random(7);
    const std::vector<std::string> names = {"a", "A", "ab", "b", "AB"};
    for (int round = 0; round < 30; ++round) {
        std::vector<FolderSpec> folders;
        const int folderCount = static_cast<int>(random() % 30);
        for (int i = 0; i < folderCount; ++i) {
            std::string path;
            for (unsigned depth = random() % 4 + 1; depth > 0; --depth)
                path += names[random() % names.size()] + "\\";
            // Some IDs repeat, and some entries use IDs no folder has.
            folders.push_back({path, "d", 10, "0000000" + std::to_string(random() % 8)});
        }
        std::vector<std::string> entries;
        for (unsigned count = random() % 40; count > 0; --count)
            entries.push_back(EntryLineOf("0000000" + std::to_string(random() % 10), {"e"}));
        std::string bytes = CatalogueBytes(folders, entries);
        // Lines ended by LF alone, and a last line without an end, are read as lines too.
        if (round % 3 == 1)
            bytes.erase(bytes.size() - 2);
        if (round % 3 == 2 && !entries.empty())
            bytes.erase(bytes.rfind('\r'), 1);
        ExportBench bench(bytes);
        const std::string fast = bench.run(ExportTocMode::Optimize);
        ApplyExportToc(bench.env.common, bench.file, bench.backup, ExportTocMode::All, "");
        ASSERT_EQ(fast, ReferenceOptimize(bench.file)) << "round " << round;
    }
}

TEST(ExportTarget, AddsTheExtensionAndRefusesAnyOther) {
    test::ScriptedScreen screen;
    EXPECT_EQ(ExportTargetName(screen, "/t/dir.d/x"), "/t/dir.d/x.zvx");
    EXPECT_EQ(ExportTargetName(screen, "/t/x."), "/t/x.zvx");
    EXPECT_EQ(ExportTargetName(screen, "/t/x.ZVX"), "/t/x.ZVX");
    EXPECT_TRUE(screen.shown.empty());
    EXPECT_EQ(ExportTargetName(screen, "/t/x.txt"), std::nullopt);
    ASSERT_EQ(screen.shown.size(), 1u);
    EXPECT_EQ(screen.shown[0].caption, "Error");
    EXPECT_EQ(screen.shown[0].text, "The file MUST have the extension \".zvx\" !");
    EXPECT_EQ(screen.shown[0].icon, MsgIcon::Critical);
}

TEST(ExportTarget, AWriteProtectedTargetIsWrittenOnlyAfterYes) {
    test::TestEnvironment env;
    const std::filesystem::path from = env.folder / "export.tmp", target = env.folder / "t.zvx";
    test::WriteAll(from, CatalogueBytes({}, {}));
    test::WriteAll(target, "old");
    chmod(target.c_str(), 0444);
    env.screen.answerMessage(MsgAnswer::No);
    EXPECT_FALSE(WriteExportTarget(env.common, from, target));
    EXPECT_EQ(test::ReadAll(target), "old");
    env.screen.answerMessage(MsgAnswer::Yes);
    EXPECT_TRUE(WriteExportTarget(env.common, from, target));
    EXPECT_EQ(test::ReadAll(target), CatalogueBytes({}, {}));
    EXPECT_EQ(env.screen.shown.back().caption, "Export-Info");
    EXPECT_EQ(env.screen.shown.back().text, "Export Completed!");
    EXPECT_EQ(env.screen.shown.back().icon, MsgIcon::Information);
}

}  // namespace
}  // namespace zvx
