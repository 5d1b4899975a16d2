#include "metadata/scan_scheme.h"

#include <string>

#include "common/field_text.h"
#include "common/text_case.h"

namespace zvx {

namespace {

void RemoveAll(std::string& text, std::string_view token) {
    for (size_t pos = text.find(token); pos != std::string::npos; pos = text.find(token, pos))
        text.erase(pos, token.size());
}

}  // namespace

bool ValidScanScheme(std::string_view scheme) {
    std::string rest = UpperCase(scheme);
    // One token after the other, so that "$$PA" loses "$P" first and then "$A".
    for (std::string_view token : {"$P", "$A", "$S", "$B", "$I", "-"})
        RemoveAll(rest, token);
    return Trim(rest).empty();
}

}  // namespace zvx
