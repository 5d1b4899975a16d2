#include <filesystem>
#include <optional>
#include <string>

#include "command_list.h"
#include "common/common.h"
#include "common/field_text.h"
#include "metadata/id3_tag.h"
#include "metadata/mp3_stream.h"

namespace zvx::cat {

namespace {

void CheckTags(const Arguments& arguments) {
    RequirePositionalCount(arguments, 1, 1);
}

// Texts as an entry's field would hold them, so that a value stays on its line.
void PrintText(std::ostream& out, const char* name, const std::string& value) {
    out << name << ": " << CleanFieldText(value) << "\n";
}

void PrintTag(std::ostream& out, const TagValues& tag) {
    out << "HasID3Tag: " << (tag.HasID3Tag ? "True" : "False") << "\n";
    PrintText(out, "TagTitle", tag.TagTitle);
    PrintText(out, "TagArtist", tag.TagArtist);
    PrintText(out, "TagAlbum", tag.TagAlbum);
    out << "TagYear: " << tag.TagYear << "\n";
    PrintText(out, "TagComment", tag.TagComment);
    out << "TagTrack: " << tag.TagTrack << "\n";
    PrintText(out, "TagGenre", tag.TagGenre);
}

void PrintStream(std::ostream& out, const StreamValues& stream) {
    PrintText(out, "StreamLength", stream.StreamLength);
    PrintText(out, "StreamBitrate", stream.StreamBitrate);
    PrintText(out, "StreamFrequency", stream.StreamFrequency);
    PrintText(out, "StreamMode", stream.StreamMode);
    PrintText(out, "StreamSummary", stream.StreamSummary);
}

void RunTags(const Arguments& arguments, Common& common, std::ostream& out) {
    const std::filesystem::path file = NativePathArgument(arguments.positional[0]);
    std::error_code ec;
    if (!std::filesystem::is_regular_file(file, ec))
        throw ToolFailure("no file " + file.string());
    ReadID3Tag(common, file);
    // Both readers run before anything is printed, so that a failure prints nothing.
    AnalyseMP3Stream(common, file);
    PrintTag(out, common.id3);
    PrintStream(out, common.stream);
}

}  // namespace

const Command& TagsCommand() {
    static const Command command{
        "tags",
        "show the ID3 tag and the stream header of a media file",
        "Usage: zvxcat tags MEDIAFILE\n"
        "Shows what an add reads from MEDIAFILE, one \"Name: value\" a line: the ID3v1\n"
        "tag at its end (HasID3Tag, TagTitle, TagArtist, TagAlbum, TagYear, TagComment,\n"
        "TagTrack, TagGenre) and the MP3 stream header at its start (StreamLength,\n"
        "StreamBitrate, StreamFrequency, StreamMode, StreamSummary). A file without a\n"
        "header (shorter than 5 bytes) has an empty StreamSummary; a playing time above\n"
        "32767 seconds is a failure, as it is for an add.\n",
        {},
        CheckTags,
        RunTags};
    return command;
}

}  // namespace zvx::cat
