#pragma once

class QApplication;

namespace zvx {

// The flat look (FLATTENCONTROLS): flat buttons, tool buttons and list headers.
void ApplyFlatLook(QApplication& app, bool flat);

}  // namespace zvx
