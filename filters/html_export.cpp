#include "html_export.h"

#include <map>
#include <vector>

#include "catalogue_entries.h"
#include "platform/file_io.h"

namespace zvx::filters {

namespace {

struct Column {
    const char* caption;
    size_t field;  // 1-based field number
    bool numeric;
};

constexpr Column kColumns[] = {
    {"Name", 1, false},   {"Size", 2, true},     {"Path", 3, false},
    {"Medium", 4, false}, {"Date", 7, false},    {"Content Type", 8, false},
    {"Title", 9, false},  {"Artist", 10, false}, {"Album", 11, false}};

constexpr const char* kHead = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<title>ZVX Catalogue</title>
<style>
body { font-family: sans-serif; font-size: 10pt; margin: 1.5em; }
h2 { font-size: 12pt; margin: 1.5em 0 0.3em; }
table { border-collapse: collapse; width: 100%; }
th, td { border: 1px solid #bbb; padding: 2px 6px; text-align: left; vertical-align: top; }
th { background: #e8e8e8; cursor: pointer; user-select: none; }
th[data-order="asc"]::after { content: " \25B2"; }
th[data-order="desc"]::after { content: " \25BC"; }
td.num { text-align: right; }
@media print {
  body { margin: 0; font-size: 8pt; }
  th { cursor: auto; }
  th::after { content: none !important; }
  h2 { break-after: avoid; }
  tr { break-inside: avoid; }
  thead { display: table-header-group; }
}
</style>
</head>
<body>
<h1>ZVX Catalogue</h1>
)";

// Sorts a table by the clicked column; a second click reverses the order.
constexpr const char* kTail = R"(<script>
document.querySelectorAll("th").forEach(function (th) {
  th.addEventListener("click", function () {
    var table = th.closest("table"), body = table.tBodies[0], i = th.cellIndex;
    var asc = th.dataset.order !== "asc", numeric = th.classList.contains("num");
    table.querySelectorAll("th").forEach(function (h) { delete h.dataset.order; });
    th.dataset.order = asc ? "asc" : "desc";
    var rows = Array.prototype.slice.call(body.rows);
    rows.sort(function (a, b) {
      var x = a.cells[i].textContent, y = b.cells[i].textContent;
      var c = numeric ? (parseFloat(x) || 0) - (parseFloat(y) || 0)
                      : x.localeCompare(y, undefined, {numeric: true, sensitivity: "base"});
      return asc ? c : -c;
    });
    rows.forEach(function (r) { body.appendChild(r); });
  });
});
</script>
</body>
</html>
)";

std::string TableHead() {
    std::string head = "<table>\n<thead><tr>";
    for (const Column& column : kColumns)
        head +=
            std::string(column.numeric ? "<th class=\"num\">" : "<th>") + column.caption + "</th>";
    return head + "</tr></thead>\n<tbody>\n";
}

std::string TableRow(const ExportedEntry& entry) {
    std::string row = "<tr>";
    for (const Column& column : kColumns)
        row += std::string(column.numeric ? "<td class=\"num\">" : "<td>") +
               HtmlEscaped(entry.fields[column.field - 1]) + "</td>";
    return row + "</tr>\n";
}

}  // namespace

std::string HtmlEscaped(std::string_view text) {
    std::string escaped;
    escaped.reserve(text.size());
    for (char c : text) {
        switch (c) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            case '"':
                escaped += "&quot;";
                break;
            case '\'':
                escaped += "&#39;";
                break;
            default:
                escaped += c;
        }
    }
    return escaped;
}

void ExportHtml(const std::filesystem::path& catalogue, const std::filesystem::path& target) {
    // The page groups by folder while the file need not: rows wait by folder path.
    std::map<std::string, std::string> rowsByFolder;
    ForEachExportedEntry(catalogue, [&](const ExportedEntry& entry) {
        rowsByFolder[entry.folder] += TableRow(entry);
    });
    WriteEmptyFile(target);
    AppendWriter out(target);
    out.write(kHead);
    const std::string tableHead = TableHead();
    for (const auto& [folder, rows] : rowsByFolder) {
        out.write("<h2>" + HtmlEscaped(folder.empty() ? "(no folder)" : folder) + "</h2>\n");
        out.write(tableHead);
        out.write(rows);
        out.write("</tbody>\n</table>\n");
    }
    out.write(kTail);
    out.close();
}

}  // namespace zvx::filters
