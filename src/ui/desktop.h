#pragma once
// What the desktop does for the program: open a web link or a file with its default
// program. Behind an interface because tests run where no desktop exists.

#include <QUrl>

namespace zvx {

class Desktop {
  public:
    virtual ~Desktop() = default;
    virtual bool openUrl(const QUrl& url) = 0;
};

// The desktop's own handler (xdg-open through Qt).
Desktop& SystemDesktop();

}  // namespace zvx
