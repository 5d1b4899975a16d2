#include "csv_export.h"

#include "catalogue_entries.h"
#include "csv.h"
#include "platform/file_io.h"

namespace zvx::filters {

void ExportCsv(const std::filesystem::path& catalogue, const std::filesystem::path& target) {
    WriteEmptyFile(target);
    AppendWriter out(target);
    out.write(kUtf8Bom);
    out.write(CsvRecord({kCsvColumns.begin(), kCsvColumns.end()}));
    std::vector<std::string> record(kCsvColumns.size());
    ForEachExportedEntry(catalogue, [&](const ExportedEntry& entry) {
        record[0] = entry.folder;
        std::copy(entry.fields.begin(), entry.fields.end(), record.begin() + 1);
        out.write(CsvRecord(record));
    });
    out.close();
}

}  // namespace zvx::filters
