#include "metadata/mp3_stream.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "platform/file_error.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

using test::TestEnvironment;
using test::WriteAll;

// A sparse file of `size` bytes starting with the header bytes.
std::filesystem::path MediaFile(TestEnvironment& env, const std::string& header, uintmax_t size) {
    const auto path = env.folder / "a.mp3";
    WriteAll(path, header);
    std::filesystem::resize_file(path, size);
    return path;
}

std::optional<std::string> Analyse(TestEnvironment& env, const std::string& header,
                                   uintmax_t size = 4'800'000) {
    return AnalyseMP3Stream(env.common, MediaFile(env, header, size));
}

TEST(MP3HeaderBits, BitsCountFromTheLowestBitOfTheFirstByte) {
    const auto bits = MP3HeaderBits({0x01, 0x80, 0x00, 0x30});
    EXPECT_TRUE(bits[0]);
    EXPECT_FALSE(bits[7]);
    EXPECT_TRUE(bits[15]);
    EXPECT_FALSE(bits[16]);
    EXPECT_TRUE(bits[29]);
    EXPECT_FALSE(bits[31]);

    const bool five[] = {true, false, true};
    EXPECT_EQ(BitsToNumber(five), 5);
    EXPECT_EQ(BitsToNumber({}), 0);
}

TEST(AnalyseMP3Stream, DescribesTheHeaderAndThePlayingTime) {
    TestEnvironment env;
    const std::string summary =
        "MPEG 1 Layer 3 Bitrate: 128 Freq: 44100 Mode: Dual Channel Length: 5:00";
    EXPECT_EQ(Analyse(env, "\xFF\xFB\x90\x64"), summary);
    EXPECT_EQ(env.common.stream.StreamSummary, summary);

    // No frame sync is looked for, and the layer bits do not count.
    EXPECT_EQ(Analyse(env, std::string("\x00\xFB\x90\x64", 4)), summary);
    EXPECT_EQ(Analyse(env, std::string("\xFF\x01\x90\x64", 4)), summary);
}

TEST(AnalyseMP3Stream, FrequencyAndModeFromTheFourthByte) {
    TestEnvironment env;
    EXPECT_EQ(Analyse(env, std::string("\xFF\xFB\x90\x00", 4)),
              "MPEG 1 Layer 3 Bitrate: 128 Freq: 44100 Mode: Stereo Length: 5:00");
    EXPECT_EQ(Analyse(env, "\xFF\xFB\x90\x13"),
              "MPEG 1 Layer 3 Bitrate: 128 Freq: n/a Mode: Joint-Stereo Length: 5:00");
    EXPECT_EQ(env.common.stream.StreamFrequency, "0");
    EXPECT_EQ(Analyse(env, "\xFF\xFB\x90\x31"),
              "MPEG 1 Layer 3 Bitrate: 128 Freq: 48000 Mode: Mono Length: 5:00");
    EXPECT_EQ(env.common.stream.StreamMode, "Mono");
}

TEST(AnalyseMP3Stream, WithoutBitrateTheLengthIsNotKnown) {
    TestEnvironment env;
    for (const std::string& third : {std::string("\xF0"), std::string(1, '\0')}) {
        EXPECT_EQ(Analyse(env, "\xFF\xFB" + third + "\x64"),
                  "MPEG 1 Layer 3 Bitrate: n/a Freq: 44100 Mode: Dual Channel Length: n/a");
        EXPECT_EQ(env.common.stream.StreamBitrate, "0");
        EXPECT_EQ(env.common.stream.StreamLength, "");
    }
    // An ID3v2 block is taken as the header: "D" has bit 0 clear, so MPEG 2 without a
    // bitrate.
    EXPECT_EQ(Analyse(env, "ID3\x03"),
              "MPEG 2 Layer 3 Bitrate: n/a Freq: n/a Mode: Stereo Length: n/a");
    EXPECT_EQ(Analyse(env, "ID3\x01"),
              "MPEG 2 Layer 3 Bitrate: n/a Freq: 24000 Mode: Stereo Length: n/a");
}

TEST(AnalyseMP3Stream, LengthRoundsHalfToEvenUpTo32767Seconds) {
    TestEnvironment env;
    // 32 kbit/s: 4000 bytes a second.
    const std::string header("\xFF\xFB\x10\x00", 4);
    Analyse(env, header, 4000 * 60 + 2000);
    EXPECT_EQ(env.common.stream.StreamLength, "1:00");
    Analyse(env, header, 4000 * 61 + 2000);
    EXPECT_EQ(env.common.stream.StreamLength, "1:02");
    Analyse(env, header, 4000 * 5);
    EXPECT_EQ(env.common.stream.StreamLength, "0:05");
    Analyse(env, header, 4000ull * 32767 + 1999);
    EXPECT_EQ(env.common.stream.StreamLength, "546:07");

    try {
        Analyse(env, header, 4000ull * 32767 + 2000);
        FAIL() << "an overflow must reach the caller";
    } catch (const FileError& error) {
        EXPECT_EQ(error.number(), 6);
    }
    EXPECT_EQ(env.common.stream.StreamSummary, "");
}

TEST(AnalyseMP3Stream, AFileOfFourBytesTakesTheFailurePath) {
    TestEnvironment env;
    EXPECT_TRUE(Analyse(env, "\xFF\xFB\x90\x64", 5).has_value());
    EXPECT_EQ(Analyse(env, "\xFF\xFB\x90\x64", 4), std::nullopt);
    const StreamValues& stream = env.common.stream;
    EXPECT_EQ(stream.StreamSummary, "");
    EXPECT_EQ(stream.StreamMode, "");
    EXPECT_EQ(stream.StreamLength, "");
    EXPECT_EQ(stream.StreamBitrate, "0");
    EXPECT_EQ(stream.StreamFrequency, "0");

    const auto gone = env.folder / "gone.mp3";
    EXPECT_EQ(AnalyseMP3Stream(env.common, gone), std::nullopt);
}

}  // namespace
}  // namespace zvx
