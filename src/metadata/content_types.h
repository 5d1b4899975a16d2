#pragma once
// The content-type vocabulary of entries with the list icon each selects, and the
// content type that a file's extension gives. A content type is plain text and the
// text is its own key: every text outside the vocabulary is kept as it stands and
// shown with the icon of "unknown".

#include <span>
#include <string>
#include <string_view>

namespace zvx {

// What ContentTypeFromExtension gives for an extension it does not know.
inline constexpr std::string_view kUnknownContentType = "<Unknown Content Type>";
// The icon of "unknown" and of every text outside the vocabulary.
inline constexpr int kOtherContentIcon = 18;

struct ContentTypeIcon {
    std::string_view contentType;
    int icon;  // index in the entry list's image list
};

// The vocabulary in the order the entry editor and the options dialog offer it,
// "unknown" last.
std::span<const ContentTypeIcon> ContentTypeVocabulary();

// The icon a content type selects. The text compares exactly, case included; a text
// outside the vocabulary ("<Unknown Content Type>" among them) gives 18.
int IconOfContentType(std::string_view contentType);

struct ExtensionContent {
    std::string_view contentType;  // static text
    // The content category: a lower-case word that tells callers how to read the file
    // ("mp3", "txt", "image" ...), empty when the extension has none.
    std::string_view category;
    // The extension as it was read: blanks trimmed, lower case, one leading "."
    // dropped. AddFileEntry names the entry with it.
    std::string extension;
};

// The content type and content category of a file extension (" .MP3 " reads as
// "mp3"). An extension outside the table gives "<Unknown Content Type>" and an empty
// category. Allocates nothing for an ASCII extension of up to 15 characters, so that
// a list may call it for each row.
ExtensionContent ContentTypeFromExtension(std::string_view extension);

}  // namespace zvx
