#include <gtest/gtest.h>

#include "platform/catalogue_path.h"

namespace zvx {
namespace {

TEST(CataloguePath, SeparatorsSwapBothWays) {
    EXPECT_EQ(CataloguePathFromNative("/media/cd/music/a.mp3"), "\\media\\cd\\music\\a.mp3");
    EXPECT_EQ(NativePathFromCatalogue("\\media\\cd\\a.mp3"), "/media/cd/a.mp3");
    // A "\" that a Linux name holds comes back unchanged after the round trip.
    std::string odd = "/home/ann/back\\slash/x";
    EXPECT_EQ(NativePathFromCatalogue(CataloguePathFromNative(odd)), odd);
    // A Windows path stays what it was: it resolves to nothing on this system.
    EXPECT_EQ(NativePathFromCatalogue("d:\\music"), "d:/music");
}

}  // namespace
}  // namespace zvx
