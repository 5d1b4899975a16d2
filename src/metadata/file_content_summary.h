#pragma once
// The short text about a file's content that the information display shows.

#include <filesystem>
#include <string>
#include <string_view>

namespace zvx {

class Common;

// The summary of the file at `path` by its content category, the one that
// ContentTypeFromExtension gave for the file's extension (compared in lower case):
// - "mp3": the file's ID3 tag, read by ReadID3Tag into common.id3. When HasID3Tag is
//   set, the empty ones of TagProducer, TagTitle, TagAlbum, TagArtist and TagComment
//   become "<not set>" and the text is "Tagged: yes" and the track (title), artist,
//   album, genre (by its display name) and comment lines, joined by CR; otherwise
//   "Tagged: no", CR, "<Other track information is unknown>";
// - "txt": the first five lines of the file joined by CR, where leading empty lines
//   vanish (they count towards the five all the same);
// - any other category: an empty text.
// A file that cannot be read gives "Error while retrieving ZVX-Content information
// for: " with the path and the category in brackets.
std::string FileContentSummary(Common& common, const std::filesystem::path& path,
                               std::string_view contentCategory);

}  // namespace zvx
