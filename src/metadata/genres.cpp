#include "metadata/genres.h"

#include <array>
#include <cmath>

#include "common/numeric_value.h"

namespace zvx {

namespace {

constexpr int kHighestGenre = 144;

// Indexed by number; an empty name marks a number without a genre. The spellings are
// the program's own and stay as they are ("Christian Gansta", "Trash Metal").
constexpr std::array<std::string_view, kHighestGenre + 1> kGenres = {
    "Blues",              // 0
    "Classic Rock",       // 1
    "Country",            // 2
    "Dance",              // 3
    "Disco",              // 4
    "Funk",               // 5
    "Grunge",             // 6
    "Hip-Hop",            // 7
    "Jazz",               // 8
    "Metal",              // 9
    "New Age",            // 10
    "Oldies",             // 11
    "Other",              // 12
    "Pop",                // 13
    "R&B",                // 14
    "Rap",                // 15
    "Reggae",             // 16
    "Rock",               // 17
    "Techno",             // 18
    "Industrial",         // 19
    "Alternative",        // 20
    "Ska",                // 21
    "Death Metal",        // 22
    "Pranks",             // 23
    "Soundtrack",         // 24
    "Euro-Techno",        // 25
    "Ambient",            // 26
    "Trip-Hop",           // 27
    "Vocal",              // 28
    "Jazz+Funk",          // 29
    "Fusion",             // 30
    "Trance",             // 31
    "Classical",          // 32
    "Instrumental",       // 33
    "Acid",               // 34
    "House",              // 35
    "Game",               // 36
    "Sound Clip",         // 37
    "Gospel",             // 38
    "Noise",              // 39
    "Alt. Rock",          // 40
    "Bass",               // 41
    "Soul",               // 42
    "Punk",               // 43
    "Space",              // 44
    "Meditative",         // 45
    "Instrumental Pop",   // 46
    "Instrumental Rock",  // 47
    "Ethnic",             // 48
    "Gothic",             // 49
    "Darkwave",           // 50
    "Techno-Industrial",  // 51
    "Electronic",         // 52
    "Pop-Folk",           // 53
    "Eurodance",          // 54
    "Dream",              // 55
    "Southern Rock",      // 56
    "Comedy",             // 57
    "Cult",               // 58
    "Gangsta Rap",        // 59
    "Top 40",             // 60
    "Christian Rap",      // 61
    "Pop/Funk",           // 62
    "Jungle",             // 63
    "Native American",    // 64
    "Cabaret",            // 65
    "New Wave",           // 66
    "Psychedelic",        // 67
    "Rave",               // 68
    "Showtunes",          // 69
    "Trailer",            // 70
    "Lo-Fi",              // 71
    "Tribal",             // 72
    "Acid Punk",          // 73
    "Acid Jazz",          // 74
    "Polka",              // 75
    "Retro",              // 76
    "Musical",            // 77
    "Rock & Roll",        // 78
    "Hard Rock",          // 79
    "Folk",               // 80
    "Folk/Rock",          // 81
    "National Folk",      // 82
    "Swing",              // 83
    "Fast-Fusion",        // 84
    "Bebob",              // 85
    "Latin",              // 86
    "Revival",            // 87
    "Celtic",             // 88
    "Bluegrass",          // 89
    "Avantgarde",         // 90
    "Gothic Rock",        // 91
    "Progressive Rock",   // 92
    "Psychedelic Rock",   // 93
    "Symphonic Rock",     // 94
    "Slow Rock",          // 95
    "Big Band",           // 96
    "Chorus",             // 97
    "Easy Listening",     // 98
    "Acoustic",           // 99
    "Humour",             // 100
    "Speech",             // 101
    "Chanson",            // 102
    "Opera",              // 103
    "Chamber Music",      // 104
    "Sonata",             // 105
    "Symphony",           // 106
    "Booty Bass",         // 107
    "Primus",             // 108
    "Porn Groove",        // 109
    "Satire",             // 110
    "Slow Jam",           // 111
    "Club",               // 112
    "Tango",              // 113
    "Samba",              // 114
    "Folklore",           // 115
    "Ballad",             // 116
    "Power Ballad",       // 117
    "Rhythmic Soul",      // 118
    "",                   // 119
    "Duet",               // 120
    "Punk Rock",          // 121
    "Drum Solo",          // 122
    "A Capella",          // 123
    "Euro-House",         // 124
    "Dance Hall",         // 125
    "Goa",                // 126
    "Drum & Bass",        // 127
    "Club-House",         // 128
    "Hardcore",           // 129
    "Terror",             // 130
    "Indie",              // 131
    "BritPop",            // 132
    "Negerpunk",          // 133
    "Polsk Punk",         // 134
    "Beat",               // 135
    "Christian Gansta",   // 136
    "Heavy Metal",        // 137
    "Black Metal",        // 138
    "Crossover",          // 139
    "",                   // 140
    "Christian Rock",     // 141
    "Merengue",           // 142
    "Salsa",              // 143
    "Trash Metal",        // 144
};

// The table's name for a number, empty for a number without a genre.
std::string_view GenreOf(double number) {
    if (!(number >= 0 && number <= kHighestGenre) || number != std::floor(number))
        return {};
    return kGenres[static_cast<size_t>(number)];
}

// 145 numbers less the two without a genre.
constexpr size_t kGenreCount = kHighestGenre - 1;

constexpr std::array<std::string_view, kGenreCount> MakeChoices() {
    std::array<std::string_view, kGenreCount> choices{};
    size_t next = 0;
    for (std::string_view name : kGenres) {
        if (!name.empty())
            choices.at(next++) = name;  // a table with too many names fails to compile here
    }
    return choices;
}

}  // namespace

std::span<const std::string_view> GenreChoices() {
    static constexpr auto kChoices = MakeChoices();
    return kChoices;
}

std::string_view GenreNameFromTag(std::string_view genre) {
    if (genre.empty() || genre == kUnknownGenre)
        return kUnknownGenre;
    return GenreOf(NumericValue(genre));
}

std::string_view GenreDisplayName(int number) {
    std::string_view name = number == 0 ? std::string_view() : GenreOf(number);
    return name.empty() ? kUnknownGenre : name;
}

}  // namespace zvx
