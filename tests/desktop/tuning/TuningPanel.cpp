#include "desktop/tuning/TuningPanel.h"

#include "app/AppDelegate.h"
#include "support/OrganFolder.h"
#include "support/RecordingInstrument.h"

#include <QLabel>
#include <QListWidget>
#include <QtTest>
#include <gmock/gmock.h>

namespace velmora {

using testing::ElementsAre;

namespace {

std::vector<std::string> items(const QListWidget& list)
{
    std::vector<std::string> texts;
    for (int row = 0; row < list.count(); ++row)
        texts.push_back(list.item(row)->text().toStdString());
    return texts;
}

} // namespace

TEST(TuningPanel, KeepsTheOrderAndDuplicateNames)
{
    Calls calls;
    RecordingInstrument instrument(calls);
    AppDelegate application;
    application.makeBuiltinTunings();
    application.setInstrument(instrument, "Recorder");
    TuningPanel panel(application);
    panel.show();
    auto& list = *panel.findChild<QListWidget*>();
    EXPECT_THAT(items(list), ElementsAre("Equal\nTwelve equal semitones",
                                         "Quartercomma Meantone\nPure major thirds",
                                         "Dynamic\nAdapts its thirds to what you play"));
    const OrganFolder folder;
    auto loaded = std::make_unique<TuningDocument>();
    std::string scale = "bent\n12\n";
    for (int i = 1; i <= 12; ++i)
        scale += std::to_string(99 * i) + ".\n";
    ASSERT_TRUE(loaded->read(folder.write("Equal", scale), TuningFormat::Scale));
    application.putTuning(std::move(loaded));
    const auto centsOfCSharp = [&] {
        double cents = 0.0;
        application.player().with([&](Instrument&, Temperament& temperament) {
            cents = temperament.getTuning(1).cent();
        });
        return cents;
    };
    const auto choose = [&](int row) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualItemRect(list.item(row)).center());
        QApplication::processEvents();
    };
    for (const int row : {0, 2}) {
        choose(1);
        choose(row);
        EXPECT_EQ(list.currentRow(), row);
        EXPECT_EQ(centsOfCSharp(), 99.0) << row;
    }
    choose(3);
    EXPECT_THAT(items(list),
                ElementsAre("bent\nEqual", "Quartercomma Meantone\nPure major thirds",
                            "bent\nEqual", "Dynamic\nAdapts its thirds to what you play"));
    EXPECT_EQ(list.currentRow(), 3);
    EXPECT_NEAR(centsOfCSharp(), 76.049, 1e-9);

    EXPECT_TRUE(application.selectTuning("Quartercomma Meantone"));
    EXPECT_EQ(list.currentRow(), 1);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return panel.findChild<QLabel*>()->text() == "C4 (middle C): 261.63 Hz\nA4: 437.40 Hz";
    })) << panel.findChild<QLabel*>()->text().toStdString();
}

} // namespace velmora
