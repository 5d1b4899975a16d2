#include "csv_import.h"

#include <array>
#include <optional>
#include <unordered_map>
#include <vector>

#include "common/code_page.h"
#include "common/field_text.h"
#include "common/text_case.h"
#include "csv.h"
#include "platform/file_io.h"
#include "store/catalogue_format.h"
#include "store/entry_offset.h"
#include "store/toc.h"

namespace zvx::filters {

namespace {

constexpr const char* kDefaultFolder = "Imported Entries\\";
constexpr int kPlainFolderIcon = 10;

// The record's index of each of the 23 columns, if the header has it.
using ColumnIndexes = std::array<std::optional<size_t>, kCsvColumns.size()>;

std::optional<ColumnIndexes> ReadHeader(const std::vector<std::string>& header) {
    ColumnIndexes indexes;
    bool any = false;
    for (size_t i = 0; i < header.size(); ++i) {
        const std::string name = LowerCase(std::string(Trim(header[i])));
        for (size_t c = 0; c < kCsvColumns.size(); ++c) {
            if (!indexes[c] && name == LowerCase(std::string(kCsvColumns[c]))) {
                indexes[c] = i;
                any = true;
            }
        }
    }
    return any ? std::optional(indexes) : std::nullopt;
}

// A field's text as a catalogue holds it: UTF-8, a line break one blank.
std::string FieldText(std::string_view cell) {
    std::string text = TextAsUtf8(cell);
    for (size_t at; (at = text.find("\r\n")) != std::string::npos;)
        text.replace(at, 2, " ");
    return CleanFieldText(text);
}

// "\Music\\Rock" and "Music\Rock\" are both "Music\Rock\".
std::string FolderPath(std::string_view cell) {
    std::string path;
    std::string name;
    for (char c : FieldText(cell) + "\\") {
        if (c != '\\') {
            name += c;
        } else if (!name.empty()) {
            path += name + "\\";
            name.clear();
        }
    }
    return path.empty() ? kDefaultFolder : path;
}

// The TOC under construction: a folder and its ancestors get IDs as they first appear.
class FolderNumbering {
  public:
    const std::string& idOf(const std::string& path) {
        if (const auto known = ids_.find(path); known != ids_.end())
            return known->second;
        for (size_t end = path.find('\\'); end + 1 < path.size(); end = path.find('\\', end + 1))
            idOf(path.substr(0, end + 1));
        if (ids_.size() > static_cast<size_t>(kFolderIdLimit))
            throw CsvImportError("The table holds more folders than a catalogue can number.");
        const std::string id = NumberedId(ids_.size());
        const TocGroup group = MakeTocGroup(path, "", kPlainFolderIcon, id);
        toc_ += group.path + kLineEnd + group.descriptionLine + kLineEnd + group.id + kLineEnd;
        return ids_.emplace(path, id).first->second;
    }
    const std::string& toc() const { return toc_; }

  private:
    static std::string NumberedId(size_t number) {
        std::string digits = std::to_string(number);
        return std::string(kFolderIdLength - digits.size(), '0') + digits;
    }

    std::unordered_map<std::string, std::string> ids_;
    std::string toc_;
};

}  // namespace

std::string CatalogueFromCsv(std::string_view table) {
    CsvParser parser(table);
    std::vector<std::string> record;
    std::optional<ColumnIndexes> columns;
    if (parser.next(record))
        columns = ReadHeader(record);
    if (!columns)
        throw CsvImportError("The table has no header row naming the entry fields.");
    FolderNumbering folders;
    std::string entries;
    while (parser.next(record)) {
        if (record.size() == 1 && record[0].empty())
            continue;  // an empty line
        const auto cell = [&](size_t column) -> std::string_view {
            const auto& index = (*columns)[column];
            return index && *index < record.size() ? std::string_view(record[*index]) : "";
        };
        entries += folders.idOf(FolderPath(cell(0)));
        for (size_t field = 1; field < kCsvColumns.size(); ++field)
            entries += kFieldSeparator + FieldText(cell(field));
        entries += kLineEnd;
    }
    const std::string& toc = folders.toc();
    const uint64_t entryOffset = kTocStart + toc.size() + 2 + 1;
    return std::string(1, static_cast<char>(kCurrentFormatVersion)) +
           EncodeEntryOffset(entryOffset) + toc + kLineEnd + entries;
}

void ImportCsv(const std::filesystem::path& source, const std::filesystem::path& target) {
    const std::string catalogue = CatalogueFromCsv(ReadFileBytes(source, 0, FileLength(source)));
    WriteEmptyFile(target);
    WriteFileBytes(target, 0, catalogue);
}

}  // namespace zvx::filters
