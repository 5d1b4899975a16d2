#include "metadata/mp3_stream.h"

#include <algorithm>
#include <cstdint>

#include "common/common.h"
#include "common/field_text.h"
#include "common/numeric_value.h"
#include "platform/file_error.h"
#include "platform/media_file.h"

namespace zvx {

namespace {

using HeaderBits = std::array<bool, 32>;

constexpr std::array<int, 16> kMpeg1Bitrates = {0,   32,  40,  48,  56,  64,  80,  96,
                                                112, 128, 160, 192, 224, 256, 320, 0};
constexpr std::array<int, 4> kMpeg1Frequencies = {44100, 48000, 32000, 0};
constexpr std::array<int, 4> kMpeg2Frequencies = {22050, 24000, 16000, 0};
constexpr std::array<const char*, 4> kModes = {"Stereo", "Joint-Stereo", "Dual Channel", "Mono"};
constexpr uint64_t kShortestFile = 5;
constexpr long long kMaxSeconds = 32767;
constexpr int kOverflowErrorNumber = 6;

int BitsAt(const HeaderBits& bits, size_t first, size_t count) {
    return BitsToNumber(std::span<const bool>(bits).subspan(first, count));
}

std::string ValueOrNotAvailable(int value) {
    return value == 0 ? "n/a" : std::to_string(value);
}

std::array<unsigned char, 4> ReadHeader(const MediaFile& media) {
    const std::string bytes = media.readAt(0, 4);
    // A file cut short since its length was read leaves the missing bytes 0.
    std::array<unsigned char, 4> header{};
    std::copy(bytes.begin(), bytes.end(), header.begin());
    return header;
}

// The playing time in seconds, which must fit a 16-bit Integer.
int PlayingSeconds(const std::filesystem::path& file, uint64_t size, int bitrate) {
    const long long seconds = RoundHalfEven(static_cast<double>(size) / (bitrate * 125.0));
    if (seconds > kMaxSeconds)
        throw FileError(kOverflowErrorNumber, file,
                        "Overflow in the playing time of " + file.string());
    return static_cast<int>(seconds);
}

std::string LengthText(int seconds) {
    return std::to_string(seconds / 60) + ":" +
           std::string(Right("00" + std::to_string(seconds % 60), 2));
}

// Bit 8 marks MPEG 1.
bool IsMpeg1(const HeaderBits& bits) {
    return bits[8];
}

int Bitrate(const HeaderBits& bits) {
    return IsMpeg1(bits) ? kMpeg1Bitrates[BitsAt(bits, 20, 4)] : 0;
}

// Sets bitrate, frequency and mode, and returns the summary up to the length.
std::string DescribeHeader(StreamValues& stream, const HeaderBits& bits) {
    const bool mpeg1 = IsMpeg1(bits);
    // Every file reports layer 3: the layer bits are not used.
    std::string summary = mpeg1 ? "MPEG 1 Layer 3" : "MPEG 2 Layer 3";
    const int bitrate = Bitrate(bits);
    stream.StreamBitrate = std::to_string(bitrate);
    summary += " Bitrate: " + ValueOrNotAvailable(bitrate);
    const int frequency = (mpeg1 ? kMpeg1Frequencies : kMpeg2Frequencies)[BitsAt(bits, 24, 2)];
    stream.StreamFrequency = std::to_string(frequency);
    summary += " Freq: " + ValueOrNotAvailable(frequency);
    stream.StreamMode = kModes[BitsAt(bits, 28, 2)];
    summary += " Mode: " + stream.StreamMode;
    return summary;
}

std::nullopt_t FailurePath(StreamValues& stream) {
    stream.StreamMode.clear();
    stream.StreamLength.clear();
    stream.StreamBitrate = "0";
    stream.StreamFrequency = "0";
    return std::nullopt;
}

}  // namespace

HeaderBits MP3HeaderBits(std::array<unsigned char, 4> bytes) {
    HeaderBits bits{};
    for (size_t k = 0; k < bytes.size(); ++k) {
        for (size_t i = 0; i < 8; ++i)
            bits[8 * k + i] = (bytes[k] >> i) & 1;
    }
    return bits;
}

int BitsToNumber(std::span<const bool> bits) {
    int number = 0;
    for (size_t i = 0; i < bits.size(); ++i) {
        if (bits[i])
            number |= 1 << i;
    }
    return number;
}

std::optional<std::string> AnalyseMP3Stream(Common& common, const std::filesystem::path& file) {
    return AnalyseMP3Stream(common, MediaFile(file));
}

std::optional<std::string> AnalyseMP3Stream(Common& common, const MediaFile& media) {
    StreamValues& stream = common.stream;
    stream.StreamSummary.clear();
    if (!media.exists())
        return FailurePath(stream);
    const uint64_t size = media.size();
    const std::filesystem::path& file = media.path();
    if (size < kShortestFile)
        return FailurePath(stream);

    const HeaderBits bits = MP3HeaderBits(ReadHeader(media));
    const std::string summary = DescribeHeader(stream, bits);
    const int bitrate = Bitrate(bits);
    std::string length = "n/a";
    stream.StreamLength.clear();
    if (bitrate != 0) {
        length = LengthText(PlayingSeconds(file, size, bitrate));
        stream.StreamLength = length;
    }
    stream.StreamSummary = summary + " Length: " + length;
    return stream.StreamSummary;
}

}  // namespace zvx
