#include <gtest/gtest.h>
#include <sys/stat.h>

#include "extensions/filter_declarations.h"
#include "support/catalogue_bytes.h"
#include "tool_sandbox.h"

namespace zvx::test {
namespace {

const FolderSpec kMusic{"Music\\", "", 10, "00000001"}, kLive{"Music\\Live\\", "l", 3, "00000002"},
    kOther{"Other\\", "", 10, "00000003"};
const std::string kSong = EntryLineOf("00000001", {"song.mp3"});
const std::string kConcert = EntryLineOf("00000002", {"concert.mp3"});
const std::string kNote = EntryLineOf("00000003", {"note.txt"});

struct ExportBox {
    ToolSandbox box;
    ExportBox() {
        WriteAll(box / "c.zvx", CatalogueBytes({kMusic, kLive, kOther}, {kSong, kConcert, kNote}));
    }
    std::string exported(std::vector<std::string> args) {
        args.insert(args.begin(), {"export", "c.zvx", "out"});
        const ToolResult result = box.run(args);
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_EQ(result.err, "Export-Info: Export Completed!\n");
        return ReadAll(box / "out.zvx");
    }
};

TEST(ZvxcatExport, ExportsTheCatalogueAFolderOrASubTreeWithEachTocMode) {
    ExportBox e;
    EXPECT_EQ(e.exported({}), ReadAll(e.box / "c.zvx"));
    EXPECT_EQ(e.exported({"--in", "Music", "--toc", "all"}),
              CatalogueBytes({kMusic, kLive, kOther}, {kSong}));
    EXPECT_EQ(e.exported({"--in", "music", "--sub", "--toc", "optimize"}),
              CatalogueBytes({kMusic, kLive}, {kSong, kConcert}));
    const std::string renewed = e.exported({"--in", "Music/Live", "--toc", "new"});
    EXPECT_EQ(renewed.substr(5, 38), "Exported Entries\\\r\nExported with ZVX (");
    EXPECT_NE(
        renewed.find(")-\r\n00000001\r\n\r\n" + EntryLineOf("00000001", {"concert.mp3"}) + "\r\n"),
        std::string::npos);
}

TEST(ZvxcatExport, RefusesOtherExtensionsAndWriteProtectedTargets) {
    ExportBox e;
    const ToolResult wrong = e.box.run({"export", "c.zvx", "x.txt"});
    EXPECT_EQ(wrong.status, 1);
    EXPECT_NE(wrong.err.find("The file MUST have the extension \".zvx\" !"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(e.box / "x.txt"));
    EXPECT_EQ(e.box.run({"export", "c.zvx", "x", "--toc", "some"}).status, 2);
    EXPECT_EQ(e.box.run({"export", "c.zvx", "x", "--sub"}).status, 2);

    EXPECT_EQ(e.box.run({"export", "c.zvx", "kept.", "--in", "Other"}).status, 0);
    chmod((e.box / "kept.zvx").c_str(), 0444);
    EXPECT_EQ(e.box.run({"export", "c.zvx", "kept.zvx"}).status, 1);
    EXPECT_EQ(ReadAll(e.box / "kept.zvx"), CatalogueBytes({kMusic, kLive, kOther}, {kNote}));
    EXPECT_EQ(e.box.run({"export", "c.zvx", "kept.zvx", "--force"}).status, 0);
    EXPECT_EQ(ReadAll(e.box / "kept.zvx"), ReadAll(e.box / "c.zvx"));
}

TEST(ZvxcatExport, ExportsASearchResultLikeAnyCatalogue) {
    ExportBox e;
    ASSERT_EQ(e.box.run({"search", "c.zvx", "concert", "--out", "found.zvx"}).status, 0);
    ASSERT_EQ(e.box.run({"export", "found.zvx", "out", "--toc", "optimize"}).status, 0);
    EXPECT_EQ(ReadAll(e.box / "out.zvx"), CatalogueBytes({kLive, kMusic}, {kConcert}));
}

TEST(ZvxcatExport, AFilterWritesOutInItsFormatAndTheCsvComesBackByImport) {
    ExportBox env;
    const auto plugins = env.box.appFolder() / "PLUGINS";
    std::filesystem::create_directories(plugins);
    for (const FilterDeclarationFile& file : BuiltInFilterDeclarations(ZVXFILTER_PATH))
        WriteAll(plugins / file.fileName, file.text);
    WriteAll(plugins / "fail.sh", "#!/bin/sh\nexit 4\n");
    std::filesystem::permissions(plugins / "fail.sh", std::filesystem::perms::owner_all);
    WriteAll(plugins / "fail.zve", "<name>Fail\n<exe>fail.sh\n");

    const ToolResult csv = env.box.run({"export", "c.zvx", "shelf.csv", "--in", "Music", "--sub",
                                        "--filter", "CSV (Spreadsheet)"});
    ASSERT_EQ(csv.status, 0) << csv.err;
    const std::string table = ReadAll(env.box / "shelf.csv");
    EXPECT_NE(table.find("concert.mp3"), std::string::npos);
    EXPECT_EQ(table.find("note.txt"), std::string::npos);

    WriteAll(env.box / "d.zvx", CatalogueBytes({}, {}));
    const ToolResult back =
        env.box.run({"import", "d.zvx", "shelf.csv", "--as-root", "--filter", "CSV (Spreadsheet)"});
    ASSERT_EQ(back.status, 0) << back.err;
    const std::string merged = ReadAll(env.box / "d.zvx");
    EXPECT_NE(merged.find("Music\\Live\\\r\n"), std::string::npos);
    EXPECT_NE(merged.find("\x01"
                          "concert.mp3\x01"),
              std::string::npos);

    EXPECT_EQ(env.box.run({"export", "c.zvx", "x.csv", "--filter", "Fail"}).status, 1);
    EXPECT_EQ(env.box.run({"export", "c.zvx", "x.csv", "--filter", "Nope"}).status, 1);
}

}  // namespace
}  // namespace zvx::test
