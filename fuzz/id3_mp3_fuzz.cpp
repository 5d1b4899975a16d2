// Any bytes, taken as an mp3 file, go through the ID3 tag reader and the stream header
// analysis, as they are and once more grown (sparse) to a long file, so that long
// playing times and their overflow are reached too. The tag reader never fails; the
// stream analysis may fail only with FileError. The values they leave keep their rules.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "common/common.h"
#include "fuzz_check.h"
#include "fuzz_folder.h"
#include "metadata/id3_tag.h"
#include "metadata/mp3_stream.h"
#include "platform/file_error.h"
#include "platform/file_io.h"
#include "silent_screen.h"

namespace {

using zvx::fuzz::Require;
using Path = std::filesystem::path;

constexpr uint64_t kGrowthFactor = 1 << 20;

void CheckTag(zvx::Common& common, const Path& file, uint64_t size) {
    zvx::ReadID3Tag(common, file);
    const zvx::TagValues& tag = common.id3;
    Require(size > 128 || !tag.HasID3Tag, "a file of 128 bytes or fewer has no tag");
    Require(tag.TagTrack >= 0 && tag.TagTrack <= 30, "a track lies within 0 to 30");
    Require(tag.TagYear >= -32768 && tag.TagYear <= 32767, "a year is a 16-bit Integer");
    Require(tag.TagProducer.empty(), "the reader leaves the producer empty");
}

void CheckStream(zvx::Common& common, const Path& file, uint64_t size) {
    const std::optional<std::string> summary = zvx::AnalyseMP3Stream(common, file);
    const zvx::StreamValues& stream = common.stream;
    Require(summary.has_value() == (size >= 5), "a file of 5 bytes or more is described");
    Require(stream.StreamSummary == summary.value_or(""), "the summary is kept as returned");
    Require(stream.StreamLength.empty() == (stream.StreamBitrate == "0"),
            "a playing time exactly when there is a bitrate");
}

void Exercise(zvx::Common& common, const Path& file, uint64_t size) {
    CheckTag(common, file, size);
    try {
        CheckStream(common, file, size);
    } catch (const zvx::FileError&) {
        // An overflowing playing time reaches the caller as FileError, nothing else.
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static zvx::fuzz::SilentScreen screen;
    const Path& folder = zvx::fuzz::FuzzFolder();
    zvx::Common common(folder, folder, screen);
    const Path file = folder / "fuzz.mp3";
    zvx::WriteEmptyFile(file);
    zvx::WriteFileBytes(file, 0, std::string_view(reinterpret_cast<const char*>(data), size));
    Exercise(common, file, size);
    const uint64_t grown = size * kGrowthFactor;
    std::filesystem::resize_file(file, grown);
    Exercise(common, file, grown);
    return 0;
}
