#pragma once
// Icons come from the desktop's icon theme; where the theme lacks one (or there is no
// theme at all), the program's own small drawing of the same name stands in.

#include <QIcon>

namespace zvx {

// Makes the program's own icons available; call once after the application is made.
void InitUiResources();

// The theme icon of a freedesktop name ("document-new"), or the program's own.
QIcon ThemeIcon(const QString& name);

}  // namespace zvx
