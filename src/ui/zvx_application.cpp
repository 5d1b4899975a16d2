#include "ui/zvx_application.h"

namespace zvx {

bool ZvxApplication::notify(QObject* receiver, QEvent* event) {
    if (!onException)
        return QApplication::notify(receiver, event);
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        onException(std::current_exception());
        return false;
    }
}

}  // namespace zvx
