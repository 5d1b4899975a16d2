#include "metadata/content_types.h"

#include <gtest/gtest.h>

#include "metadata/content_icon.h"

namespace zvx {
namespace {

TEST(ContentTypeFromExtension, TrimsLowersAndDropsOneDot) {
    const ExtensionContent mp3 = ContentTypeFromExtension(" .MP3 ");
    EXPECT_EQ(mp3.contentType, "Audio: unknown");
    EXPECT_EQ(mp3.category, "mp3");
    EXPECT_EQ(mp3.extension, "mp3");

    const ExtensionContent dots = ContentTypeFromExtension("..");
    EXPECT_EQ(dots.extension, ".");
    EXPECT_EQ(dots.contentType, "<Unknown Content Type>");
    EXPECT_EQ(dots.category, "");

    const ExtensionContent empty = ContentTypeFromExtension("");
    EXPECT_EQ(empty.contentType, "<Unknown Content Type>");
    EXPECT_EQ(empty.category, "");

    // Blanks only, never other white space, are trimmed.
    EXPECT_EQ(ContentTypeFromExtension("\ttxt").contentType, "<Unknown Content Type>");
    // Letters beyond ASCII are lowered as well, and match nothing.
    EXPECT_EQ(ContentTypeFromExtension("ÉXE").extension, "éxe");
}

TEST(ContentTypeFromExtension, TableRowsAndCategories) {
    struct Case {
        const char* extension;
        const char* contentType;
        const char* category;
    };
    const Case cases[] = {
        {"ZVX", "Document: ZVX DataBase", "zvx"}, {"Hlp", "Document: Help File", ""},
        {"mpeg3", "Audio: unknown", "mp3"},       {"mpeg", "Document: Video/Animation", "video"},
        {"pcx", "Document: Image", "image"},      {"com", "Software: Application", "exe"},
        {"bat", "Software: unknown", "exe"},      {"mp3x", "<Unknown Content Type>", ""},
        {"mp", "<Unknown Content Type>", ""},
    };
    for (const Case& c : cases) {
        const ExtensionContent result = ContentTypeFromExtension(c.extension);
        EXPECT_EQ(result.contentType, c.contentType) << c.extension;
        EXPECT_EQ(result.category, c.category) << c.extension;
    }
}

TEST(ContentTypeVocabulary, IconsAndOrder) {
    const auto vocabulary = ContentTypeVocabulary();
    ASSERT_EQ(vocabulary.size(), 30u);
    EXPECT_EQ(vocabulary.front().contentType, "Audio: Album");
    EXPECT_EQ(vocabulary.back().contentType, "unknown");
    EXPECT_EQ(vocabulary.back().icon, 18);
    EXPECT_EQ(vocabulary[26].contentType, "Document: Help File");

    EXPECT_EQ(IconOfContentType("Document: Help File"), 20);
    EXPECT_EQ(IconOfContentType("Document: System File"), 5);
    EXPECT_EQ(IconOfContentType("Document: unknown"), 5);
    // Exact and case-sensitive; anything else is kept and gets icon 18.
    EXPECT_EQ(IconOfContentType("audio: album"), 18);
    EXPECT_EQ(IconOfContentType("<Unknown Content Type>"), 18);
    EXPECT_EQ(IconOfContentType(""), 18);
}

TEST(IconFromContentType, ExtensionReplacesTheStoredTypeWithoutEnhancedView) {
    LoadedSettings settings;
    settings.useEnhancedView = false;
    const RowIcon icon = IconFromContentType("x.txt", "Audio: Vinyl", settings);
    EXPECT_EQ(icon.icon, 4);
    EXPECT_EQ(icon.contentType, "Document: Text");
    // The extension is the one behind the last dot of the name, not of a folder.
    EXPECT_EQ(IconFromContentType("c:\\old.zip\\readme", "Audio: Vinyl", settings).contentType,
              "<Unknown Content Type>");
    EXPECT_EQ(IconFromContentType("c:\\music\\A.B.Mp3", "", settings).icon, 1);
}

TEST(IconFromContentType, EnhancedViewKeepsTheStoredType) {
    LoadedSettings settings;
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
