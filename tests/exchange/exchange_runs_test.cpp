// The exchange dialogs' runs with an external filter: what the filter is started with,
// and what its output, or the lack of it, makes of an import.

#include "exchange/exchange_runs.h"

#include <gtest/gtest.h>

#include "exchange/export_prep.h"
#include "support/catalogue_bytes.h"
#include "support/temp_folder.h"

namespace zvx::test {
namespace {

struct Filters : TestEnvironment {
    Filters() { std::filesystem::create_directory(folder / "PLUGINS"); }
    FilterRunner runner(const std::string& leaves = "") {
        return [this, leaves](const std::string& event, const std::string& call) {
            runs.push_back(event + "|" + call);
            if (!leaves.empty())
                WriteAll(folder / "PLUGINS" / "imported.tmp", leaves);
        };
    }
    std::vector<std::string> runs;
};

TEST(ExchangeRuns, AnExternalImportMergesWhatTheFilterLeftOrTellsItCanceled) {
    Filters env;
    WriteAll(env.folder / "PLUGINS" / "csv.zvi", "<name>CSV\n<EXE>zvxfilter csv-import\n");
    WriteAll(env.folder / "PLUGINS" / "quick.zvi", "<name>Q\n<exe>q.sh\n<MODAL>FAST now\n");
    const auto cfn = env.folder / "Document 1.tmp";
    WriteAll(cfn, CatalogueBytes({{"Music\\", "", 10, "00000000"}}, {}));

    EXPECT_FALSE(RunImport(env.common, "csv.zvi", cfn, "", env.runner()));
    ASSERT_EQ(env.screen.shown.size(), 1u);
    EXPECT_EQ(env.screen.shown[0].text, "External Import-Filter Canceled!");

    const std::string source =
        CatalogueBytes({{"Music\\", "", 10, "00000000"}}, {EntryLineOf("00000000", {"a.mp3"})});
    EXPECT_TRUE(RunImport(env.common, "quick.zvi", cfn, "", env.runner(source)));
    EXPECT_EQ(env.runs, (std::vector<std::string>{"import|yes     -zvxfilter csv-import",
                                                  "import|fast    -q.sh"}));
    EXPECT_NE(ReadAll(cfn).find("Music (2)\\"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(env.folder / "PLUGINS" / "imported.tmp"));
}

TEST(ExchangeRuns, AnExternalExportGetsTheFileWithItsModeApplied) {
    Filters env;
    WriteAll(env.folder / "PLUGINS" / "csv.zve", "<name>CSV\n<exe>zvxfilter csv-export\n");
    const auto exportFile = ExportFilePath(env.common);
    WriteAll(exportFile,
             CatalogueBytes({{"Music\\", "", 10, "00000000"}, {"Books\\", "", 10, "00000001"}},
                            {EntryLineOf("00000000", {"a.mp3"})}));
    TakeExportBackup(env.common, exportFile);
    RunExport(env.common, "csv.zve", ExportTocMode::Optimize, env.runner());
    EXPECT_EQ(env.runs, std::vector<std::string>{"export|yes     -zvxfilter csv-export"});
    EXPECT_EQ(ReadAll(exportFile).find("Books\\"), std::string::npos);
}

}  // namespace
}  // namespace zvx::test
