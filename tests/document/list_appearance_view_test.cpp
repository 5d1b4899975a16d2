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

TEST(ListAppearance, GridLinesHotTrackingAndHoverSelectionWhenSwitchedOn) {
    test::TestEnvironment env;
    for (const char* key : {"LISTVIEWSHOWGRID", "LISTVIEWHOT", "LISTVIEWHOVER"})
        WriteSetting(env.common, key, "YES");
    const std::filesystem::path cfn = env.folder / "Document 1.tmp";
    test::WriteAll(cfn,
                   CatalogueBytes({{"A\\", "", 10, "00000000"}},
                                  {EntryLineOf("00000000", {"a"}), EntryLineOf("00000000", {"b"}),
                                   EntryLineOf("00000000", {"c"})}));
    frmDocument document(env.common);
    document.workingCopy = [&] { return cfn; };
    document.refresh_Click();
    document.show();
    auto* list = document.findChild<QTreeView*>("ListView1");
    auto* delegate = qobject_cast<ListLookDelegate*>(list->itemDelegate());
    ASSERT_NE(delegate, nullptr);
    EXPECT_TRUE(delegate->gridLines());
    EXPECT_TRUE(delegate->hotTracking());
    EXPECT_FALSE(list->alternatingRowColors());
    EXPECT_TRUE(list->viewport()->testAttribute(Qt::WA_Hover));

    // The mouse comes to rest on the second row, which becomes the selection.
    const QPoint at = list->visualRect(list->model()->index(1, 0)).center();
    QMouseEvent move(QEvent::MouseMove, at, list->viewport()->mapToGlobal(at), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(list->viewport(), &move);
    auto* rest = list->findChild<QTimer*>("HoverTimer");
    ASSERT_NE(rest, nullptr);
    ASSERT_TRUE(rest->isActive());
    QMetaObject::invokeMethod(rest, "timeout");
    const QModelIndexList selected = list->selectionModel()->selectedRows();
    ASSERT_EQ(selected.size(), 1);
    EXPECT_EQ(selected[0].row(), 1);
}

}  // namespace
}  // namespace zvx
