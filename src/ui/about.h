#pragma once
// The about window: version and build, and two links opened in the desktop's browser.

#include <QDialog>

namespace zvx {

class Desktop;

inline constexpr const char* kHomePageUrl = "https://www.morrowfen.example/zvx/";
inline constexpr const char* kNewsPageUrl = "https://www.morrowfen.example/zvx/news/";

class frmAbout : public QDialog {
    Q_OBJECT
  public:
    frmAbout(Desktop& desktop, QWidget* parent = nullptr);
};

// "1.0 (B.0)": major, minor and the build (revision) number.
QString VersionText();

}  // namespace zvx
