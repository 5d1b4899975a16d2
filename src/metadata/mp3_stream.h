#pragma once
// The first four bytes of an MP3 file taken as its stream header: version, bitrate,
// frequency, mode and playing time, into the common module's stream values
// (common.stream). There is no search for a frame: whatever starts the file is the
// header, an ID3v2 block too, and the fields are read at this program's own bit
// positions, which differ from the published header for the version.

#include <array>
#include <filesystem>
#include <optional>
#include <span>
#include <string>

namespace zvx {

class Common;
class MediaFile;

// Element 8k + i is bit i (0 the least significant) of byte k.
std::array<bool, 32> MP3HeaderBits(std::array<unsigned char, 4> bytes);

// The number the bits make, element 0 the least significant; at most 15 elements, the
// range of a 16-bit Integer.
int BitsToNumber(std::span<const bool> bits);

// Sets the stream values and returns the summary, such as "MPEG 1 Layer 3 Bitrate: 128
// Freq: 44100 Mode: Dual Channel Length: 5:00":
// - MPEG 1 when bit 8 is set, else MPEG 2; the layer is always 3;
// - the bitrate from bits 20 to 23, for MPEG 1 only ("n/a" and "0" when none);
// - the frequency from bits 24 and 25 ("n/a" and "0" when none);
// - the mode from bits 28 and 29;
// - the length "m:ss", the size over bitrate times 125 rounded half to even, "n/a" in
//   the summary and empty in StreamLength without a bitrate.
// A file that does not exist or is shorter than 5 bytes gives nullopt, with StreamMode
// and StreamLength empty and StreamBitrate and StreamFrequency "0". Throws FileError
// when the header cannot be read, and with the number 6 (overflow) for a length above
// 32767 seconds. On the overflow StreamBitrate, StreamFrequency and StreamMode keep the
// file's values and StreamLength is empty.
std::optional<std::string> AnalyseMP3Stream(Common& common, const std::filesystem::path& file);
// The same over a file opened once for both readers.
std::optional<std::string> AnalyseMP3Stream(Common& common, const MediaFile& media);

}  // namespace zvx
