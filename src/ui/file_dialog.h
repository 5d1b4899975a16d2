#pragma once
// The shared file dialog of every mode, with the read-only box of the open dialogs.

#include <QString>

#include "common/screen.h"

class QWidget;

namespace zvx {

FileDialogResult ShowFileDialog(QWidget* parent, const FileDialogRequest& request);

// The dialog's filter text for a label and its patterns; "*.*" becomes "*", which is
// what takes every name here.
QString FilterText(const std::string& label, const std::string& patterns);

}  // namespace zvx
