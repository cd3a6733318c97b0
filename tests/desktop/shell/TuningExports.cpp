#include "desktop/shell/TuningExports.h"

#include "base/File.h"
#include "desktop/shell/PiecesTest.h"
#include "desktop/shell/SendTuningDialog.h"
#include "desktop/shell/StatusLine.h"
#include "tuning/MappingFile.h"
#include "tuning/ScaleFile.h"
#include "tuning/ScaleTemperament.h"

#include <QPushButton>
#include <QTemporaryDir>

namespace velmora {

using TuningExportsTest = PiecesTest;

TEST_F(TuningExportsTest, WritePiecesAndScalesInTheCurrentTuning)
{
    desktop.launch();
    Tunings& tunings = desktop.application().tunings();
    tunings.select("Quartercomma Meantone");
    tunings.setTransposition({.root = 2, .a = 415.0});
    const QTemporaryDir folder;
    EXPECT_FALSE(action("Export MIDI in This Tuning…").isEnabled());
    open("wolf-fantasia.mid");
    EXPECT_TRUE(action("Export MIDI in This Tuning…").isEnabled());
    naming(folder.filePath("tuned"), [&] { action("Export MIDI in This Tuning…").trigger(); });
    EXPECT_EQ(desktop.workspace().status().currentMessage(), "Exported tuned.mid");
    SequenceDocument tuned(desktop.application().player());
    tuned.read(folder.filePath("tuned.mid").toStdString());
    EXPECT_EQ(tuned.sequence().notes().size(), last->document().sequence().notes().size());

    EXPECT_EQ(QFileInfo(proposal).fileName(), "wolf-fantasia in Quartercomma Meantone.mid");
    naming(folder.filePath("Prelude No.1.mid"), [&] { EXPECT_TRUE(last->saver().saveAs()); });
    naming(folder.filePath("x.ly"), [&] { action("Export Score…").trigger(); });
    EXPECT_EQ(proposal, folder.filePath("Prelude No.1.musicxml"));

    naming(folder.filePath("mine"), [&] { action("Export Tuning…").trigger(); });
    const auto path = [&](const char* name) { return folder.filePath(name).toStdString(); };
    const ScaleTemperament scale(readScale(readFile(path("mine.scl"))),
                                 readMapping(readFile(path("mine.kbm"))));
    desktop.application().player().with([&](const Instrument&, const Temperament& current) {
        for (const unsigned long key : {21UL, 64UL, 69UL, 108UL})
            EXPECT_NEAR(scale.getPitch(key) / current.getPitch(key), 1.0, 1e-9) << key;
    });
}

TEST_F(TuningExportsTest, SendingNeedsAnOutput)
{
    desktop.launch();
    desktop.shell().sendTuning->trigger();
    auto* dialog = desktop.workspace().findChild<SendTuningDialog*>();
    ASSERT_NE(dialog, nullptr);
    const bool hasOutput = !MidiOutput::names().empty();
    for (const auto* button : dialog->findChildren<QAbstractButton*>())
        EXPECT_TRUE(hasOutput || button->text().contains("Close") || !button->isEnabled())
            << button->text().toStdString();
}

} // namespace velmora
