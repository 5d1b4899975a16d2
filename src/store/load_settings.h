#pragma once
// The settings the program keeps in process variables, loaded from zvx.ini at start and
// after the options dialog is confirmed.

namespace zvx {

class Common;

// Reads the keys of LoadedSettings in their order, each with its default, into
// common.settings. A scan scheme that is not valid loads as "$A - $S"; a renumbering
// level outside 0 to 3 loads as 1, and level 0 leaves the list's renumbering off
// without reading VIEWRENUMBERING. The settings change only when every read succeeded.
void LoadSettings(Common& common);

}  // namespace zvx
