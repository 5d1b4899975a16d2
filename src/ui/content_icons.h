#pragma once
// The pictures of the entry list's icon indexes (1 audio, 4 text, 10 image, 18 unknown
// ...), from the desktop theme.

#include <QIcon>

namespace zvx {

// Cached: the list asks for one for every row it paints.
const QIcon& ContentIcon(int iconIndex);

}  // namespace zvx
