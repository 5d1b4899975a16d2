#pragma once
// The dialog for a file that is not where the catalogue says (ZVXPlay02): what it tells
// of the medium the entry was catalogued from, and the four ways out of it.

#include <functional>
#include <string>
#include <string_view>

namespace zvx {

inline constexpr const char* kMissingFileTitle = "File not found on device.";
inline constexpr const char* kMissingFileHeading = "This File was not found on the given device:";
inline constexpr const char* kInsertMediumText =
    "Please insert the medium with the following data into a drive and select the matching "
    "drive-letter.";
inline constexpr const char* kSelectDeviceCaption =
    "Select the device where the file is located on";
inline constexpr const char* kAttemptCaption = "Attempt!";
inline constexpr const char* kSkipAllCaption = "Skip All";
inline constexpr const char* kAbortAllCaption = "Abort All";
inline constexpr const char* kSkipFileCaption = "Skip File";

// "Device ID: <ID>", or "Device ID: <NONE>" for an empty ID.
std::string DeviceIdText(std::string_view deviceId);
// "Device description: <TEXT>", or "Device description: <NONE>" for an empty text.
std::string DeviceDescriptionText(std::string_view description);

// The button that closed the dialog: Attempt only once the file was found and opened.
enum class MissingChoice { Attempt, SkipAll, AbortAll, SkipFile };

struct MissingFile {
    std::string path;  // the full path as the catalogue holds it
    std::string deviceId;
    std::string deviceDescription;
};

// Tries the file on a device (the selector's text as it comes): true when it was found
// there and opened, and the dialog closes; false when it stays, after "No File!".
using AttemptDevice = std::function<bool(const std::string& device)>;

class MissingFileDialog {
  public:
    virtual ~MissingFileDialog() = default;
    // showing: modal until a button other than a failed "Attempt!" closes it.
    virtual MissingChoice showing(const MissingFile& file, const AttemptDevice& attempt) = 0;
};

}  // namespace zvx
