#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QTimer>
#include <QTreeView>

#include "document/entry_list_model.h"
#include "document/frmDocument.h"
#include "document/list_appearance_view.h"
#include "store/settings.h"
#include "support/catalogue_bytes.h"
#include "support/temp_folder.h"

namespace zvx {
namespace {

using test::CatalogueBytes;
using test::EntryLineOf;

// A document window over a folder of three entries, its settings written before it opens.
struct ListWindow {
    explicit ListWindow(const std::vector<std::pair<const char*, const char*>>& settings) {
        for (const auto& [key, value] : settings)
            WriteSetting(env.common, key, value);
        test::WriteAll(
            cfn, CatalogueBytes({{"A\\", "", 10, "00000000"}},
                                {EntryLineOf("00000000", {"a"}), EntryLineOf("00000000", {"b"}),
                                 EntryLineOf("00000000", {"c"})}));
        document = std::make_unique<frmDocument>(env.common);
        document->workingCopy = [this] { return cfn; };
        document->refresh_Click();
        document->show();
        list = document->findChild<QTreeView*>("ListView1");
        delegate = qobject_cast<ListLookDelegate*>(list->itemDelegate());
    }

    test::TestEnvironment env;
    std::filesystem::path cfn = env.folder / "Document 1.tmp";
    std::unique_ptr<frmDocument> document;
    QTreeView* list = nullptr;
    ListLookDelegate* delegate = nullptr;
};

TEST(ListAppearance, GridLinesHotTrackingAndHoverSelectionWhenSwitchedOn) {
    ListWindow window(
        {{"LISTVIEWSHOWGRID", "YES"}, {"LISTVIEWHOT", "YES"}, {"LISTVIEWHOVER", "YES"}});
    ASSERT_NE(window.delegate, nullptr);
    EXPECT_TRUE(window.delegate->gridLines());
    EXPECT_TRUE(window.delegate->hotTracking());
    EXPECT_FALSE(window.list->alternatingRowColors());
    EXPECT_TRUE(window.list->viewport()->testAttribute(Qt::WA_Hover));

    // The mouse comes to rest on the second row, which becomes the selection.
    const QPoint at = window.list->visualRect(window.list->model()->index(1, 0)).center();
    QMouseEvent move(QEvent::MouseMove, at, window.list->viewport()->mapToGlobal(at), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window.list->viewport(), &move);
    auto* rest = window.list->findChild<QTimer*>("HoverTimer");
    ASSERT_NE(rest, nullptr);
    ASSERT_TRUE(rest->isActive());
    QMetaObject::invokeMethod(rest, "timeout");
    const QModelIndexList selected = window.list->selectionModel()->selectedRows();
    ASSERT_EQ(selected.size(), 1);
    EXPECT_EQ(selected[0].row(), 1);
}

}  // namespace
}  // namespace zvx
