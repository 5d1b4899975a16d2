// zvx_make_catalogue OUT N M [SEED]: writes a catalogue of N entries over M folders for
// benchmarks; the same arguments give the same bytes.

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>

#include "catalogue_generator.h"

namespace {

bool ParseCount(const char* text, uint64_t& value) {
    char* end = nullptr;
    value = std::strtoull(text, &end, 10);
    return end != text && *end == '\0';
}

}  // namespace

int main(int argc, char** argv) {
    zvx::bench::CatalogueShape shape;
    if ((argc != 4 && argc != 5) || !ParseCount(argv[2], shape.entries) ||
        !ParseCount(argv[3], shape.folders) || shape.folders == 0 ||
        (argc == 5 && !ParseCount(argv[4], shape.seed))) {
        std::fprintf(stderr, "usage: zvx_make_catalogue OUT ENTRIES FOLDERS [SEED]\n");
        return 2;
    }
    try {
        zvx::bench::GenerateCatalogue(argv[1], shape);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "zvx_make_catalogue: %s\n", error.what());
        return 1;
    }
    return 0;
}
