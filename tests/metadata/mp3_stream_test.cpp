#include "metadata/mp3_stream.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>

#include "support/file_error_number.h"
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

TEST(AnalyseMP3Stream, DescribesTheHeaderAndThePlayingTime) {
    TestEnvironment env;
    const std::string summary =
        "MPEG 1 Layer 3 Bitrate: 128 Freq: 44100 Mode: Dual Channel Length: 5:00";
    EXPECT_EQ(Analyse(env, "\xFF\xFB\x90\x64"), summary);
    EXPECT_EQ(env.common.stream.StreamSummary, summary);

    // No frame sync is looked for, and the layer bits do not count.
    EXPECT_EQ(Analyse(env, std::string("\x00\xFB\x90\x64", 4)), summary);
    EXPECT_EQ(Analyse(env, std::string("\xFF\x01\x90\x64", 4)), summary);

    // Frequency and mode come from the fourth byte.
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
    const std::pair<uintmax_t, const char*> lengths[] = {{4000 * 60 + 2000, "1:00"},
                                                         {4000 * 61 + 2000, "1:02"},
                                                         {4000 * 5, "0:05"},
                                                         {4000ull * 32767 + 1999, "546:07"}};
    for (auto [size, length] : lengths) {
        Analyse(env, header, size);
        EXPECT_EQ(env.common.stream.StreamLength, length) << size;
    }

    // An overflow reaches the caller.
    EXPECT_EQ(test::ErrorNumberOf([&] { Analyse(env, header, 4000ull * 32767 + 2000); }), 6);
    EXPECT_EQ(env.common.stream.StreamSummary, "");
}

TEST(AnalyseMP3Stream, AFileOfFourBytesTakesTheFailurePath) {
    TestEnvironment env;
    EXPECT_TRUE(Analyse(env, "\xFF\xFB\x90\x64", 5).has_value());
    EXPECT_EQ(Analyse(env, "\xFF\xFB\x90\x64", 4), std::nullopt);
    const StreamValues& s = env.common.stream;
    EXPECT_EQ(s.StreamSummary + "|" + s.StreamMode + "|" + s.StreamLength + "|" + s.StreamBitrate +
                  "|" + s.StreamFrequency,
              "|||0|0");

    const auto gone = env.folder / "gone.mp3";
    EXPECT_EQ(AnalyseMP3Stream(env.common, gone), std::nullopt);
}

}  // namespace
}  // namespace zvx
