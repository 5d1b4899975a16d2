#include "ui/file_info.h"

#include <gtest/gtest.h>

#include <string>

#include "support/temp_folder.h"

namespace zvx {
namespace {

using test::TempFolder;
using test::WriteAll;

TEST(FileInfo, FolderAndSingleFile) {
    TempFolder folder;
    const FileInfoTexts forFolder = FileInfo({folder.path().string()});
    EXPECT_EQ(forFolder.type, "Type: Folder");
    EXPECT_EQ(forFolder.folder, "Folder: " + folder.path().string());

    WriteAll(folder / "a.mp3", "12345");
    // The text ends at the first NUL.
    const FileInfoTexts forFile = FileInfo({(folder / "a.mp3").string() + std::string("\0b", 2)});
    EXPECT_EQ(forFile.folder, "Folder: " + folder.path().string());
    EXPECT_EQ(forFile.info, " (5 bytes)");
    EXPECT_EQ(forFile.type, "ZVX-Content-Type: Audio: unknown");
    EXPECT_EQ(forFile.icon, 1);
    EXPECT_EQ(forFolder.icon, 0);

    // The extension compares without regard to case; an unknown one has the icon 18.
    WriteAll(folder / "Notes.TXT", "x");
    const FileInfoTexts text = FileInfo({(folder / "Notes.TXT").string()});
    EXPECT_EQ(text.type, "ZVX-Content-Type: Document: Text");
    EXPECT_EQ(text.icon, 4);
    WriteAll(folder / "data.bin", "x");
    const FileInfoTexts unknown = FileInfo({(folder / "data.bin").string()});
    EXPECT_EQ(unknown.type, "ZVX-Content-Type: <Unknown Content Type>");
    EXPECT_EQ(unknown.icon, 18);
}

TEST(FileInfo, SeveralFilesOrNone) {
    TempFolder folder;
    WriteAll(folder / "a.mp3", "123");
    WriteAll(folder / "b.mp3", "1234567");
    const FileInfoTexts texts = FileInfo(
        {(folder / "a.mp3").string(), (folder / "b.mp3").string(), (folder / "gone.mp3").string()});
    EXPECT_EQ(texts.info, "3 files selected. (10 bytes)");
    EXPECT_EQ(texts.type, "<multiple files selected>");
    EXPECT_EQ(texts.icon, 0);
    EXPECT_EQ(texts.folder, "Path: " + folder.path().string());

    // No path, an empty one, or one that ends at once at a NUL: nothing is selected.
    for (const auto& paths : {std::vector<std::string>{}, std::vector<std::string>{""},
                              std::vector<std::string>{std::string("\0/tmp/a", 7)}}) {
        EXPECT_EQ(FileInfo(paths).info, "<no file(s) selected!>");
        EXPECT_EQ(FileInfo(paths).folder, "<no file(s) selected!>");
    }
}

}  // namespace
}  // namespace zvx
