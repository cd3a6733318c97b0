#include "desktop/roll/LyricsPanel.h"

#include "app/Player.h"
#include "sequencer/SequenceDocument.h"
#include "support/MidiBytes.h"

#include <QFile>
#include <QLabel>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace velmora {

TEST(LyricsPanelTest, MarksTheSyllableAtThePositionAndHidesWithoutText)
{
    const QTemporaryDir folder;
    const auto write = [&](const std::string& name, const std::string& events) {
        QFile file(folder.filePath(QString::fromStdString(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromStdString(midi::file(events)));
        return std::filesystem::path(file.fileName().toStdString());
    };
    const auto text = [](std::size_t delta, const std::string& words) {
        return midi::quantity(delta) + midi::bytes({0xFF, 5, static_cast<int>(words.size())}) +
               words;
    };
    Player player;
    SequenceDocument document(player, Reading::Musical);
    LyricsPanel panel(document);
    EXPECT_TRUE(panel.isHidden());

    document.read(write("song.kar", text(0, "Do ") + text(96, "<re") + text(96, "mi\r") +
                                        text(96, "fa") + midi::on(0, 60) + midi::off(96, 60)));
    panel.readLyrics();
    EXPECT_FALSE(panel.isHidden());
    const auto labels = panel.findChildren<QLabel*>();
    ASSERT_EQ(labels.size(), 2);
    document.transport().setPosition(8.0);
    EXPECT_TRUE(labels[0]->text().contains(">&lt;re</span>mi")) << labels[0]->text().toStdString();
    EXPECT_TRUE(labels[0]->text().startsWith("Do ")) << labels[0]->text().toStdString();
    EXPECT_EQ(labels[1]->text(), "fa");

    document.read(write("tune.mid", midi::on(0, 60) + midi::off(96, 60)));
    panel.readLyrics();
    EXPECT_TRUE(panel.isHidden());
}

} // namespace velmora
