#pragma once
// An ID3v1 block of 128 bytes for the tests of the readers that take it apart.

#include <string>

namespace zvx::test {

struct Id3Block {
    std::string head = "TAG";
    std::string title, artist, album, year, comment;
    unsigned char track = 0;
    unsigned char genre = 0;
    char pad = '\0';  // what fills each text up to its width

    std::string bytes() const {
        auto field = [this](std::string text, size_t width) {
            text.resize(width, pad);
            return text;
        };
        return head + field(title, 30) + field(artist, 30) + field(album, 30) + field(year, 4) +
               field(comment, 29) + static_cast<char>(track) + static_cast<char>(genre);
    }
};

}  // namespace zvx::test
