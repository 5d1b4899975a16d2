#pragma once

#include <string>

namespace zvx {

class Common;

// The name under which the active list's columns are stored (document_view_savecols):
// asked until a name that is not blank is given. A cancelled box gives the empty text
// and so asks again, with "Invalid Name!" in front of the prompt.
std::string AskColumnSettingName(const Common& common);

}  // namespace zvx
