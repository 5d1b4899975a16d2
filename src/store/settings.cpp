#include "store/settings.h"

#include "common/common.h"
#include "common/field_text.h"
#include "common/numeric_value.h"
#include "common/text_case.h"
#include "platform/file_error.h"
#include "platform/file_io.h"
#include "platform/line_reader.h"

namespace zvx {

namespace {

// "KEY=": the start of every line of the key.
std::string KeyPrefix(std::string_view key) {
    return CleanFieldText(UpperCase(key)) + "=";
}

// A stored value is a number only when its decimal text gives back exactly as many
// characters: "0005", "1e3" and "+5" stay texts, and so does "0".
SettingValue StoredValue(std::string_view stored) {
    double number = NumericValue(stored);
    if (number != 0 && Trim(NumberText(number)).size() == Trim(stored).size())
        return SettingValue::Number(number);
    return SettingValue::Text(std::string(stored));
}

// Copies zvx.ini to `out`, each line of the key replaced; false when none stood there.
bool CopyReplacingKey(const std::filesystem::path& ini, std::string_view prefix,
                      std::string_view newLine, AppendWriter& out) {
    bool replaced = false;
    LineReader reader(ini);
    std::string_view line;
    while (reader.next(line)) {
        // Unlike a read, an empty "KEY=" is the key's line too.
        bool fits = line.starts_with(prefix);
        out.writeLine(fits ? newLine : line);
        replaced = replaced || fits;
    }
    return replaced;
}

}  // namespace

SettingValue SettingValue::Number(double value) {
    SettingValue result;
    result.isNumber = true;
    result.number = value;
    return result;
}

SettingValue SettingValue::Text(std::string value) {
    SettingValue result;
    result.text = std::move(value);
    return result;
}

std::string SettingValue::toText() const {
    return isNumber ? NumberText(number) : text;
}

double SettingValue::toNumber() const {
    return isNumber ? number : NumericValue(text);
}

SettingValue ReadSetting(const Common& common, std::string_view key,
                         const SettingValue& defaultValue) {
    const std::string prefix = KeyPrefix(key);
    const std::filesystem::path ini = common.iniFile();
    // A settings file that cannot be made or read is no failure: the defaults apply.
    try {
        TouchFile(ini);
        LineReader reader(ini);
        std::string_view line;
        while (reader.next(line)) {
            // An empty "KEY=" does not count: the default stands for an empty value.
            if (line.size() > prefix.size() && line.starts_with(prefix))
                return StoredValue(line.substr(prefix.size()));
        }
    } catch (const FileError&) {
    }
    return defaultValue;
}

SettingValue ReadSetting(const Common& common, std::string_view key, std::string_view defaultText) {
    return ReadSetting(common, key, SettingValue::Text(std::string(defaultText)));
}

SettingValue ReadSetting(const Common& common, std::string_view key, double defaultNumber) {
    return ReadSetting(common, key, SettingValue::Number(defaultNumber));
}

void WriteSetting(const Common& common, std::string_view key, std::string_view value) {
    const std::string prefix = KeyPrefix(key);
    const std::string newLine = prefix + CleanFieldText(value);
    const std::filesystem::path ini = common.iniFile();
    const std::filesystem::path temp = common.workFile(kIniTempFile);
    WriteEmptyFile(temp);
    TouchFile(ini);
    AppendWriter out(temp);
    if (!CopyReplacingKey(ini, prefix, newLine, out))
        out.writeLine(newLine);
    out.close();
    // The rename keeps either the old or the new zvx.ini in place at every moment; the
    // copy behind it leaves zvxini.tmp standing until the next write or the clean-up.
    ReplaceFile(temp, ini);
    CopyFileBytes(ini, temp);
}

void WriteSetting(const Common& common, std::string_view key, double value) {
    WriteSetting(common, key, NumberText(value));
}

}  // namespace zvx
