#pragma once
// What the readers of a media file found, kept between the reading and the building of
// an entry: the ID3 tag, the MP3 stream header and the scanned file name. These are
// process-wide because their lifetime is behaviour: HasID3Tag keeps the value of the
// previous file when the next one has no tag.

#include <string>

namespace zvx {

// Set by ReadID3Tag. Texts are UTF-8 (the tag's Latin-1 converted), blanks trimmed,
// NUL bytes kept.
struct TagValues {
    bool HasID3Tag = false;
    std::string TagTitle;
    std::string TagArtist;
    std::string TagAlbum;
    std::string TagComment;
    std::string TagGenre;     // decimal text of the genre byte, or "<unknown>"
    std::string TagProducer;  // only cleared by the reader; entry construction fills it
    int TagYear = 0;          // 16-bit
    int TagTrack = 0;         // 1 to 30, 0 when none
};

// Set by AnalyseMP3Stream.
struct StreamValues {
    std::string StreamLength;           // "m:ss", empty when unknown
    std::string StreamBitrate = "0";    // kbit/s
    std::string StreamFrequency = "0";  // Hz
    std::string StreamMode;             // "Stereo", "Joint-Stereo", "Dual Channel", "Mono"
    std::string StreamSummary;          // the one-line description, empty on failure
};

// Set by ScanFileName.
struct ScanValues {
    std::string ScanArtist;
    std::string ScanTitle;
    std::string ScanAlbum;
    std::string ScanProducer;
    std::string ScanTrack;
};

}  // namespace zvx
