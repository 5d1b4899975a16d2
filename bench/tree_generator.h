#pragma once
// A directory tree of small files to walk in benchmarks of the tree-adding run:
// "Genre NN/Artist NNN/Album NN/" directories, each a fifth MP3s ("NN - Title NNNN.mp3",
// an MPEG 1 header, a little sound and an ID3v1 tag), the rest pictures and notes, and a
// few notes in the root. The same shape gives the same names and bytes.

#include <cstdint>
#include <filesystem>

namespace zvx::bench {

struct TreeShape {
    uint64_t albums = 1000;  // the directories that hold files
    uint64_t filesPerAlbum = 100;
    uint64_t rootFiles = 20;
    uint64_t albumsPerArtist = 25;
    uint64_t artistsPerGenre = 4;
};

struct TreeCounts {
    uint64_t files = 0;
    uint64_t mp3Files = 0;
    uint64_t directories = 0;  // below the root
};

// Creates `root` and writes the tree into it, replacing files of the same names.
// Throws FileError.
TreeCounts GenerateTree(const std::filesystem::path& root, const TreeShape& shape);

}  // namespace zvx::bench
