#include "csv.h"

namespace zvx::filters {

std::string CsvField(std::string_view text) {
    const bool quoted = text.find_first_of(",\"\r\n") != std::string_view::npos ||
                        (!text.empty() && (text.front() == ' ' || text.back() == ' '));
    if (!quoted)
        return std::string(text);
    std::string field = "\"";
    for (char c : text)
        field += c == '"' ? std::string("\"\"") : std::string(1, c);
    return field + "\"";
}

std::string CsvRecord(const std::vector<std::string>& fields) {
    std::string record;
    for (size_t i = 0; i < fields.size(); ++i)
        record += (i ? "," : "") + CsvField(fields[i]);
    return record + "\r\n";
}

CsvParser::CsvParser(std::string_view text) : text_(text) {
    if (text_.starts_with(kUtf8Bom))
        pos_ = kUtf8Bom.size();
}

bool CsvParser::next(std::vector<std::string>& record) {
    record.clear();
    if (pos_ >= text_.size())
        return false;
    std::string field;
    bool inQuotes = false;
    bool quotedField = false;
    while (pos_ < text_.size()) {
        const char c = text_[pos_++];
        if (inQuotes) {
            if (c != '"')
                field += c;
            else if (pos_ < text_.size() && text_[pos_] == '"')
                field += text_[pos_++];
            else
                inQuotes = false;
        } else if (c == '"' && field.empty() && !quotedField) {
            inQuotes = quotedField = true;
        } else if (c == ',') {
            record.push_back(std::move(field));
            field.clear();
            quotedField = false;
        } else if (c == '\n' || (c == '\r' && pos_ < text_.size() && text_[pos_] == '\n')) {
            pos_ += c == '\r';
            break;
        } else {
            field += c;
        }
    }
    record.push_back(std::move(field));
    return true;
}

}  // namespace zvx::filters
