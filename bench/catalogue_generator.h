#pragma once
// Realistic catalogues for benchmarks: music by artist and album, photos by year and
// event, documents by topic, nested folders, entries of the folders interleaved in runs
// as the adding paths leave them. The same shape and seed give the same bytes.

#include <cstdint>
#include <filesystem>

namespace zvx::bench {

struct CatalogueShape {
    uint64_t entries = 0;
    uint64_t folders = 1;
    uint64_t seed = 1;
};

// Writes the catalogue beside `out` and renames it into place, so that an interrupted
// run never leaves a partial file under the name. Throws FileError.
void GenerateCatalogue(const std::filesystem::path& out, const CatalogueShape& shape);

}  // namespace zvx::bench
