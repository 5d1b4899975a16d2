// The CSV and HTML export filters and the CSV import filter, on catalogues built in the
// test.

#include <gtest/gtest.h>

#include "common/code_page.h"
#include "csv.h"
#include "csv_export.h"
#include "csv_import.h"
#include "html_export.h"
#include "store/entry_line.h"
#include "store/toc.h"
#include "support/catalogue_bytes.h"
#include "support/entry_lines.h"
#include "support/temp_folder.h"

namespace zvx::test {
namespace {

namespace fs = std::filesystem;
using filters::CsvField;

std::vector<std::vector<std::string>> ParseAll(std::string_view text) {
    std::vector<std::vector<std::string>> records;
    filters::CsvParser parser(text);
    for (std::vector<std::string> record; parser.next(record);)
        records.push_back(record);
    return records;
}

TEST(CsvTable, QuotesOnlyFieldsThatNeedIt) {
    EXPECT_EQ(CsvField("plain text"), "plain text");
    EXPECT_EQ(CsvField("a,b"), "\"a,b\"");
    EXPECT_EQ(CsvField("say \"hi\""), "\"say \"\"hi\"\"\"");
    EXPECT_EQ(CsvField("two\r\nlines"), "\"two\r\nlines\"");
    EXPECT_EQ(CsvField(" leading"), "\" leading\"");
    EXPECT_EQ(CsvField("trailing "), "\"trailing \"");
    EXPECT_EQ(filters::CsvRecord({"a", "", "b,c"}), "a,,\"b,c\"\r\n");
}

TEST(CsvTable, ParserReadsQuotedFieldsLineBreaksAndBothLineEnds) {
    const auto records =
        ParseAll("\xEF\xBB\xBFh1,h2\r\n\"a,\"\"b\"\"\",\"x\r\ny\"\nlast,\"\"\n,\n");
    ASSERT_EQ(records.size(), 4u);
    EXPECT_EQ(records[0], (std::vector<std::string>{"h1", "h2"}));
    EXPECT_EQ(records[1], (std::vector<std::string>{"a,\"b\"", "x\r\ny"}));
    EXPECT_EQ(records[2], (std::vector<std::string>{"last", ""}));
    EXPECT_EQ(records[3], (std::vector<std::string>{"", ""}));
}

struct Exchange : ::testing::Test, TestEnvironment {
    fs::path catalogue = folder / "export.tmp";
    fs::path csv = folder / "out.csv";
};

// Names with commas, quotes, blanks at the ends and Windows-1252 bytes, in two folders,
// one of them Windows-1252 too, and an entry of a folder the TOC lacks.
const std::string kOdd =
    EntryLineOf("00000001", {"Caf\xe9, \"Live\".mp3", "1234", "c:\\m\xfcsic", "CD1", "0", " Disc ",
                             "01-02-2003", "Audio: Album", "T\xedtulo", "Art,ist"});
const std::string kPlain = EntryLineOf("00000002", {"b.mp3", "5"});

void WriteOddCatalogue(const fs::path& file) {
    WriteAll(file, CatalogueBytes({{"Music\\", "", 10, "00000000"},
                                   {"Music\\R\xf6"
                                    "ck\\",
                                    "", 10, "00000001"},
                                   {"Films\\", "", 10, "00000002"}},
                                  {kOdd, kPlain, EntryLineOf("00000009", {"lost.txt"})}));
}

TEST_F(Exchange, CsvExportWritesUtf8WithHeaderAndFolderColumn) {
    WriteOddCatalogue(catalogue);
    filters::ExportCsv(catalogue, csv);
    const std::string text = ReadAll(csv);
    ASSERT_TRUE(
        text.starts_with("\xEF\xBB\xBF"
                         "Folder,Name,Size,Path,Medium ID,Read-Only,"
                         "Medium Description,Date,"));
    const auto records = ParseAll(text);
    ASSERT_EQ(records.size(), 4u);
    EXPECT_EQ(records[0].back(), "Mode");
    EXPECT_EQ(records[1][0],
              "Music\\R\xc3\xb6"
              "ck\\");
    EXPECT_EQ(records[1][1], "Caf\xc3\xa9, \"Live\".mp3");
    EXPECT_EQ(records[1][9], "T\xc3\xadtulo");
    EXPECT_EQ(records[2][0], "Films\\");
    EXPECT_EQ(records[3][0], "") << "an entry of an unknown folder has no folder path";
    EXPECT_NE(text.find("\"Caf\xc3\xa9, \"\"Live\"\".mp3\""), std::string::npos);
}

TEST_F(Exchange, CsvImportGivesBackEveryFieldOfTheExport) {
    WriteOddCatalogue(catalogue);
    filters::ExportCsv(catalogue, csv);
    const fs::path imported = folder / "imported.tmp";
    filters::ImportCsv(csv, imported);
    const std::vector<TocGroup> groups = ReadTocGroups(imported);
    ASSERT_EQ(groups.size(), 4u);
    EXPECT_EQ(groups[0].path, "Music\\");
    EXPECT_EQ(groups[1].path,
              "Music\\R\xc3\xb6"
              "ck\\");
    EXPECT_EQ(groups[2].path, "Films\\");
    EXPECT_EQ(groups[3].path, "Imported Entries\\");
    const std::vector<std::string> oldLines = {kOdd, kPlain};
    for (size_t i = 0; i < oldLines.size(); ++i) {
        const auto lines = FolderLines(imported, groups[i + 1].id);
        ASSERT_EQ(lines.size(), 1u);
        const EntryFields before = SplitEntryLine(oldLines[i]);
        const EntryFields after = SplitEntryLine(lines[0]);
        for (size_t field = 1; field <= 22; ++field)
            EXPECT_EQ(after[field], TextAsUtf8(before[field])) << "field " << field;
    }
    EXPECT_EQ(FolderLines(imported, groups[3].id).size(), 1u);
}

TEST(CsvImport, MakesFoldersWithAncestorsAndReadsColumnsByName) {
    const std::string catalogue = filters::CatalogueFromCsv(
        "extra,NAME,folder,Size\n"
        "x,a.mp3,\\A\\B\\C,1\n"
        "x,b.mp3,A\\,2\n"
        "x,\"two\r\nlines\",D\\,3\n");
    const std::string toc =
        "A\\\r\n2\r\n00000000\r\n"
        "A\\B\\\r\n2\r\n00000001\r\n"
        "A\\B\\C\\\r\n2\r\n00000002\r\n"
        "D\\\r\n2\r\n00000003\r\n";
    const std::string empties(20, '\x01');
    // The entries begin behind the header, the TOC and its closing empty line.
    EXPECT_EQ(catalogue, std::string("\x01\x00\x00\x00", 4) +
                             static_cast<char>(5 + toc.size() + 2 + 1) + toc + "\r\n" +
                             "00000002\x01"
                             "a.mp3\x01"
                             "1" +
                             empties + "\r\n" +
                             "00000000\x01"
                             "b.mp3\x01"
                             "2" +
                             empties + "\r\n" +
                             "00000003\x01"
                             "two lines\x01"
                             "3" +
                             empties + "\r\n");
}

TEST(CsvImport, RefusesATableWithoutHeader) {
    EXPECT_THROW(filters::CatalogueFromCsv("a.mp3,1\n"), filters::CsvImportError);
    EXPECT_THROW(filters::CatalogueFromCsv(""), filters::CsvImportError);
}

TEST_F(Exchange, HtmlExportEscapesTextAndGroupsByFolder) {
    WriteAll(catalogue,
             CatalogueBytes(
                 {{"B & <C>\\", "", 10, "00000001"}, {"A\\", "", 10, "00000002"}},
                 {EntryLineOf("00000001", {"<b>\"x\"'s.mp3"}), EntryLineOf("00000002", {"Caf\xe9"}),
                  EntryLineOf("00000001", {"second"})}));
    const fs::path html = folder / "out.html";
    filters::ExportHtml(catalogue, html);
    const std::string page = ReadAll(html);
    EXPECT_NE(page.find("<td>&lt;b&gt;&quot;x&quot;&#39;s.mp3</td>"), std::string::npos);
    EXPECT_NE(page.find("<td>Caf\xc3\xa9</td>"), std::string::npos);
    const size_t a = page.find("<h2>A\\</h2>");
    const size_t b = page.find("<h2>B &amp; &lt;C&gt;\\</h2>");
    ASSERT_NE(a, std::string::npos);
    ASSERT_NE(b, std::string::npos);
    EXPECT_LT(a, b);
    EXPECT_LT(b, page.find("second")) << "both entries of a folder stand in its table";
    EXPECT_NE(page.find("@media print"), std::string::npos);
}

}  // namespace
}  // namespace zvx::test
