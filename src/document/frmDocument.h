#pragma once
// A document window: the folder tree on the left, the entry list on the right. Its life
// (working copy, change flag, saving) is the document lifecycle's; the window shows it.

#include <QWidget>
#include <functional>

#include "document/document_view.h"

class QSplitter;
class QTreeView;
class QTreeWidget;

namespace zvx {

class Common;

class frmDocument : public QWidget, public DocumentView {
    Q_OBJECT
  public:
    explicit frmDocument(Common& common, QWidget* parent = nullptr);

    std::string caption() const override;
    void setCaption(const std::string& text) override;
    void refresh_Click() override;
    void Editor_Final_Apply_Changes() override {}

    // Runs the close sequence; installed by the main window. Closing always goes on.
    std::function<void()> onClose;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    Common& common_;
    QSplitter* splitter_;
    QTreeWidget* List2_;
    QTreeView* ListView1_;
};

}  // namespace zvx
