#include "metadata/content_types.h"

#include <gtest/gtest.h>

#include "metadata/content_icon.h"

namespace zvx {
namespace {

// The extension as read, its content type and its category.
std::string Lookup(std::string_view extension) {
    const ExtensionContent found = ContentTypeFromExtension(extension);
    return found.extension + "|" + std::string(found.contentType) + "|" +
           std::string(found.category);
}

TEST(ContentTypeFromExtension, TrimsLowersDropsOneDotAndMatchesWholeExtensionsOnly) {
    EXPECT_EQ(Lookup(" .MP3 "), "mp3|Audio: unknown|mp3");
    EXPECT_EQ(Lookup(".."), ".|<Unknown Content Type>|");
    EXPECT_EQ(Lookup(""), "|<Unknown Content Type>|");
    // Blanks only, never other white space, are trimmed.
    EXPECT_EQ(Lookup("\ttxt"), "\ttxt|<Unknown Content Type>|");
    // Letters beyond ASCII are lowered as well, and match nothing.
    EXPECT_EQ(Lookup("ÉXE"), "éxe|<Unknown Content Type>|");
    EXPECT_EQ(Lookup("ZVX"), "zvx|Document: ZVX DataBase|zvx");
    EXPECT_EQ(Lookup("Hlp"), "hlp|Document: Help File|");
    EXPECT_EQ(Lookup("mpeg3"), "mpeg3|Audio: unknown|mp3");
    EXPECT_EQ(Lookup("mpeg"), "mpeg|Document: Video/Animation|video");
    EXPECT_EQ(Lookup("bat"), "bat|Software: unknown|exe");
    EXPECT_EQ(Lookup("mp3x"), "mp3x|<Unknown Content Type>|");
    EXPECT_EQ(Lookup("mp"), "mp|<Unknown Content Type>|");
}

TEST(ContentTypeVocabulary, IconsAndOrder) {
    const auto vocabulary = ContentTypeVocabulary();
    ASSERT_EQ(vocabulary.size(), 30u);
    EXPECT_EQ(vocabulary.front().contentType, "Audio: Album");
    EXPECT_EQ(vocabulary.back().contentType, "unknown");
    EXPECT_EQ(vocabulary.back().icon, 18);

    EXPECT_EQ(IconOfContentType("Document: Help File"), 20);
    EXPECT_EQ(IconOfContentType("Document: System File"), 5);
    EXPECT_EQ(IconOfContentType("Document: unknown"), 5);
    // Exact and case-sensitive; anything else is kept and gets icon 18.
    EXPECT_EQ(IconOfContentType("audio: album"), 18);
    EXPECT_EQ(IconOfContentType("<Unknown Content Type>"), 18);
    EXPECT_EQ(IconOfContentType(""), 18);
}

TEST(IconFromContentType, ExtensionReplacesTheStoredTypeUnlessTheViewIsEnhanced) {
    LoadedSettings settings;
    settings.useEnhancedView = false;
    const RowIcon icon = IconFromContentType("x.txt", "Audio: Vinyl", settings);
    EXPECT_EQ(icon.icon, 4);
    EXPECT_EQ(icon.contentType, "Document: Text");
    // The extension is the one behind the last dot of the name, not of a folder.
    EXPECT_EQ(IconFromContentType("c:\\old.zip\\readme", "Audio: Vinyl", settings).contentType,
              "<Unknown Content Type>");
    EXPECT_EQ(IconFromContentType("c:\\music\\A.B.Mp3", "", settings).icon, 1);

    // The enhanced view keeps the stored type.
    settings.useEnhancedView = true;
    settings.enhanceNormalView = false;
    const RowIcon unknown = IconFromContentType("x.zip", "unknown", settings);
    EXPECT_EQ(unknown.icon, 18);
    EXPECT_EQ(unknown.contentType, "unknown");
    EXPECT_EQ(IconFromContentType("x.txt", "Audio: Vinyl", settings).icon, 1);
    // An empty stored type always takes the extension's.
    EXPECT_EQ(IconFromContentType("x.gif", "", settings).contentType, "Document: Image");

    settings.enhanceNormalView = true;
    const RowIcon derived = IconFromContentType("x.zip", "unknown", settings);
    EXPECT_EQ(derived.icon, 17);
    EXPECT_EQ(derived.contentType, "Document: Compressed File");
    // Only the exact text "unknown" is replaced.
    EXPECT_EQ(IconFromContentType("x.zip", "Unknown", settings).icon, 18);
    EXPECT_EQ(IconFromContentType("x.zip", "Document: unknown", settings).icon, 5);
    EXPECT_EQ(IconFromContentType("noextension", "unknown", settings).contentType,
              "<Unknown Content Type>");
}

}  // namespace
}  // namespace zvx
