#pragma once
// zvx.ini: one KEY=value line a key, keys upper-cased, lines kept in the order of their
// first writing, unknown lines kept by a write and ignored by a read. There is no cache:
// every read scans the file and every write rewrites it.

#include <string>
#include <string_view>

namespace zvx {

class Common;

// The copy that a write builds, in the work folder; it stays behind after the write.
inline constexpr const char* kIniTempFile = "zvxini.tmp";

// What a read gives: a number when the stored value is entirely a non-zero number,
// otherwise the text ("0", "0005" and "1e3" are texts, "5" and "1.5" numbers).
struct SettingValue {
    bool isNumber = false;
    double number = 0;
    std::string text;

    static SettingValue Number(double value);
    static SettingValue Text(std::string value);

    // The value as text: the text, or the number's decimal text.
    std::string toText() const;
    // The value as a number: the number, or the text's numeric value.
    double toNumber() const;
    // A yes/no setting is on only when its text is "YES".
    bool isYes() const { return toText() == "YES"; }
};

// The stored value of the key, or `defaultValue` when no line "KEY=" with a non-empty
// value stands in the file. Creates an empty zvx.ini when there is none. A file that
// cannot be made or read gives the default.
SettingValue ReadSetting(const Common& common, std::string_view key,
                         const SettingValue& defaultValue);
SettingValue ReadSetting(const Common& common, std::string_view key, std::string_view defaultText);
SettingValue ReadSetting(const Common& common, std::string_view key, double defaultNumber);

// Replaces every line of the key (an empty "KEY=" included) by KEY=value, or appends
// it. Rewrites zvx.ini through zvxini.tmp in the work folder. CR, LF and 01 in the key
// or the value become blanks, so that a value can never break the file into lines.
// A number is written as its decimal text. Throws FileError when the file cannot be
// written.
void WriteSetting(const Common& common, std::string_view key, std::string_view value);
void WriteSetting(const Common& common, std::string_view key, double value);

}  // namespace zvx
