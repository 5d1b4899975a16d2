#include "catalogue_generator.h"

#include <array>
#include <cstdio>
#include <random>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_io.h"
#include "store/catalogue_format.h"
#include "store/entry_line.h"
#include "store/entry_offset.h"
#include "store/folder_id.h"
#include "store/toc.h"

namespace zvx::bench {

namespace {

constexpr int kPlainFolderIcon = 10;
constexpr int kRenumberingLevel = 1;

// Artists are a first and a second word: 256 names.
constexpr std::array<std::string_view, 16> kArtistFirst = {
    "Morning", "Velvet", "Silver", "Quiet", "Copper", "Paper", "Low",    "Harbour",
    "Rosa",    "Jon",    "Lina",   "Maren", "Tom",    "Ada",   "Little", "Northern"};
constexpr std::array<std::string_view, 16> kArtistSecond = {
    "Tide", "Orchard", "Kestrel", "Engines", "Hill",    "Boats", "Meridian", "Lights",
    "Vane", "Marsh",   "Brook",   "Holt",    "Ashdown", "Quill", "Lanterns", "Roads"};
constexpr std::array<std::string_view, 20> kWords = {
    "Summer", "Rain", "Night",   "Heart",  "River", "Light",   "Home",   "Road",  "Fire", "Dream",
    "Blue",   "Gold", "Falling", "Window", "Echo",  "Morning", "Shadow", "Stone", "Wild", "Paper"};
constexpr std::array<std::string_view, 10> kGenres = {
    "Rock",       "Pop",  "Jazz",       "Blues",   "Classical",
    "Electronic", "Folk", "Soundtrack", "Hip-Hop", "Country"};
constexpr std::array<std::string_view, 8> kEvents = {
    "Holiday", "Birthday", "Wedding", "Garden", "Mountains", "Beach", "Christmas", "City Trip"};
constexpr std::array<std::string_view, 8> kTopics = {"Invoices", "Letters", "Reports", "Manuals",
                                                     "Taxes",    "Recipes", "School",  "Projects"};
constexpr std::array<std::string_view, 8> kDocumentWords = {
    "report", "letter", "invoice", "notes", "summary", "manual", "budget", "minutes"};

enum class Kind { Music, Photos, Documents };

struct Folder {
    std::string path;  // "Music\Artist\Album\"
    std::string id;
    Kind kind = Kind::Music;
    int depth = 1;
    std::string artist;
    std::string album;
};

// std::mt19937_64 gives the same sequence everywhere; the distributions of the standard
// library do not, so numbers are drawn by remainder.
class Random {
  public:
    explicit Random(uint64_t seed) : engine_(seed) {}
    uint64_t below(uint64_t limit) { return engine_() % limit; }
    uint64_t between(uint64_t low, uint64_t high) { return low + below(high - low + 1); }
    template <size_t N>
    std::string pick(const std::array<std::string_view, N>& words) {
        return std::string(words[below(N)]);
    }

