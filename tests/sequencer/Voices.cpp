#include "sequencer/Voices.h"

#include "audio/Program.h"
#include "base/File.h"
#include "sequencer/LiveKeys.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"
#include "sequencer/UnsavedSequence.h"
#include "support/MidiBytes.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <fstream>

namespace velmora {

namespace {

using midi::bytes;

/// A host that knows how the channels sound.
class VoicesHost : public SequenceHost {
public:
    void play(int /*key*/, float /*velocity*/, int /*channel*/, double /*time*/) override {}
    void stop(int /*key*/, int /*channel*/, double /*time*/) override {}
    void setVoices(const VoiceSounds& voices) override { sounds = voices; }
    LiveKeys& liveKeys() override { return liveKeys_; }

    VoiceSounds sounds{};

private:
    LiveKeys liveKeys_;
};

std::string named(const std::string& name)
{
    return bytes({0, 0xFF, midi::kTrackName, static_cast<int>(name.size())}) + name;
}

class VoicesTest : public testing::Test {
protected:
    VoicesTest()
    {
        const std::string viol = named("Viol ") + bytes({0, 0xB2, 0, 8, 0, 0xC2, 41}) +
                                 bytes({0, 0xB2, 7, 90}) + midi::on(0, 60, 100, 2) +
                                 bytes({10, 0xC2, 7, 0, 0xB2, 7, 20}) + midi::off(10, 60, 2);
        const std::string others = named("Others") + midi::on(0, 60, 100, 3) +
                                   midi::off(10, 60, 3) + bytes({0, 0xC9, 8}) +
                                   midi::on(0, 40, 100, 9) + midi::off(10, 40, 9);
        std::ofstream(path_) << midi::header(1, 2) + midi::track(viol) + midi::track(others);
    }

    const QTemporaryDir folder_;
    const std::filesystem::path path_ = folder_.filePath("five.mid").toStdString();
    VoicesHost host_;
};

} // namespace

TEST_F(VoicesTest, SoundAsTheirFileBeginsThem)
{
    SequenceDocument document(host_);
    document.read(path_);
    document.useVoices();
    EXPECT_EQ(document.voices()[2].name, "Viol");
    EXPECT_EQ(host_.sounds[2].part, (PartSound{PartSound::Preset{8, 41, false}, 90}));
    EXPECT_EQ(document.voices()[3].name, "") << "two voices share that track";
    EXPECT_TRUE(host_.sounds[3].part.isPlain());
    EXPECT_EQ(host_.sounds[9].part.preset, (PartSound::Preset{kDrumKits, 8, true}));

    SequenceDocument plain(host_, Reading::Plain);
    plain.read(path_);
    plain.useVoices();
    EXPECT_EQ(host_.sounds, VoiceSounds{}) << "in the plain reading, one instrument plays all";
}

TEST_F(VoicesTest, AreSavedWhereTheFileHasThem)
{
    SequenceDocument document(host_);
    document.read(path_);
    const std::string before = readTextFile(path_);
    const auto save = [&] {
        return document.save(path_, SequenceFormat::MidiFile,
                             SequenceDocument::SaveOperation::Save);
    };
    ASSERT_TRUE(save());
    EXPECT_EQ(readTextFile(path_), before) << "nothing was edited";

    Voices voices = document.voices();
    voices[2] = {.name = "Viola", .sound = {PartSound::Preset{0, 42, false}, 70}};
    voices[3] = {.name = "Flute", .sound = {PartSound::Preset{3, 73, false}, 100}};
    voices[9].sound.preset->number = 16;
    document.setVoices(voices, "Change Voices");
    ASSERT_TRUE(save());
    SequenceDocument reopened(host_);
    reopened.read(path_);
    EXPECT_EQ(reopened.voices(), voices);
    EXPECT_EQ(reopened.sequence().notes().size(), 3U);
    const std::string after = readTextFile(path_);
    EXPECT_NE(after.find(bytes({10, 0xC2, 7, 0, 0xB2, 7, 20})), std::string::npos)
        << "what changes in the middle of the piece stays";
}

TEST_F(VoicesTest, AreMixedWithoutAnEditAndChangedWithOne)
{
    SequenceDocument document(host_);
    document.read(path_);
    Voices voices = document.voices();
    voices[2].isSolo = voices[3].isMuted = true;
    document.mixVoices(voices);
    EXPECT_TRUE(host_.sounds[2].isAudible);
    EXPECT_FALSE(host_.sounds[9].isAudible) << "another voice is solo";
    EXPECT_FALSE(document.isModified());

    voices[2].sound.volume = 30;
    document.setVoices(voices, "Change Volume");
    EXPECT_EQ(host_.sounds[2].part.volume, 30);
    EXPECT_TRUE(document.isModified());
    voices[2].isSolo = false;
    document.mixVoices(voices);
    EXPECT_FALSE(host_.sounds[3].isAudible);
    document.undoStack().undo();
    EXPECT_EQ(host_.sounds[2].part.volume, 90);
    EXPECT_TRUE(host_.sounds[9].isAudible) << "undo mixes nothing";

    document.undoStack().redo();
    const std::string kept = encodeUnsaved(document.snapshot());
    SequenceDocument restored(host_);
    restored.recover(decodeUnsaved(std::as_bytes(std::span(kept))));
    EXPECT_EQ(restored.voices(), document.voices());
}

TEST_F(VoicesTest, KeepTheirNotesFromEditsWhileTheyAreLocked)
{
    SequenceDocument document(host_);
    document.read(path_);
    SequenceEditor editor(document);
    editor.selectAll();
    Voices voices = document.voices();
    voices[2].isLocked = true;
    document.mixVoices(voices);
    EXPECT_EQ(document.sequence().selection().size(), 2U) << "they are selected no more";
    editor.selectAll();
    editor.moveSelection(12, 0);
    editor.deleteSelection();
    ASSERT_EQ(document.sequence().notes().size(), 1U);
    EXPECT_EQ(document.sequence().notes().front().key, 60U);
    const Note note = document.sequence().notes().front();
    editor.mouseDown({60.5, note.start + note.length / 2}, {});
    EXPECT_TRUE(document.sequence().selection().empty());
    document.undoStack().undo();
    EXPECT_EQ(document.sequence().notes().size(), 3U);
}

} // namespace velmora
