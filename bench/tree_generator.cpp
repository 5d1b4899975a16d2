#include "tree_generator.h"

#include <cstdio>
#include <fstream>
#include <set>
#include <string>

#include "platform/file_error.h"

namespace zvx::bench {

namespace {

constexpr uint64_t kMp3Every = 5;
constexpr int kRockGenre = 17;

std::string Numbered(const char* format, uint64_t number) {
    char text[64];
    std::snprintf(text, sizeof text, format, static_cast<unsigned long long>(number));
    return text;
}

void WriteFile(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out)
        ThrowFileError("Cannot write", path);
}

// A text of exactly `size` bytes, cut or padded with blanks.
std::string Field(const std::string& text, size_t size) {
    std::string field = text.substr(0, size);
    field.resize(size, ' ');
    return field;
}

struct Song {
    std::string title, artist, album;
    uint64_t track = 0;
    uint64_t number = 0;  // the file's number in the whole tree, for sizes and years
};

std::string ID3v1Block(const Song& song) {
    std::string block = "TAG" + Field(song.title, 30) + Field(song.artist, 30) +
                        Field(song.album, 30) + Numbered("%04llu", 1970 + song.number % 50) +
                        Field("generated", 28);
    block += '\0';
    block += static_cast<char>(song.track);
    block += static_cast<char>(kRockGenre);
    return block;
}

// An MPEG 1 layer 3 header (128 kbit/s, 44100 Hz, joint stereo), a little silence and
// the tag: under 2 KB.
std::string Mp3Bytes(const Song& song) {
    std::string bytes = "\xFF\xFB\x90\x64";
    bytes.append(400 + song.number * 37 % 1600, '\0');
    return bytes + ID3v1Block(song);
}

std::string PictureBytes(uint64_t number) {
    std::string bytes = "\xFF\xD8\xFF\xE0";
    bytes.append(300 + number * 53 % 3000, '\x55');
    return bytes;
}

std::string NoteBytes(const std::string& name, uint64_t number) {
    std::string bytes;
    for (uint64_t line = 0; line < 3 + number % 20; ++line)
        bytes += name + ": a line of notes\n";
    return bytes;
}

// Every fifth file of an album is a song, the others alternate pictures and notes.
void WriteAlbumFile(const std::filesystem::path& dir, const Song& album, uint64_t index,
                    TreeCounts& counts) {
    const uint64_t number = album.number + index;
    if (index % kMp3Every == 0) {
        const Song song{Numbered("Title %04llu", number % 10000), album.artist, album.album,
                        index / kMp3Every + 1, number};
        WriteFile(dir / (Numbered("%02llu - ", song.track) + song.title + ".mp3"), Mp3Bytes(song));
        ++counts.mp3Files;
    } else if (index % 2 == 0) {
        WriteFile(dir / Numbered("Picture %03llu.jpg", index), PictureBytes(number));
    } else {
        const std::string name = Numbered("Notes %03llu", index);
        WriteFile(dir / (name + ".txt"), NoteBytes(name, number));
    }
    ++counts.files;
}

}  // namespace

TreeCounts GenerateTree(const std::filesystem::path& root, const TreeShape& shape) {
    TreeCounts counts;
    std::filesystem::create_directories(root);
    for (uint64_t i = 0; i < shape.rootFiles; ++i) {
        const std::string name = Numbered("Readme %02llu", i + 1);
        WriteFile(root / (name + ".txt"), NoteBytes(name, i));
        ++counts.files;
    }
    std::set<std::filesystem::path> made;
    for (uint64_t a = 0; a < shape.albums; ++a) {
        const uint64_t artist = a / shape.albumsPerArtist;
        Song album{"", Numbered("Artist %03llu", artist + 1),
                   Numbered("Album %02llu", a % shape.albumsPerArtist + 1), 0,
                   a * shape.filesPerAlbum};
        const std::filesystem::path genre =
            root / Numbered("Genre %02llu", artist / shape.artistsPerGenre + 1);
        const std::filesystem::path dir = genre / album.artist / album.album;
        std::filesystem::create_directories(dir);
        made.insert({genre, genre / album.artist, dir});
        for (uint64_t index = 0; index < shape.filesPerAlbum; ++index)
            WriteAlbumFile(dir, album, index, counts);
    }
    counts.directories = made.size();
    return counts;
}

}  // namespace zvx::bench
