#include "desktop/instruments/ProgramList.h"

#include "desktop/widgets/SearchField.h"

#include <QTreeWidget>
#include <gtest/gtest.h>

namespace velmora {

TEST(ProgramList, KeepsTheProgramIfTheSearchFindsNone)
{
    ProgramList list;
    auto& search = *list.findChild<SearchField*>();
    auto& tree = *list.findChild<QTreeWidget*>();
    list.showProgram(19);
    const QTreeWidgetItem* organ = tree.currentItem();
    search.setText("no such program");
    emit search.returnPressed();
    emit search.left();
    EXPECT_EQ(tree.currentItem(), organ);
    search.setText("violin");
    emit search.returnPressed();
    EXPECT_NE(tree.currentItem(), organ);
}

} // namespace velmora
