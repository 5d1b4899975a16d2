#pragma once
// The folders a sub-view lists: the selected folder and every folder below it.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace zvx {

// The list of wanted folder IDs has this many places; an ID beyond them is lost.
inline constexpr size_t kWantedIdPlaces = 64001;

class WantedFolderIds {
  public:
    // The first eight characters of each ID line, as far as the places go.
    explicit WantedFolderIds(const std::vector<std::string>& idLines);
    // Whether the eight characters are one of the IDs taken.
    bool contains(std::string_view id) const;
    // The places taken.
    size_t size() const { return count_; }

  private:
    size_t count_ = 0;
    std::vector<uint64_t> keys_;  // the eight-character IDs, sorted
};

// The IDs of the TOC groups, in file order up to a path line that is empty after
// trimming, whose path line with a trailing "\" begins with `fullPath` in lower case
// with a trailing "\", both lower-cased. The selected folder is one of them; a sibling
// whose name merely begins with the selected one ("Music2" for "Music") is not, as the
// "\" ends the name. Throws FileError.
WantedFolderIds SubViewFolderIds(const std::filesystem::path& catalogue, std::string_view fullPath);

}  // namespace zvx
