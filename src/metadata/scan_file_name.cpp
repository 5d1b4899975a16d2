#include "metadata/scan_file_name.h"

#include <algorithm>
#include <limits>
#include <vector>

#include "common/common.h"
#include "common/field_text.h"
#include "common/numeric_value.h"
#include "common/text_case.h"
#include "store/split_path.h"

namespace zvx {

namespace {

constexpr std::string_view kNoSuchPosition = "NONE";

// The "-" separated pieces of a text, the piece behind the last "-" included.
std::vector<std::string_view> DashPieces(std::string_view text) {
    std::vector<std::string_view> pieces;
    for (size_t dash = text.find('-'); dash != std::string_view::npos; dash = text.find('-')) {
        pieces.push_back(text.substr(0, dash));
        text.remove_prefix(dash + 1);
    }
    pieces.push_back(text);
    return pieces;
}

std::vector<std::string> SchemePieces(std::string_view scheme) {
    std::vector<std::string> pieces;
    for (std::string_view piece : DashPieces(scheme))
        pieces.push_back(UpperCase(Trim(piece)));
    return pieces;
}

// A name that is valid UTF-8 counts a sequence as one character, any other name one
// byte a character (Windows-1252). The whole name decides, so that each of its parts is
// counted the same way.
class NameCharacters {
  public:
    explicit NameCharacters(std::string_view name) : utf8_(IsValidUtf8(name)) {}

    // A character takes one to four bytes, so only a text of 5 to 16 bytes needs counting.
    bool atMostFour(std::string_view text) const {
        if (text.size() <= 4)
            return true;
        return text.size() <= 16 && (utf8_ ? Characters(text).size() : text.size()) <= 4;
    }

    // The first `count` characters of a part of the name, fewer when it is shorter.
    std::string_view first(std::string_view text, size_t count) const {
        if (!utf8_)
            return text.substr(0, count);
        size_t bytes = 0;
        for (std::string_view ch : Characters(text)) {
            if (count == 0)
                break;
            bytes += ch.size();
            --count;
        }
        return text.substr(0, bytes);
    }

  private:
    bool utf8_;
};

std::string* FieldOf(ScanValues& scan, std::string_view role) {
    if (role == "$A")
        return &scan.ScanArtist;
    if (role == "$S")
        return &scan.ScanTitle;
    if (role == "$B")
        return &scan.ScanAlbum;
    if (role == "$P")
        return &scan.ScanProducer;
    return nullptr;
}

// The parts of one file name, taken in turn and placed by the scheme.
class NameScanner {
  public:
    NameScanner(ScanValues& scan, std::string_view scheme);
    void scan(std::string_view name);

  private:
    void takeToken(std::string token);
    void takeLeadingNumber(std::string& token);
    void placeByScheme(const std::string& token);
    void placeToken(std::string_view token);
    bool tryPlace(std::string_view role, std::string_view token);
    bool isShortNumber(std::string_view token) const;

