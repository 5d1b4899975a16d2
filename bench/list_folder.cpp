// zvx_list_folder FILE ID [--show | --sub]: prints how many entries folder ID has, the
// program compare_listing.sh times against grep. Without a flag the store's folder
// listing counts them; with --show the document window's listing (ShowEntries) makes
// the rows, with --sub its sub-view of the folder and all folders below it.

#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>
#include <string_view>

#include "common/common.h"
#include "document/show_entries.h"
#include "quiet_screen.h"
#include "store/folder_listing.h"
#include "store/toc.h"

namespace {

// The folder's path as the tree's FullPath gives it: without the trailing "\".
std::string FullPathOf(const std::filesystem::path& file, std::string_view id) {
    for (const zvx::TocGroup& group : zvx::ReadTocGroups(file)) {
        if (group.id == id)
            return group.path.substr(0, group.path.size() - 1);
    }
    return {};
}

unsigned long long CountShownRows(const std::filesystem::path& file, const std::string& id,
                                  bool sub) {
    zvx::bench::QuietScreen screen;
    const std::filesystem::path here = std::filesystem::temp_directory_path();
    zvx::Common common(here, here, screen);
    zvx::ViewBuffer buffer;
    zvx::EntryRows rows =
        zvx::ShowEntries(common, file, {true, id, sub ? FullPathOf(file, id) : "", sub}, buffer);
    return rows.size();
}

}  // namespace

int main(int argc, char** argv) {
    const std::string mode = argc == 4 ? argv[3] : "";
    if ((argc != 3 && argc != 4) || (argc == 4 && mode != "--show" && mode != "--sub")) {
        std::fprintf(stderr, "usage: zvx_list_folder FILE ID [--show | --sub]\n");
        return 2;
    }
    unsigned long long count = 0;
    try {
        if (mode.empty())
            zvx::ListFolderEntries(argv[1], argv[2], [&](std::string_view) { ++count; });
        else
            count = CountShownRows(argv[1], argv[2], mode == "--sub");
    } catch (const std::exception& error) {
        std::fprintf(stderr, "zvx_list_folder: %s\n", error.what());
        return 1;
    }
    std::printf("%llu\n", count);
    return 0;
}
