#pragma once
// The application object of the window program. Commands run under their own handler;
// this is the last one: an exception that still escapes an event handler, a slot or a
// timer is caught here, before Qt's event loop, and handed to onException.

#include <QApplication>
#include <exception>
#include <functional>

namespace zvx {

class ZvxApplication : public QApplication {
  public:
    ZvxApplication(int& argc, char** argv) : QApplication(argc, argv) {}

    bool notify(QObject* receiver, QEvent* event) override;

    // Tells the failure to the user. Without it an exception passes on, as in any Qt
    // program.
    std::function<void(std::exception_ptr)> onException;
};

}  // namespace zvx
