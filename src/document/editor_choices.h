#pragma once
// What the entry editor's choosers offer, filled once per window by EditorInit: the
// file-types of Combo1 with their pictures, the medium descriptions of Combo4, the
// genres of Combo3 and the styles of the style chooser.

#include <string>
#include <string_view>
#include <vector>

#include "common/loaded_settings.h"

namespace zvx {

class Common;

// A row of Combo1 (ComboaddingIMG): the content type and the index of its picture.
struct FileTypeChoice {
    std::string_view text;
    int icon;
};

// The content types in the order of their vocabulary, "unknown" last with picture 18.
// Each picture is the one the list would show for a file "c:\test.zvx" of that type.
std::vector<FileTypeChoice> FileTypeChoices(const LoadedSettings& settings);

// Combo4: "HD", "CD: Software" ... "Jazz:", "<unknown>" last.
std::vector<std::string_view> MediumDescriptionChoices();

// Combo3: the genre names in number order, "<unknown>" last.
std::vector<std::string_view> GenreNameChoices();

// The lines of styles.lst, in file order. A missing file is first written with the
// default styles. Throws FileError.
std::vector<std::string> ReadStyles(const Common& common);

}  // namespace zvx
