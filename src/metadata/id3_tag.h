#pragma once
// The ID3v1 block: the last 128 bytes of a media file, read into the common module's tag
// values (common.id3).

#include <filesystem>

namespace zvx {

class Common;
class MediaFile;

// Clears the tag values (TagTrack and TagYear 0), then reads the block when the file is
// longer than 128 bytes and its first three bytes read "TAG" in upper case:
// - title, artist and album (30 bytes each) and the comment (29 bytes), blanks trimmed
//   at both ends, NUL bytes kept, converted from Latin-1 to UTF-8;
// - TagYear, the numeric value of the four year bytes, where a two-character value
//   takes a century: 20 or less "20", above "19" ("99" is 1999, "21" is 1921);
// - TagTrack, byte 126, 0 unless 1 to 30; TagGenre, the decimal text of byte 127, or
//   "<unknown>" above 115.
// HasID3Tag becomes False for a file of 128 bytes or fewer and True for a tagged one; a
// longer file without "TAG", or one that cannot be read, leaves it as the previous file
// left it. Never throws.
void ReadID3Tag(Common& common, const std::filesystem::path& file);
// The same over a file opened once for both readers.
void ReadID3Tag(Common& common, const MediaFile& media);

}  // namespace zvx
