#include "common/file_pattern.h"

#include <gtest/gtest.h>

namespace zvx {
namespace {

TEST(FilePattern, ListsMatchAnyPatternWithoutRegardToCase) {
    // "*.*" takes every name, with or without a dot.
    EXPECT_TRUE(MatchesFilePattern("README", "*.*"));
    EXPECT_TRUE(MatchesFilePattern(".hidden", "*.*"));
    EXPECT_TRUE(MatchesFilePattern("Song.MP3", "*.mp3;*.wav"));
    EXPECT_TRUE(MatchesFilePattern("x.wav", " *.mp3 ;  *.WAV "));
    EXPECT_FALSE(MatchesFilePattern("x.ogg", "*.mp3;*.wav"));
    EXPECT_FALSE(MatchesFilePattern("x.mp3.bak", "*.mp3"));
    EXPECT_TRUE(MatchesFilePattern("ÉTÉ.txt", "été.*"));
    // "?" is one character.
    EXPECT_TRUE(MatchesFilePattern("track01.mp3", "track??.mp3"));
    EXPECT_FALSE(MatchesFilePattern("track1.mp3", "track??.mp3"));
    EXPECT_TRUE(MatchesFilePattern("é1", "??"));
    EXPECT_FALSE(MatchesFilePattern("anything", ""));
}

}  // namespace
}  // namespace zvx
