#pragma once
// Import (.zvi) and export (.zve) filters as the exchange dialogs list them, scanned each
// time a dialog loads. Tags are matched in lower case ("<name>", "<requires>", "<exe>",
// "<description>", "<copyright>", "<version>", "<suffix>" ... "</suffix>"), written in
// any case, and values keep the case of the file. Unlike plug-ins and add-ons, a filter
// that needs a newer extension interface than this program's is refused.

#include <string>
#include <vector>

namespace zvx {

class Common;

enum class FilterKind { Import, Export };

// The declaration file name of the built-in filter's row.
inline constexpr const char* kBuiltInFilterFile = "*INTERNAL1*";

struct FilterRow {
    std::string name;
    // The declaration's file name (the dialog's hidden list), kBuiltInFilterFile for
    // the built-in filter.
    std::string fileName;
    std::string requiredVersion;  // "<requires>", as written
};

// The built-in filter first, then each declaration with a name that is not refused, in
// name order. A filter that needs a newer interface is told in the "Version Error!" box
// through the Screen.
std::vector<FilterRow> ScanFilters(const Common& common, FilterKind kind);

// The call string that runs an external filter by the add-on protocol: the wait mode
// "fast" when a line of the declaration begins "<modal>fast", otherwise "yes"; no event
// calls; the declaration's "<exe>".
std::string FilterCallString(const Common& common, const std::string& fileName);

// The details pane of a filter's row.
struct FilterDetails {
    std::string exe;  // export filters only
    std::string fileTypes;
    std::string description;
    std::string copyright;
    std::string version;
};

// The details of the row's declaration, or of the built-in filter.
FilterDetails ReadFilterDetails(const Common& common, FilterKind kind, const std::string& fileName);

}  // namespace zvx
