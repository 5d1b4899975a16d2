#pragma once
// The temporary catalogues of a search, in the work folder (the application folder of the
// window program), and what every one of them starts with.

#include <filesystem>
#include <string>
#include <string_view>

namespace zvx {

class Common;

inline constexpr const char* kSearchFullFile = "searchr.tmp";
inline constexpr const char* kSearchTreeFile = "searcht.tmp";
inline constexpr const char* kSearchFolderFile = "searchf.tmp";
inline constexpr const char* kSearchResultFile = "sresult.tmp";
inline constexpr const char* kSearchResultCopyFile = "sresult2.tmp";

// The search-source options of the window: Option1, Option2, Option3.
enum class SearchSourceOption { Entire, SubTree, Folder };

// The catalogue a search reads by the option: searchr.tmp, searcht.tmp or searchf.tmp.
std::filesystem::path SearchSourceFile(const Common& common, SearchSourceOption option);

// The head of a catalogue as a search copies it: bytes 1 to 5 (zero bytes stand in for
// what a short file lacks), then every line from position 6 that begins before the entry
// offset, each ended by CR LF. Throws FileError.
std::string SearchHead(const std::filesystem::path& catalogue);

// The 0-based position of the entry section (offset 0 reads from the start).
size_t EntrySectionStart(const std::filesystem::path& catalogue);

}  // namespace zvx
