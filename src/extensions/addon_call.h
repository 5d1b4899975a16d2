#pragma once
// The call string of an add-on: everything a run needs, in one text that travels with its
// menu item. The wait mode cut or filled with blanks to exactly 8 characters, the event
// list (each name followed by "#", possibly none), "-", and the command. Since no event
// may hold "-", the first "-" behind the wait mode ends the events, and a command may
// hold "-" freely.

#include <string>
#include <string_view>

namespace zvx {

inline constexpr size_t kCallModeWidth = 8;

std::string AddOnCallString(std::string_view modal, std::string_view events,
                            std::string_view command);

}  // namespace zvx
