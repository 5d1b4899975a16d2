#pragma once
// The call string of an add-on: everything a run needs, in one text that travels with its
// menu item. The wait mode cut or filled with blanks to exactly 8 characters, the event
// list (each name followed by "#", possibly none), "-", and the command. Since no event
// may hold "-", the first "-" behind the wait mode ends the events, and a command may
// hold "-" freely.

#include <string>
#include <string_view>
#include <vector>

namespace zvx {

inline constexpr size_t kCallModeWidth = 8;

std::string AddOnCallString(std::string_view modal, std::string_view events,
                            std::string_view command);

struct AddOnCall {
    std::string modal;    // the first 8 characters, right-trimmed
    std::string events;   // what stands between the wait mode and the command's "-"
    std::string command;  // everything behind the first "-"
};

// Takes a call string apart. The command is counted from the end, so the events are the
// text between the wait mode and the command's length plus one; a string without "-"
// has the whole rest as command.
AddOnCall SplitAddOnCall(std::string_view call);

// The event calls of a list, in order (EventStart's loop): the text before each "#",
// trimmed and upper-cased, empty ones left out. The first is always taken; after each
// the loop ends when the rest holds no "#" or has 2 characters or fewer, so "REFRESH#X"
// and "REFRESH#A#" are REFRESH alone, while "A#" alone is A.
std::vector<std::string> EventCalls(std::string_view list);

}  // namespace zvx
