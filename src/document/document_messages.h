#pragma once
// The messages of the document lifecycle that more than one step shows.

#include <string>

namespace zvx {

class Common;

inline constexpr const char* kWrongExtensionText = "The file MUST have the extension \".zvx\" !";

// A path that does not end in ".zvx".
void ShowWrongExtension(const Common& common);
// All slots of the document table are used.
void ShowTooManyDocuments(const Common& common);
// The path is the caption of an open document already.
void ShowAlreadyOpen(const Common& common, const std::string& path);
// The version byte is above the current format version.
void ShowVersionError(const Common& common);
// The file could not be read or copied while loading.
void ShowLoadError(const Common& common);
// A save failed.
void ShowUnknownError(const Common& common);

}  // namespace zvx
