#include "desktop/tuning/TuningPanel.h"

#include "app/AppDelegate.h"
#include "desktop/widgets/SearchField.h"
#include "support/OrganFolder.h"
#include "support/RecordingInstrument.h"

#include <QLabel>
#include <QTreeWidget>
#include <QtTest>
#include <gmock/gmock.h>

namespace velmora {

using testing::ElementsAre;
using testing::StartsWith;

namespace {

/// Returns the tunings of the first group.
std::vector<std::string> items(const QTreeWidget& tree)
{
    std::vector<std::string> texts;
    const QTreeWidgetItem& group = *tree.topLevelItem(0);
    for (int row = 0; row < group.childCount(); ++row)
        texts.push_back(group.child(row)->text(0).toStdString());
    return texts;
}

} // namespace

TEST(TuningPanel, KeepsTheOrderAndDuplicateNames)
{
    Calls calls;
    RecordingInstrument instrument(calls);
    AppDelegate application;
    application.tunings().addBuiltins();
    application.setInstrument(instrument, "Recorder");
    TuningPanel panel(application);
    panel.show();
    auto& list = *panel.findChild<QTreeWidget*>();
    EXPECT_THAT(items(list), ElementsAre("Equal\nTwelve equal semitones",
                                         "Quartercomma Meantone\nPure major thirds",
                                         "Dynamic\nAdapts its thirds to what you play",
                                         StartsWith("Following Meantone\n"), StartsWith("Pure\n")));
    const OrganFolder folder;
    auto loaded = std::make_unique<TuningDocument>();
    std::string scale = "bent\n12\n";
    for (int i = 1; i <= 12; ++i)
        scale += std::to_string(99 * i) + ".\n";
    ASSERT_TRUE(loaded->read(folder.write("Equal", scale), TuningFormat::Scale));
    application.tunings().put(std::move(loaded));
    const auto centsOfCSharp = [&] {
        double cents = 0.0;
        application.player().with([&](Instrument&, Temperament& temperament) {
            cents = temperament.getTuning(1).cent();
        });
        return cents;
    };
    const auto currentRow = [&] { return list.topLevelItem(0)->indexOfChild(list.currentItem()); };
    const auto choose = [&](int row) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualItemRect(list.topLevelItem(0)->child(row)).center());
        QApplication::processEvents();
    };
    for (const int row : {0, 2}) {
        choose(1);
        choose(row);
        EXPECT_EQ(currentRow(), row);
        EXPECT_EQ(centsOfCSharp(), 99.0) << row;
    }
    choose(3);
    EXPECT_THAT(items(list),
                ElementsAre("bent\nEqual", "Quartercomma Meantone\nPure major thirds",
                            "bent\nEqual", "Dynamic\nAdapts its thirds to what you play",
                            StartsWith("Following Meantone\n"), StartsWith("Pure\n")));
    EXPECT_EQ(currentRow(), 3);
    EXPECT_NEAR(centsOfCSharp(), 76.049, 1e-9);

    EXPECT_TRUE(application.tunings().select("Quartercomma Meantone"));
    EXPECT_EQ(currentRow(), 1);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return panel.findChild<QLabel*>()->text() == "C4 (middle C): 261.63 Hz\nA4: 437.40 Hz";
    })) << panel.findChild<QLabel*>()->text().toStdString();

    auto& search = *panel.findChild<SearchField*>();
    search.setText("1779 kirnberger");
    emit search.returnPressed();
    QApplication::processEvents();
    EXPECT_EQ(application.tunings().name(), "Kirnberger III");
    EXPECT_EQ(items(list).size(), 6U) << "it stays in its group";
}

TEST(TuningPanel, ChoosesAnAdaptiveTuningThatWasNeverUsed)
{
    Calls calls;
    RecordingInstrument instrument(calls);
    AppDelegate application;
    application.tunings().addBuiltins();
    application.setInstrument(instrument, "Recorder");
    TuningPanel panel(application);
    panel.show();
    auto& list = *panel.findChild<QTreeWidget*>();
    const std::vector<std::string> before = items(list);
    QTreeWidgetItem* group = list.topLevelItem(0);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(group->child(3)).center());
    QApplication::processEvents();
    EXPECT_EQ(application.tunings().name(), "Following Meantone");
    EXPECT_EQ(items(list), before);
    EXPECT_EQ(list.topLevelItem(0)->indexOfChild(list.currentItem()), 3);

    auto& search = *panel.findChild<SearchField*>();
    search.setText("pure");
    emit search.returnPressed();
    QApplication::processEvents();
    EXPECT_EQ(application.tunings().name(), "Pure") << "not the first that says \"pure thirds\"";
}

} // namespace velmora
