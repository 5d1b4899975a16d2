#include "ui/desktop.h"

#include <QDesktopServices>

namespace zvx {

namespace {
class QtDesktop : public Desktop {
  public:
    bool openUrl(const QUrl& url) override { return QDesktopServices::openUrl(url); }
};
}  // namespace

Desktop& SystemDesktop() {
    static QtDesktop desktop;
    return desktop;
}

}  // namespace zvx
