#pragma once
// The pictures of the folder icon numbers (the folder table's "Folder" 10,
// "CD(-ROM)/DVD" 4, "HD-Drive" 12 ...), from the desktop theme.

#include <QIcon>

namespace zvx {

QIcon FolderIcon(int iconNumber);

}  // namespace zvx
