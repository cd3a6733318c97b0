#include "desktop/instruments/ProgramList.h"

#include "audio/Program.h"
#include "desktop/widgets/SearchField.h"

#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <gtest/gtest.h>

#include <vector>

namespace velmora {

TEST(ProgramList, KeepsTheProgramIfTheSearchFindsNone)
{
    ProgramList list;
    std::vector<Program> programs(128);
    for (int number = 0; Program & program : programs)
        program.number = number++;
    list.showPrograms(programs);
    auto& search = *list.findChild<SearchField*>();
    auto& tree = *list.findChild<QTreeWidget*>();
    list.showCurrent(19);
    const QTreeWidgetItem* organ = tree.currentItem();
    search.setText("no such program");
    emit search.returnPressed();
    emit search.left();
    EXPECT_EQ(tree.currentItem(), organ);
    search.setText("violin");
    emit search.returnPressed();
    EXPECT_NE(tree.currentItem(), organ);
}

TEST(ProgramList, GroupsThePresetsOfASoundFontByBanksAndDrumKits)
{
    ProgramList list;
    std::vector<std::size_t> chosen;
    QObject::connect(&list, &ProgramList::chosen,
                     [&](std::size_t position) { chosen.push_back(position); });
    list.showPrograms(std::vector<Program>{{0, 0, "Grand", false},
                                           {8, 4, "Detuned", false},
                                           {128, 0, "Standard", true},
                                           {0, 19, "Church Organ", false}});
    auto& tree = *list.findChild<QTreeWidget*>();
    QStringList texts;
    for (QTreeWidgetItemIterator item(&tree); *item != nullptr; ++item)
        texts += (*item)->text(0);
    EXPECT_EQ(texts, QStringList({"Bank 0", "1 Grand", "20 Church Organ", "Bank 8", "5 Detuned",
                                  "Drum kits", "1 Standard"}));
    list.showCurrent(3);
    EXPECT_EQ(tree.currentItem()->text(0), "20 Church Organ");
    EXPECT_TRUE(chosen.empty()) << "showing is not choosing";
    auto& search = *list.findChild<SearchField*>();
    search.setText("standard");
    emit search.returnPressed();
    EXPECT_EQ(chosen, std::vector<std::size_t>{2});
}

} // namespace velmora
