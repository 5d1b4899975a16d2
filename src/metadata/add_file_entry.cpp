#include "metadata/add_file_entry.h"

#include <optional>
#include <string>

#include "common/common.h"
#include "common/numeric_value.h"
#include "metadata/content_types.h"
#include "metadata/file_error_dialog.h"
#include "metadata/genres.h"
#include "metadata/id3_tag.h"
#include "metadata/mp3_stream.h"
#include "metadata/scan_file_name.h"
#include "platform/catalogue_path.h"
#include "platform/file_facts.h"
#include "platform/media_file.h"
#include "platform/volume_label.h"
#include "store/append_entry.h"
#include "store/split_path.h"

namespace zvx {

namespace {

void ClearReaderValues(Common& common) {
    common.scan = ScanValues{};
    const bool hasTag = common.id3.HasID3Tag;
    common.id3 = TagValues{};
    common.id3.HasID3Tag = hasTag;
    common.stream.StreamLength.clear();
    common.stream.StreamMode.clear();
    common.stream.StreamBitrate = "0";
    common.stream.StreamFrequency = "0";
}

// The scan fills what the tag left empty; the tag wins every conflict.
void MergeScan(Common& common) {
    TagValues& tag = common.id3;
    const ScanValues& scan = common.scan;
    if (tag.TagArtist.empty() && !scan.ScanArtist.empty())
        tag.TagArtist = scan.ScanArtist;
    if (tag.TagAlbum.empty() && !scan.ScanAlbum.empty())
        tag.TagAlbum = scan.ScanAlbum;
    if (tag.TagTitle.empty() && !scan.ScanTitle.empty())
        tag.TagTitle = scan.ScanTitle;
    if (!scan.ScanProducer.empty())
        tag.TagProducer = scan.ScanProducer;
    if (!scan.ScanTrack.empty() && tag.TagTrack < 1)
        tag.TagTrack = static_cast<int>(NumericValue(scan.ScanTrack));
}

std::string EntryContentType(const Common& common, std::string_view contentType) {
    if (contentType == kUnknownContentType)
        return "unknown";
    if (contentType == "Audio: unknown")
        return common.settings.defaultAudioType;
    return std::string(contentType);
}

EntryValues ComposeValues(const Common& common, std::string contentType) {
    const TagValues& tag = common.id3;
    const StreamValues& stream = common.stream;
    EntryValues v;
    v.contentType = std::move(contentType);
    v.title = tag.TagTitle;
    v.artist = tag.TagArtist;
    v.album = tag.TagAlbum;
    v.genre = GenreNameFromTag(tag.TagGenre);
    v.producer = tag.TagProducer;
    v.track = std::to_string(tag.TagTrack);
    v.year = std::to_string(tag.TagYear);
    v.comment =
        common.settings.defaultComment.empty() ? tag.TagComment : common.settings.defaultComment;
    v.length = stream.StreamLength;
    v.bitrate = stream.StreamBitrate;
    v.frequency = stream.StreamFrequency;
    v.mode = stream.StreamMode;
    return v;
}

}  // namespace

void AddFileEntry(Common& common, const std::filesystem::path& cfn,
                  const std::filesystem::path& file, std::string_view folderId, bool detag,
                  bool checkDoubles) {
    // The first touch of the file, where a missing one fails: all its facts at once. It
    // is also where every road of an add refuses what is not a regular file (a
    // directory, FIFO, socket or device), before anything would open it.
    FileFacts facts;
    if (!RunFileStep(common, [&] { facts = ReadFileFacts(file); }))
        return;
    ClearReaderValues(common);

    const SplitPathResult parts = SplitPath(CataloguePathFromNative(file.string()));
    const ExtensionContent content = ContentTypeFromExtension(parts.extension);
    const bool sound = content.category == "sound";
    const bool mp3 = content.category == "mp3";
    // The entry names the file with its extension as the content lookup read it (lower
    // case); the file itself is still reached by its own name.
    const std::string fileName =
        parts.hasExtension ? parts.name + "." + content.extension : parts.name;
    const std::string catalogueText = parts.folder + "\\" + fileName;

    if (facts.size < 1 && !common.settings.addNullSizedFiles)
        return;

    // Both readers of an MP3 share one opening of the file.
    std::optional<MediaFile> media;
    if (mp3 && !RunFileStep(common, [&] {
            media.emplace(file);
            AnalyseMP3Stream(common, *media);
        }))
        return;
    if (mp3 && detag) {
        if (common.settings.allowDetagging)
            ReadID3Tag(common, *media);
        if (common.settings.allowFileScan) {
            ScanFileName(common, catalogueText);
            MergeScan(common);
        }
    } else if (detag && sound && common.settings.allowNonMp3Detagging &&
               common.settings.allowFileScan) {
        ScanFileName(common, catalogueText);
        MergeScan(common);
    }

    EntryValues values = ComposeValues(common, EntryContentType(common, content.contentType));
    values.size = std::to_string(facts.size);
    if (!common.volumeLabels)
        common.volumeLabels = std::make_shared<VolumeLabels>();
    values.driveId = common.volumeLabels->labelOfDevice(facts.device);
    values.driveDescription = values.driveId;
    values.date = facts.date;
    RunFileStep(common, [&] {
        AppendEntry(common, cfn, folderId, catalogueText, values, facts.readOnly, checkDoubles);
    });
}

}  // namespace zvx
