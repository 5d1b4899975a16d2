#pragma once
// TOC groups: the three lines of a folder at the head of a catalogue.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace zvx {

class LineReader;

struct TocGroup {
    std::string path;             // "Music\Rock\": names each followed by "\"
    std::string descriptionLine;  // the description and the icon character
    std::string id;               // eight digits

    // The description without the icon character.
    std::string description() const;
    // The icon number: the icon character's code less 40 (-40 for an empty line).
    int icon() const;
};

// The group for a new or changed folder. Path and description are cleaned of bytes that
// may not stand in a line.
TocGroup MakeTocGroup(std::string_view path, std::string_view description, int icon,
                      std::string_view id);

// Reads the next group; false at the empty line that ends the TOC (then `closed` is
// set, when given) or at end of file. A group cut short by the end of the file is
// returned with its missing lines empty.
bool ReadTocGroup(LineReader& reader, TocGroup& group, bool* closed = nullptr);

// All groups of a catalogue, in file order.
std::vector<TocGroup> ReadTocGroups(const std::filesystem::path& path);

}  // namespace zvx
