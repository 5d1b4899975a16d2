#pragma once
// The duplicate dialog: the entry already in the folder beside the one being added,
// and four answers. Only the four buttons answer; the close box counts as "Keep old".

#include <string>

#include "common/screen.h"

class QWidget;

namespace zvx {

// Shows the dialog modally and gives "keepold", "keepall", "delold" or "delall".
std::string ShowDoubleDetect(QWidget* parent, const DuplicateQuestion& question);

}  // namespace zvx
