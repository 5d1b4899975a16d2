// zvx_list_folder FILE ID: prints how many entries the folder has, counted by the
// store's folder listing; the program compare_listing.sh times against grep.

#include <cstdio>
#include <exception>
#include <string_view>

#include "store/folder_listing.h"

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: zvx_list_folder FILE ID\n");
        return 2;
    }
    unsigned long long count = 0;
    try {
        zvx::ListFolderEntries(argv[1], argv[2], [&](std::string_view) { ++count; });
    } catch (const std::exception& error) {
        std::fprintf(stderr, "zvx_list_folder: %s\n", error.what());
        return 1;
    }
    std::printf("%llu\n", count);
    return 0;
}
