#include "sequencer/Voices.h"

#include "audio/Program.h"
#include "base/File.h"
#include "sequencer/LiveKeys.h"
#include "sequencer/SequenceClock.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"
#include "sequencer/UnsavedSequence.h"
#include "support/MidiBytes.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <fstream>
#include <mutex>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace velmora {

namespace {

using midi::bytes;

/// A host that knows how the channels sound, and with which program each key was played.
class VoicesHost : public SequenceHost {
public:
    using Played = std::vector<std::pair<int, int>>;

    void play(int key, float /*velocity*/, int channel, double /*time*/) override
    {
        const std::lock_guard lock(mutex_);
        played_.emplace_back(key, program(channel));
    }
    void stop(int /*key*/, int /*channel*/, double /*time*/) override {}
    void setVoices(const VoiceSounds& voices) override { sounds = voices; }
    void setProgram(int channel, const std::optional<PartSound::Preset>& preset,
                    double /*time*/) override
    {
        const std::lock_guard lock(mutex_);
        sounds.at(static_cast<std::size_t>(channel)).part.preset = preset;
    }
    void expectPrograms(std::span<const PartSound::Preset> presets) override
    {
        expected = presets.size();
    }
    void setLiveSound(const PartSound& sound) override { live = sound; }
    LiveKeys& liveKeys() override { return liveKeys_; }

    /// Returns the number of a channel's program, or -1 if it plays that of the instrument.
    int program(int channel) const
    {
        const auto& preset = sounds.at(static_cast<std::size_t>(channel)).part.preset;
        return preset ? preset->number : -1;
    }

    /// Returns the keys that were played since the last call, with their programs.
    Played takePlayed()
    {
        const std::lock_guard lock(mutex_);
        return std::exchange(played_, {});
    }

    VoiceSounds sounds{};
    std::size_t expected = 0;
    PartSound live;

private:
    std::mutex mutex_;
    Played played_;
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

    /// Plays a voice whose program changes between two notes, from a step on.
    VoicesHost::Played playChanging(double from)
    {
        double now = 0.0;
        SequenceDocument document(host_, Reading::Musical, [&] { return now; });
        document.read(changing());
        document.transport().setPosition(from);
        document.transport().play();
        while (document.transport().mode() == Transport::Mode::Playing) {
            now += kTick.count();
            document.transport().tick();
        }
        return host_.takePlayed();
    }