  private:
    std::mt19937_64 engine_;
};

std::string Artist(Random& random) {
    return random.pick(kArtistFirst) + " " + random.pick(kArtistSecond);
}

std::string TwoDigits(uint64_t n) {
    return (n < 10 ? "0" : "") + std::to_string(n);
}

std::string DateText(Random& random, uint64_t firstYear) {
    return TwoDigits(random.between(1, 12)) + "-" + TwoDigits(random.between(1, 28)) + "-" +
           std::to_string(random.between(firstYear, 2023));
}

// The name unique among the folder paths; a taken one gets " 2", " 3" ...
std::string UniquePath(std::set<std::string>& taken, const std::string& parent,
                       const std::string& name) {
    std::string path = parent + name + "\\";
    for (int n = 2; !taken.insert(path).second; ++n)
        path = parent + name + " " + std::to_string(n) + "\\";
    return path;
}

Folder ChildFolder(Random& random, std::set<std::string>& taken, const Folder& parent) {
    Folder folder = parent;
    folder.depth = parent.depth + 1;
    std::string name;
    if (parent.kind == Kind::Music && parent.depth == 1) {
        folder.artist = Artist(random);
        name = folder.artist;
    } else if (parent.kind == Kind::Music) {
        folder.album = random.pick(kWords) + " " + random.pick(kWords);
        name = folder.album;
    } else if (parent.kind == Kind::Photos && parent.depth == 1) {
        name = std::to_string(random.between(1998, 2023));
    } else if (parent.kind == Kind::Photos) {
        name = random.pick(kEvents);
    } else {
        name =
            parent.depth == 1 ? random.pick(kTopics) : std::to_string(random.between(2000, 2023));
    }
    folder.path = UniquePath(taken, parent.path, name);
    return folder;
}

// Three roots, then folders under a random folder of depth 1 or 2, music most often.
std::vector<Folder> MakeFolders(Random& random, uint64_t count) {
    std::set<std::string> taken;
    std::vector<Folder> folders;
    const Kind kinds[] = {Kind::Music, Kind::Photos, Kind::Documents};
    const char* roots[] = {"Music", "Photos", "Documents"};
    std::vector<size_t> parents[3];
    for (size_t k = 0; k < 3 && folders.size() < count; ++k) {
        folders.push_back({UniquePath(taken, "", roots[k]), "", kinds[k], 1, "", ""});
        parents[k].push_back(k);
    }
    while (folders.size() < count) {
        uint64_t roll = random.below(100);
        size_t k = roll < 60 ? 0 : roll < 85 ? 1 : 2;
        const Folder parent = folders[parents[k][random.below(parents[k].size())]];
        if (parent.depth == 1)
            parents[k].push_back(folders.size());
        folders.push_back(ChildFolder(random, taken, parent));
    }
    for (size_t i = 0; i < folders.size(); ++i)
        folders[i].id = FolderIdText(i);
    return folders;
}

void MusicValues(Random& random, const Folder& folder, EntryValues& v, std::string& name) {
    v.artist = folder.artist.empty() ? Artist(random) : folder.artist;
    v.title = random.pick(kWords) + " " + random.pick(kWords);
    v.album = folder.album;
    name = v.artist + " - " + v.title + ".mp3";
    v.size = std::to_string(random.between(2000000, 12000000));
    v.driveId = "MUSIC" + TwoDigits(random.below(40));
    v.driveDescription = "Music disc " + std::to_string(random.between(1, 40));
    v.contentType = random.below(10) < 8 ? "Audio: Album" : "Audio: Compilation";
    v.genre = random.pick(kGenres);
    v.track = std::to_string(random.between(1, 15));
    v.year = std::to_string(random.between(1965, 2023));
    v.length = std::to_string(random.between(1, 9)) + ":" + TwoDigits(random.below(60));
    v.bitrate = std::to_string(std::array{128, 160, 192, 256, 320}[random.below(5)]);
    v.frequency = random.below(4) == 0 ? "48000" : "44100";
    v.mode = random.below(3) == 0 ? "Stereo" : "Joint-Stereo";
}

// What an entry that is not audio holds in the audio fields.
void NoAudio(EntryValues& v) {
    v.genre = "<unknown>";
    v.track = "0";
    v.year = "0";
    v.bitrate = "0";
    v.frequency = "0";
}

void PhotoValues(Random& random, EntryValues& v, std::string& name) {
    name = "IMG_" + std::to_string(random.between(1000, 9999)) + ".jpg";
    v.size = std::to_string(random.between(400000, 6000000));
    v.driveId = "PHOTOS";
    v.driveDescription = "Photo archive";
    v.contentType = "Document: Image";
    NoAudio(v);
}

struct DocumentType {
    std::string_view extension;
    std::string_view contentType;
};
constexpr std::array<DocumentType, 5> kDocumentTypes = {{{"doc", "Document: Text"},
                                                         {"txt", "Document: Text"},
                                                         {"htm", "Document: Html"},
                                                         {"zip", "Document: Compressed File"},
                                                         {"pdf", "unknown"}}};

void DocumentValues(Random& random, EntryValues& v, std::string& name) {
    const DocumentType& type = kDocumentTypes[random.below(kDocumentTypes.size())];
    name = random.pick(kDocumentWords) + " " + std::to_string(random.between(1, 400)) + "." +
           std::string(type.extension);
    v.size = std::to_string(random.between(2000, 900000));
    v.driveId = "BACKUP" + TwoDigits(random.below(12));
    v.driveDescription = "Backup";
    v.contentType = std::string(type.contentType);
    NoAudio(v);
}

std::string EntryLine(Random& random, const Folder& folder) {
    EntryValues v;
    std::string name;
    if (folder.kind == Kind::Music)
        MusicValues(random, folder, v, name);
    else if (folder.kind == Kind::Photos)
        PhotoValues(random, v, name);
    else
        DocumentValues(random, v, name);
    v.date = DateText(random, folder.kind == Kind::Music ? 1998 : 2003);
    const char* drive = folder.kind == Kind::Music    ? "C:\\"
                        : folder.kind == Kind::Photos ? "D:\\"
                                                      : "E:\\";
    return ComposeEntryLine(folder.id, drive + folder.path + name, v, random.below(20) == 0,
                            kRenumberingLevel);
}

// The header and the TOC; the entry offset points just behind the TOC's empty line.
std::string HeadBytes(Random& random, const std::vector<Folder>& folders) {
    std::string toc;
    for (const Folder& folder : folders) {
        std::string description = random.below(8) == 0 ? "Collection " + folder.id : "";
        TocGroup group = MakeTocGroup(folder.path, description, kPlainFolderIcon, folder.id);
        toc += group.path + kLineEnd + group.descriptionLine + kLineEnd + group.id + kLineEnd;
    }
    toc += kLineEnd;
    std::string head(1, static_cast<char>(kCurrentFormatVersion));
    head += EncodeEntryOffset(kHeaderSize + toc.size() + 1);
    return head + toc;
}

// Runs of 1 to 20 entries of a random folder, as adding runs leave them.
void WriteEntries(Random& random, const std::vector<Folder>& folders, uint64_t count,
                  AppendWriter& out) {
    for (uint64_t written = 0; written < count;) {
        const Folder& folder = folders[random.below(folders.size())];
        for (uint64_t run = random.between(1, 20); run > 0 && written < count; --run, ++written)
            out.writeLine(EntryLine(random, folder));
    }
}

}  // namespace

void GenerateCatalogue(const std::filesystem::path& out, const CatalogueShape& shape) {
    if (shape.folders == 0)
        throw std::invalid_argument("a catalogue needs a folder");
    Random random(shape.seed);
    const std::vector<Folder> folders = MakeFolders(random, shape.folders);
    std::filesystem::path part = out;
    part += ".part";
    WriteEmptyFile(part);
    AppendWriter writer(part);
    writer.write(HeadBytes(random, folders));
    WriteEntries(random, folders, shape.entries, writer);
    writer.close();
    if (ReadEntryOffset(part) != FindTocEnd(part))
        throw std::logic_error("the generated entry offset misses the TOC's end");
    std::filesystem::rename(part, out);
}

}  // namespace zvx::bench