    ScanValues& scan_;
    NameCharacters characters_{""};
    std::vector<std::string> scheme_;
    // The roles that can take a token, in the order of their first position: walking
    // the positions would find the same first taker each time.
    std::vector<std::string> placeOrder_;
    size_t position_ = 0;
    bool numberPlaced_ = false;
};

NameScanner::NameScanner(ScanValues& scan, std::string_view scheme)
    : scan_(scan), scheme_(SchemePieces(scheme)) {
    for (const std::string& role : scheme_) {
        if (role == kNoSuchPosition)
            break;
        bool takes = role == "$N" || FieldOf(scan_, role);
        if (takes && std::find(placeOrder_.begin(), placeOrder_.end(), role) == placeOrder_.end())
            placeOrder_.push_back(role);
    }
}

void NameScanner::scan(std::string_view name) {
    characters_ = NameCharacters(name);
    for (std::string_view token : DashPieces(name)) {
        // "A -- B" loses nothing and uses no position for the empty part.
        if (!Trim(token).empty())
            takeToken(std::string(token));
    }
}

bool NameScanner::isShortNumber(std::string_view token) const {
    if (!scan_.ScanTrack.empty())
        return false;
    double value = NumericValue(token);
    return value >= 1 && value <= 9999 && characters_.atMostFour(Trim(token));
}

void NameScanner::takeToken(std::string token) {
    // A short number is the track wherever it stands, and uses no position.
    if (isShortNumber(token)) {
        scan_.ScanTrack = NumberText(NumericValue(token));
        return;
    }
    if (scan_.ScanTrack.empty())
        takeLeadingNumber(token);
    placeByScheme(token);
}

// "07 Song" gives the track 7 and leaves " Song"; at most four digits are taken. The cut
// counts characters, so "5é Song" loses the whole "é" with the "5".
void NameScanner::takeLeadingNumber(std::string& token) {
    std::string_view left = LTrim(token);
    if (characters_.first(left, 1).size() == left.size())
        return;  // fewer than two characters
    const size_t count = std::min(LeadingDigitCount(left), 4);
    std::string_view lead = characters_.first(left, count);
    double value = NumericValue(lead);
    if (value < 1 || value > NumericValue(Right("9999", count)))
        return;
    scan_.ScanTrack = NumberText(value);
    token = std::string(left.substr(lead.size()));
}

void NameScanner::placeByScheme(const std::string& token) {
    // Past the scheme's end every position is "NONE"; counting on would change nothing.
    if (position_ <= scheme_.size())
        ++position_;
    std::string_view role = position_ <= scheme_.size() ? scheme_[position_ - 1] : kNoSuchPosition;
    if (role == kNoSuchPosition) {
        // With the first free field filled, the same text also goes into the next one.
        placeToken(token);
        placeToken(token);
    } else if (role == "$N") {
        // Once a $N part was a number, a later $N part that isn't one is dropped.
        if (tryPlace(role, token))
            numberPlaced_ = true;
        if (!numberPlaced_)
            placeToken(token);
    } else if (role != "$I" && !tryPlace(role, token)) {
        placeToken(token);
    }
}

// Puts the token into the role's field when that is empty, or into the track when the
// role is $N and the token a short number.
bool NameScanner::tryPlace(std::string_view role, std::string_view token) {
    if (role == "$N") {
        if (!isShortNumber(token))
            return false;
        scan_.ScanTrack = Trim(token);
        return true;
    }
    std::string* field = FieldOf(scan_, role);
    if (!field || !field->empty())
        return false;
    *field = Trim(token);
    return true;
}

// The first role of the scheme that can take the token, or else the first empty field
// of artist, title, producer and album; when all are filled, the token is lost.
void NameScanner::placeToken(std::string_view token) {
    for (const std::string& role : placeOrder_) {
        if (tryPlace(role, token))
            return;
    }
    for (std::string* field :
         {&scan_.ScanArtist, &scan_.ScanTitle, &scan_.ScanProducer, &scan_.ScanAlbum}) {
        if (field->empty()) {
            *field = Trim(token);
            return;
        }
    }
}

// The file's own folder name, trimmed; a drive ("c:") counts as empty.
std::string FolderName(std::string_view folder) {
    if (folder.ends_with('\\'))
        folder.remove_suffix(1);
    size_t backslash = folder.rfind('\\');
    if (backslash != std::string_view::npos)
        folder.remove_prefix(backslash + 1);
    if (folder.find(':') != std::string_view::npos)
        return {};
    return std::string(Trim(folder));
}

// A folder "Artist - Album - Disc 2" gives the album "Album - Disc 2" and, when the
// name gave none, the artist. A folder "Album -" has no second part and stays.
void SplitArtistFromAlbum(ScanValues& scan) {
    if (scan.ScanAlbum.find('-') == std::string::npos)
        return;
    std::vector<std::string_view> pieces = DashPieces(scan.ScanAlbum);
    std::string artist(Trim(pieces[0]));
    std::string album(Trim(pieces[1]));
    for (size_t i = 2; i < pieces.size(); ++i)
        album.append(" - ").append(Trim(pieces[i]));
    if (album.empty())
        std::swap(artist, album);
    if (artist.empty())
        return;
    scan.ScanAlbum = Trim(album);
    if (scan.ScanArtist.empty())
        scan.ScanArtist = artist;
}

}  // namespace

std::string ScanSchemeToken(std::string_view scheme, int position) {
    std::vector<std::string_view> pieces = DashPieces(scheme);
    if (position < 1 || static_cast<size_t>(position) > pieces.size())
        return std::string(kNoSuchPosition);
    return UpperCase(Trim(pieces[position - 1]));
}

int LeadingDigitCount(std::string_view text) {
    size_t count = 0;
    while (count < text.size() && text[count] >= '0' && text[count] <= '9')
        ++count;
    return count < 3 ? 2
                     : static_cast<int>(std::min<size_t>(count, std::numeric_limits<int>::max()));
}

void ScanFileName(Common& common, std::string_view cataloguePath) {
    const LoadedSettings& settings = common.settings;
    ScanValues& scan = common.scan;
    scan = ScanValues{};
    SplitPathResult parts = SplitPath(cataloguePath);
    if (settings.allowFolderScan)
        scan.ScanAlbum = FolderName(parts.folder);
    std::string name = parts.name;
    std::replace(name.begin(), name.end(), '_', ' ');
    NameScanner(scan, UpperCase(settings.scanScheme)).scan(name);
    if (settings.songGotPriority && scan.ScanTitle.empty() && !scan.ScanArtist.empty())
        std::swap(scan.ScanTitle, scan.ScanArtist);
    if (settings.allowFolderScan)
        SplitArtistFromAlbum(scan);
}

}  // namespace zvx