    /// Writes a file with that voice. Its notes start at the steps 0 and 4, and it changes its
    /// program at step 3.
    std::filesystem::path changing() const
    {
        const std::string events = bytes({0, 0xB2, 0, 8, 0, 0xC2, 41}) + midi::on(0, 60, 100, 2) +
                                   bytes({36, 0xC2, 7}) + midi::on(12, 62, 100, 2) +
                                   midi::off(12, 60, 2) + midi::off(0, 62, 2);
        std::filesystem::path path = folder_.filePath("changing.mid").toStdString();
        std::ofstream(path) << midi::file(events);
        return path;
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

TEST_F(VoicesTest, KeepTheirNamesBesideANewOne)
{
    SequenceDocument document(host_);
    document.read(path_);
    document.edit()->addNote(
        {.start = 8.0, .length = 4.0, .velocity = 1.0F, .channel = 5, .key = 70});
    document.edit()->addNote({.length = 4.0, .velocity = 1.0F, .channel = 2, .key = 64});
    const auto& notes = std::as_const(document).sequence().notes();
    const auto viol = std::ranges::find(notes, 2U, &Note::channel);
    document.edit()->find(viol->id)->channel = 5;
    document.setControllers({{8.0, 5, midi::kSustain, 127}}, "");
    Voices voices = document.voices();
    voices[5] = {.name = "Horn", .sound = {PartSound::Preset{0, 60, false}, 80}};
    document.setVoices(voices, "");
    ASSERT_TRUE(
        document.save(path_, SequenceFormat::MidiFile, SequenceDocument::SaveOperation::Save));
    SequenceDocument reopened(host_);
    reopened.read(path_);
    EXPECT_EQ(reopened.voices(), voices);
    EXPECT_EQ(std::ranges::count(reopened.sequence().notes(), 5U, &Note::channel), 2);
    EXPECT_EQ(reopened.controllers(), document.controllers());
    const std::string saved = readTextFile(path_);
    EXPECT_EQ(saved.substr(10, 2), bytes({0, 3})) << "it has a track of its own";
    EXPECT_GT(saved.find(bytes({0xB5, midi::kSustain, 127})), saved.find("Horn")) << "on that";
}

TEST_F(VoicesTest, GetTracksOfTheirOwnInAFileThatHadOne)
{
    const auto headerAfter = [&](const auto& edit) {
        std::ofstream(path_) << midi::file(named("Viol ") + midi::on(0, 60, 100, 2) +
                                           midi::off(10, 60, 2));
        SequenceDocument document(host_);
        document.read(path_);
        edit(document);
        EXPECT_TRUE(
            document.save(path_, SequenceFormat::MidiFile, SequenceDocument::SaveOperation::Save));
        return readTextFile(path_).substr(8, 4);
    };
    EXPECT_EQ(headerAfter([](SequenceDocument& document) {
                  document.edit()->addNote({.length = 4.0, .velocity = 1.0F, .channel = 5});
                  Voices voices = document.voices();
                  voices[5].name = "Horn";
                  document.setVoices(voices, "");
              }),
              bytes({0, 1, 0, 2}));
    SequenceDocument reopened(host_);
    reopened.read(path_);
    EXPECT_EQ(reopened.voices()[2].name, "Viol");
    EXPECT_EQ(reopened.voices()[5].name, "Horn");
    EXPECT_EQ(headerAfter([](SequenceDocument& document) { document.edit()->at(0).channel = 5; }),
              bytes({0, 0, 0, 1}))
        << "it still has one voice";
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

TEST_F(VoicesTest, ChangeTheirProgramsWhereThePieceDoes)
{
    EXPECT_THAT(playChanging(0.0),
                testing::ElementsAre(testing::Pair(60, 41), testing::Pair(62, 7)));
    EXPECT_EQ(host_.program(2), 41) << "the position is at the beginning again";
    EXPECT_THAT(playChanging(3.5), testing::ElementsAre(testing::Pair(62, 7)));

    SequenceDocument document(host_);
    document.read(changing());
    document.transport().setPosition(3.5);
    document.useVoices();
    EXPECT_EQ(host_.sounds[2].part.preset, (PartSound::Preset{8, 7, false}));
    EXPECT_EQ(host_.expected, 2U) << "both have to be in tune";
    Voices voices = document.voices();
    voices.arePrograms = false;
    document.mixVoices(voices);
    EXPECT_EQ(host_.program(2), -1);
    document.transport().play();
    EXPECT_EQ(host_.program(2), -1) << "the instrument plays every voice";
}

TEST_F(VoicesTest, ChangeTheirProgramsInEveryPassOfALoop)
{
    SequenceDocument document(host_);
    const SequenceClock clock(document.transport()); // plans the notes
    document.read(changing());
    document.transport().selectInterval(0.0, 6.0);
    document.transport().setLoop(true);
    document.transport().setSpeed(8.0);
    document.transport().play();
    VoicesHost::Played played;
    while (played.size() < 12) {
        QCoreApplication::processEvents();
        for (const auto& one : host_.takePlayed())
            played.push_back(one);
    }
    document.transport().play();
    for (const auto& [key, program] : played)
        EXPECT_EQ(program, key == 60 ? 41 : 7);
}

TEST_F(VoicesTest, SoundLiveWhileTheyAreRecorded)
{
    SequenceDocument document(host_);
    document.read(path_);
    document.setLive(true);
    EXPECT_TRUE(host_.live.isPlain()) << "the first voice has no program";
    document.recorder().setChannel(2);
    EXPECT_EQ(host_.live, document.voices()[2].sound);
    Voices voices = document.voices();
    voices[2].sound.preset->number = 73;
    document.setVoices(voices, "Change Program");
    EXPECT_EQ(host_.live.preset->number, 73);
    document.setLive(false);
    document.undoStack().undo();
    EXPECT_TRUE(host_.live.isPlain()) << "another document is used";
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
    editor.changeVelocityAt({60.5, note.start + note.length / 2}, -0.5);
    EXPECT_EQ(document.sequence().notes().front().velocity, note.velocity);
    document.undoStack().undo();
    EXPECT_EQ(document.sequence().notes().size(), 3U);
}

} // namespace velmora
