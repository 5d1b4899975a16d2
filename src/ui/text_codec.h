#pragma once
// Catalogue text to Qt and back. A text that is valid UTF-8 is UTF-8; any other is
// Windows-1252 (catalogues written on Windows). What this program writes is UTF-8.

#include <QString>
#include <string>
#include <string_view>

namespace zvx {

QString ToQString(std::string_view text);
std::string FromQString(const QString& text);

}  // namespace zvx
