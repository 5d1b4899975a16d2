#pragma once
// The shared file dialog in its five modes, expshowing: "load", "import", "save",
// "export" and "add". Each mode fixes the title, the action button, the filters, the
// start folder and whether the dialog opens or saves.

#include <string>
#include <string_view>

#include "common/screen.h"

namespace zvx {

class Common;

// The dialog of a mode. "load" and "save" start in `callerStartFolder`; "import",
// "export" and "add" in the last load, save and add path. `proposedName` is the name
// a save dialog offers. Open dialogs ("load", "import", "add") show the read-only box,
// and "add" takes several files. Throws std::invalid_argument for an unknown mode.
FileDialogRequest ExpShowingRequest(std::string_view mode, const Common& common,
                                    const std::string& callerStartFolder,
                                    const std::string& proposedName);

// Stores the folder of the first chosen file as the last load path ("load", "import"),
// the last save path ("save", "export") or the last add path ("add"). A cancelled
// dialog stores nothing.
void RememberDialogFolder(Common& common, std::string_view mode, const FileDialogResult& result);

// Shows the dialog of a mode through the Screen and remembers its folder. The result
// has no paths when the user cancelled.
FileDialogResult expshowing(Common& common, std::string_view mode,
                            const std::string& callerStartFolder = "",
                            const std::string& proposedName = "");

}  // namespace zvx
