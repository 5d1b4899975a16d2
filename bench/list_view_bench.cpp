// The time to show 100,000 rows in a document's entry list: the rows are handed to the
// list's model and the report view lays them out and paints the first screen.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTreeView>
#include <cstdlib>
#include <string>

#include "common/loaded_settings.h"
#include "document/entry_list_model.h"
#include "store/entry_line.h"

namespace {

zvx::EntryRows MakeRows(int count) {
    zvx::EntryRows rows;
    zvx::LoadedSettings settings;
    for (int i = 0; i < count; ++i) {
        zvx::EntryValues v;
        v.size = std::to_string(1000 + i * 37);
        v.driveId = "MUSIC_01";
        v.date = "03-14-2004";
        v.contentType = "Audio: Album";
        v.title = "Song " + std::to_string(i);
        v.artist = "Artist " + std::to_string(i % 300);
        v.album = "Album " + std::to_string(i % 1200);
        v.track = std::to_string(i % 20 + 1);
        v.year = "1999";
        v.length = "3:41";
        v.bitrate = "192";
        v.frequency = "44100";
        v.mode = "Joint Stereo";
        rows.add(zvx::ComposeEntryLine("00000001",
                                       "c:\\Music\\Artist\\song " + std::to_string(i) + ".mp3", v,
                                       false, settings.renumberingLevel));
    }
    return rows;
}

void ShowHundredThousandRows(benchmark::State& state) {
    zvx::LoadedSettings settings;
    const zvx::EntryRows rows = MakeRows(100000);
    zvx::EntryListModel model(settings);
    QTreeView view;
    view.setUniformRowHeights(true);
    view.setModel(&model);
    view.resize(1000, 700);
    view.show();
    for (auto _ : state) {
        model.setRows(rows);
        QApplication::processEvents();
        view.grab();  // lays out and paints the first screen
    }
    state.counters["rows"] = static_cast<double>(model.rowCount());
}
BENCHMARK(ShowHundredThousandRows)->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
