#include "base/File.h"
#include "base/FormatError.h"
#include "platform/pathNames.h"
#include "sequencer/RecoveryKeeper.h"
#include "sequencer/SequenceEditor.h"
#include "sequencer/SequenceFile.h"
#include "support/ChildProcess.h"
#include "support/MidiBytes.h"
#include "support/SequenceTest.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <algorithm>
#include <fstream>
#include <random>

namespace velmora {

namespace {

using namespace std::chrono_literals;

constexpr auto kSave = SequenceDocument::SaveOperation::Save;
constexpr auto kSaveAs = SequenceDocument::SaveOperation::SaveAs;

class SequenceSaving : public SequenceTest {
protected:
    void draw(std::size_t notes)
    {
        const Note note{.length = 1.0, .velocity = 1.0F, .key = 60};
        std::vector<Note> drawn;
        while (drawn.size() < notes)
            drawn.push_back(document_.edit()->addNote(note));
        document_.registerDone(absent(drawn), "Draw");
    }

    bool save() { return document_.save(path_, SequenceFormat::MidiFile, kSave); }

    std::size_t savedNotes() const
    {
        Sequence sequence;
        readSequence(readStandardMidiFile(readFile(path_)), 0, 127, sequence);
        return sequence.notes().size();
    }

    /// Runs the event loop until the recovery folder has a number of files, without those that are
    /// being written. Returns false if it never has.
    bool waitFor(int files) const
    {
        std::error_code none;
        const auto count = [&] {
            const std::filesystem::directory_iterator entries(kept_, none);
            return std::count_if(begin(entries), end(entries), [](const auto& entry) {
                const auto extension = entry.path().extension();
                return extension == ".unsaved" || extension == ".lock";
            });
        };
        for (int i = 0; i < 5000 && count() != files; ++i) {
            QCoreApplication::processEvents();
            usleep(1000);
        }
        return count() == files;
    }

    const QTemporaryDir temporary_;
    const std::filesystem::path folder_ = temporary_.path().toStdString();
    const std::filesystem::path kept_ = folder_ / "recovery";
    const std::filesystem::path path_ = folder_ / "a.mid";
};

} // namespace

TEST(UnsavedSequence, DecodesExactlyOrRejects)
{
    const Note before{.start = 1.0 / 3.0,
                      .length = 1e-9,
                      .oldLength = 7.25,
                      .velocity = 0.7F,
                      .channel = 19,
                      .key = 127,
                      .oldStart = 0.1,
                      .oldKey = 126,
                      .origin = 7};
    const decltype(UnsavedSequence::time) time(1234567890123ms);
    const std::string bytes = encodeUnsaved({"/tmp/Fug\xFF.mid", time, true, {before, Note{}}});
    const auto decode = [](const std::string& kept) {
        return decodeUnsaved(std::as_bytes(std::span(kept)));
    };
    const UnsavedSequence after = decode(bytes);
    EXPECT_EQ(std::tie(after.time, after.isImported), std::tuple(time, true));
    EXPECT_EQ(after.path, "/tmp/Fug\xFF.mid");
    ASSERT_EQ(after.notes.size(), 2U);
    const auto all = [](const Note& n) {
        return std::tie(n.start, n.length, n.oldStart, n.oldLength, n.velocity, n.channel, n.key,
                        n.oldKey, n.origin);
    };
    EXPECT_EQ(all(after.notes[0]), all(before));

    for (std::size_t size = 0; size < bytes.size(); ++size)
        EXPECT_THROW(decode(bytes.substr(0, size)), FormatError) << size;
    EXPECT_THROW(decode(bytes + "x"), FormatError);
    std::string wrong = bytes; // with NaN as the start of the last note
    wrong.replace(bytes.size() - 56, 2, "\x7F\xF8");
    EXPECT_THROW(decode(wrong), FormatError);
    const Note far{.start = -1e300, .length = 1e300, .oldLength = -1.0, .velocity = 2.0F};
    const Note near = decode(encodeUnsaved({"", time, true, {far}})).notes.at(0);
    EXPECT_EQ(all(near), all({.length = 1e12, .velocity = 1.0F})) << "limited";
}

TEST_F(SequenceSaving, RefusesToReplaceAFileThatHoldsMore)
{
    const std::string bytes = midi::header(1, 2, 128) + midi::track("") +
                              midi::track(midi::on(0, 60) + midi::off(64, 60));
    std::ofstream(path_, std::ios::binary) << bytes;
    document_.read(path_);
    EXPECT_FALSE(save());
    EXPECT_EQ(document_.errorString(),
              "The source file contains unprocessed MIDI information which cannot be overwriten "
              "(multichannel, meta events,…). Use the 'Save As…' option instead.");
    EXPECT_EQ(readTextFile(path_), bytes);

    const auto other = folder_ / "b.imy";
    EXPECT_TRUE(document_.save(other, SequenceFormat::IMelody, kSaveAs));
    EXPECT_EQ(document_.path(), other);
    EXPECT_THAT(readTextFile(other), testing::HasSubstr("MELODY:*3c3\r\n"));
    EXPECT_TRUE(save()) << "the new file holds no more";

    std::ofstream(path_, std::ios::binary) << bytes.substr(0, 40);
    document_.read(path_);
    EXPECT_TRUE(document_.sequence().notes().empty()) << "a broken file";
    EXPECT_EQ(transport_.extent(), 0.0);
    EXPECT_THAT(document_.errorString(), testing::HasSubstr("a.mid"));
}

class MusicalSaving : public SequenceSaving {
protected:
    /// Reads a file in the musical reading, after which `reread` tells what was saved.
    void open(const std::string& bytes)
    {
        std::ofstream(path_, std::ios::binary) << bytes;
        musical_.read(path_);
    }

    std::string saved(const char* name = "b.mid")
    {
        EXPECT_TRUE(musical_.save(folder_ / name, SequenceFormat::MidiFile, kSaveAs));
        return readTextFile(folder_ / name);
    }

    SequenceDocument musical_{*this, Reading::Musical, [this] { return now_; }};
};

TEST_F(MusicalSaving, ChangesOnlyWhatWasEdited)
{
    using namespace midi;
    const std::string conductor = tempo(0, 600'000) + bytes({0, 0xFF, 0x58, 4, 3, 2, 24, 8}) +
                                  tempo(192, 300'000) + bytes({0, 0xFF, 5, 2, 'l', 'a'});
    const auto voice = [](const std::string& firstNote) {
        return bytes({0, 0xFF, 3, 1, 'V', 0, 0xC2, 19, 0, 0xB2, 64, 127}) + firstNote +
               bytes({96, 0x82, 60, 33, 0, 0xF0, 2, 1, 0xF7, 0, 0x82, 99, 0}) + on(0, 62, 80, 2) +
               off(0, 62, 2) + on(12, 64, 90, 2);
    };
    const auto fileOf = [&](const std::string& firstNote, const std::string& last) {
        return header(1, 2) + track(conductor) +
               chunk("MTrk", voice(firstNote) + last + bytes({96, 0xFF, 0x2F, 0}));
    };
    const std::string original = fileOf(on(0, 60, 70, 2), "");
    open(original);
    ASSERT_EQ(musical_.sequence().notes().size(), 2U) << "one has no length";
    EXPECT_EQ(musical_.sequence().notes()[0].length, 8.0)
        << "an eighth of a quarter note is a step";
    EXPECT_FALSE(musical_.isImported());
    EXPECT_EQ(saved(), original);

    musical_.edit()->at(0).velocity = 1.0F;
    EXPECT_EQ(saved(), fileOf(on(0, 60, 127, 2), ""));
    musical_.undoStack().setIndex(0);
    musical_.edit()->addNote(
        {.start = 19.0, .length = 2.0, .velocity = 1.0F, .channel = 2, .key = 70});
    const std::string more = saved();
    EXPECT_NE(more, original);
    musical_.read(folder_ / "b.mid");
    ASSERT_EQ(musical_.sequence().notes().size(), 3U);
    EXPECT_NEAR(musical_.sequence().notes()[1].length, 8.0, 1e-6) << "not up to the new end";
    musical_.edit()->addNote({.start = 1.2345, .length = 2.4, .velocity = 1.0F, .key = 71});
    const std::string finer = saved();
    EXPECT_EQ(finer.substr(12, 2), number(96 * 43, 2)) << "a take needs finer ticks";
    musical_.read(folder_ / "b.mid");
    const auto& notes = musical_.sequence().notes();
    ASSERT_EQ(notes.size(), 4U);
    EXPECT_NEAR(notes[1].start, 1.2345, 0.002);
    EXPECT_EQ(notes[0].length, 8.0) << "the same music";
}

TEST_F(MusicalSaving, LeavesTheOtherControllersWhereTheyStand)
{
    using namespace midi;
    const auto fileOf = [&](const std::string& moved, const std::string& rest) {
        // The panorama comes behind the name, and the pedal is in a track of its own.
        return header(1, 2) +
               track(bytes({0, 0xFF, 3, 1, 'V', 0, 0xC2, 19, 0, 0xB2, 10, 64}) + on(0, 60, 70, 2) +
                     moved) +
               chunk("MTrk", bytes({0, 0xB2, 64, 127}) + rest);
    };
    open(fileOf(off(96, 60, 2), bytes({96, 0xB2, 64, 0, 0, 0xFF, 0x2F, 0})));
    Controllers controllers = musical_.controllers();
    ASSERT_EQ(controllers.size(), 3U);
    controllers.back().value = 50;
    musical_.setControllers(controllers, "Move");
    EXPECT_EQ(saved(),
              fileOf(bytes({96, 0xB2, 64, 50}) + off(0, 60, 2), bytes({96, 0xFF, 0x2F, 0})));
}

TEST_F(MusicalSaving, WritesTheTempoAndTheSignaturesThatWereEdited)
{
    using namespace midi;
    const std::string keySignature = bytes({0, 0xFF, 0x59, 2, 0xFE, 1});
    const auto fileOf = [&](const std::string& time) {
        return header(1, 2) + track(on(0, 48) + off(96, 48)) +
               track(keySignature + time + on(0, 60) + off(96, 60));
    };
    open(fileOf(tempo(0, 600'000) + tempo(0, 500'000) + bytes({0, 0xFF, 0x58, 4, 3, 2, 12, 8})));
    MusicalTime time = musical_.time();
    time.changeTempoAt(0.0, 96.0);
    musical_.setTime(time, {});
    EXPECT_EQ(saved(), header(1, 2) + track(on(0, 48) + off(96, 48)) +
                           track(tempo(0, 625'000) + keySignature +
                                 bytes({0, 0xFF, 0x58, 4, 3, 2, 12, 8}) + on(0, 60) + off(96, 60)))
        << "and nothing else; of the two tempos the later one was in force";

    time.setTempos({Tempo::ofBeats(0.0, 90.0), Tempo::ofBeats(1.0 / 3.0, 70.0)});
    time.setTimeSignatures({{0.0, 3, 4}, {24.0, 12, 16}, {1e5, 5, 8}});
    time.setKeySignatures({{8.0, -7, false}});
    time.setMarkers({{8.0, "B"}, {8.0, "A"}, {8.0, std::string(300, 'x')}});
    const auto notesAndTime = [](const SequenceDocument& document) {
        std::vector<double> starts;
        for (const Note& note : document.sequence().notes())
            starts.push_back(std::round(note.start * 100));
        return std::pair(starts, document.time());
    };
    const std::string counted = track(tempo(0, 1) + on(80, 60) + off(40, 60));
    for (const std::string& original :
         {fileOf(""), header(0, 1, 0xE728) + counted, header(0, 1, 0xE328) + counted}) {
        open(original);
        const auto before = notesAndTime(musical_).first;
        musical_.setTime(time, {});
        saved();
        musical_.read(folder_ / "b.mid");
        EXPECT_EQ(notesAndTime(musical_).first, before);
        EXPECT_EQ(musical_.time().timeSignatures(), time.timeSignatures());
        EXPECT_EQ(musical_.time().keySignatures(), time.keySignatures());
        EXPECT_EQ(musical_.time().markers(), time.markers());
        ASSERT_EQ(musical_.time().tempos().size(), 2U) << "the file's own have no effect in frames";
        EXPECT_NEAR(musical_.time().secondsAt(400.0), time.secondsAt(400.0), 1e-3);
    }
}

TEST_F(MusicalSaving, ReadsADamagedFileAsFarAsItGoes)
{
    using namespace midi;
    const std::string whole = header(1, 2) + track(on(0, 60) + off(96, 60)) +
                              track(on(0, 20) + off(96, 20) + on(0, 120) + off(96, 120));
    for (const auto& [missing, notes] : {std::pair(1U, 3U), {5U, 3U}, {30U, 1U}}) {
        open(whole.substr(0, whole.size() - missing));
        EXPECT_EQ(musical_.errorString(), "");
        EXPECT_THAT(musical_.damage(), testing::StartsWith("a.mid, byte "));
        EXPECT_EQ(musical_.sequence().notes().size(), notes) << "keys beyond the keyboard as well";
        EXPECT_FALSE(musical_.save(path_, SequenceFormat::MidiFile, kSave)) << "keeps what is left";
        EXPECT_THAT(musical_.errorString(), testing::EndsWith("under another name."));
    }
    open(whole);
    EXPECT_EQ(musical_.damage(), "");
    open("MThd");
    EXPECT_NE(musical_.errorString(), "");
}

TEST_F(MusicalSaving, ExportsMelodiesWithoutCallingTheDocumentSaved)
{
    open(midi::file(midi::on(0, 60) + midi::off(96, 60)));
    SequenceEditor editor(musical_);
    editor.selectAll();
    editor.moveSelection(1, 0);
    EXPECT_TRUE(musical_.save(folder_ / "a.imy", SequenceFormat::IMelody, kSaveAs));
    EXPECT_EQ(musical_.path(), path_);
    EXPECT_TRUE(musical_.isModified());
}

TEST_F(MusicalSaving, RecoversTheFileWithTheNotes)
{
    const std::string original =
        midi::file(midi::tempo(0, 400'000) + midi::on(0, 60) + midi::off(96, 60));
    open(original);
    const std::string kept = encodeUnsaved(musical_.snapshot());
    SequenceDocument recovered(*this);
    recovered.recover(decodeUnsaved(std::as_bytes(std::span(kept))));
    EXPECT_TRUE(recovered.save(folder_ / "c.mid", SequenceFormat::MidiFile, kSaveAs));
    EXPECT_EQ(readTextFile(folder_ / "c.mid"), original);

    UnsavedSequence inSeconds = musical_.snapshot();
    inSeconds.notes.at(0).length = 0.4 * 16;
    std::string old = encodeUnsaved(inSeconds); // with one tempo, and four empty lists
    constexpr std::size_t kNote = 56, kCount = 8, kTime = 28, kVoices = 1 + 16 * 18;
    constexpr std::size_t kLater = kTime + kVoices + 4; // what the version before did not have
    old.erase(old.size() - kNote - kCount - kLater, kLater).replace(4, 4, midi::number(2, 4));
    recovered.recover(decodeUnsaved(std::as_bytes(std::span(old))));
    EXPECT_DOUBLE_EQ(recovered.sequence().notes().at(0).length, 8.0) << "of the version before";

    SequenceDocument plain(*this, Reading::Plain);
    plain.recover(musical_.snapshot());
    EXPECT_DOUBLE_EQ(plain.sequence().notes().at(0).length, 0.4 * 16);
    EXPECT_TRUE(plain.isImported());
}

TEST_F(SequenceSaving, KeepsTheOldFileIfItCannotBeWritten)
{
    draw(1);
    EXPECT_TRUE(document_.isModified());
    EXPECT_TRUE(save());
    EXPECT_FALSE(document_.isModified());
    draw(1000);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit small{100, limit.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_FALSE(save());
    setrlimit(RLIMIT_FSIZE, &limit);
    EXPECT_EQ(document_.errorString(),
              "a.mid cannot be written to " + folder_.string() + ": File too large");
    EXPECT_EQ(savedNotes(), 1U);
    EXPECT_TRUE(document_.isModified());

    EXPECT_FALSE(document_.save(folder_ / "gone" / "a.mid", SequenceFormat::MidiFile, kSaveAs));
    EXPECT_EQ(document_.errorString(), "a.mid cannot be written to " + (folder_ / "gone").string() +
                                           ": the folder does not exist");
    mkfifo((folder_ / "pipe.mid").c_str(), 0600);
    EXPECT_FALSE(document_.save(folder_ / "pipe.mid", SequenceFormat::MidiFile, kSaveAs));
    EXPECT_EQ(document_.path(), "");
}

TEST_F(SequenceSaving, SavesUnderAnyNameAndThroughLinks)
{
    const auto odd = folder_ / "f\xFCr" / "\xE4 ü %41.mid";
    std::filesystem::create_directory(odd.parent_path());
    std::filesystem::create_symlink(odd, path_);
    for (const char* time : {"the link leads nowhere", "it leads to the file"}) {
        draw(1);
        EXPECT_TRUE(save()) << time;
        EXPECT_TRUE(std::filesystem::is_symlink(path_)) << time;
        EXPECT_EQ(savedNotes(), document_.sequence().notes().size()) << time;
        std::filesystem::permissions(odd, std::filesystem::perms::owner_all);
    }
    EXPECT_TRUE(save());
    EXPECT_EQ(std::filesystem::status(odd).permissions(), std::filesystem::perms::owner_all);

    EXPECT_EQ(pathOf(textOf(odd)), odd);
    EXPECT_EQ(pathOf(QFile::decodeName(odd.c_str())), odd) << "as a file dialog names it";
    EXPECT_TRUE(textOf(odd).endsWith(" %41.mid"));
    EXPECT_EQ(pathOf(textOf("/a/\U0001F3B9.mid")), "/a/\U0001F3B9.mid");
    std::filesystem::remove_all(odd.parent_path()); // Qt's temporary folder cannot
}

TEST_F(SequenceSaving, LeavesTheOldOrTheNewFileWhenKilled)
{
    draw(2000);
    draw(1000);
    std::mt19937 random(std::random_device{}());
    std::map<std::size_t, int> seen;
    for (int i = 0; i < 20; ++i) {
        killWhileWorking(
            [&](const auto& ready) {
                for (int round = 0; document_.undoStack().setIndex(1 + round % 2), save(); ++round)
                    if (round == 0)
                        ready();
            },
            static_cast<unsigned>(random() % 20'000));
        ++seen[savedNotes()];
    }
    EXPECT_EQ(seen[2000] + seen[3000], 20);
}

TEST_F(SequenceSaving, KeepsUnsavedNotesUntilSavedOrClosed)
{
    RecoveryFile running(kept_);
    running.write(document_.snapshot());
    std::ofstream(kept_ / "garbled.unsaved") << "garbled";
    std::ofstream(kept_ / "gone.unsaved.lock");
    killWhileWorking([&](const auto& ready) {
        const RecoveryKeeper keeper(document_, RecoveryFile(kept_), 1ms);
        draw(3);
        if (waitFor(6) && RecoveryFile::abandoned(kept_).empty()) // each but one has a lock
            ready();
        pause();
    });
    EXPECT_EQ(RecoveryFile::abandoned(kept_).size(), 1U);
    auto left = RecoveryFile::abandoned(kept_);
    ASSERT_EQ(left.size(), 1U) << "no one has claimed it yet";
    EXPECT_TRUE(RecoveryFile::abandoned(kept_).empty()) << "it is claimed now";
    document_.recover(left[0].sequence);
    EXPECT_EQ(document_.sequence().notes().size(), 3U);
    EXPECT_EQ(transport_.extent(), 33.0);
    EXPECT_TRUE(document_.isModified());

    constexpr int kOthers = 3; // the two other files and the lock of the one in use
    auto keeper = std::make_unique<RecoveryKeeper>(document_, std::move(left[0].file), 1ms);
    EXPECT_TRUE(save());
    EXPECT_TRUE(waitFor(kOthers)) << "saved";
    draw(1);
    EXPECT_TRUE(waitFor(kOthers + 2));
    keeper.reset();
    EXPECT_TRUE(waitFor(kOthers)) << "closed";
}

TEST_F(SequenceSaving, TellsOnceThatUnsavedNotesAreNotProtected)
{
    std::ofstream(kept_) << "a file where the folder should be";
    const RecoveryKeeper keeper(document_, RecoveryFile(kept_), 1ms);
    std::vector<std::string> told;
    QObject::connect(&keeper, &RecoveryKeeper::failed, &document_,
                     [&](const QString& why) { told.push_back(why.toStdString()); });
    for (int i = 0; i < 3; ++i) {
        draw(1);
        for (int wait = 0; wait < (told.empty() ? 5000 : 50); ++wait) {
            QCoreApplication::processEvents();
            usleep(1000);
        }
    }
    EXPECT_THAT(told, testing::ElementsAre(
                          testing::EndsWith(kept_.string() + ": the folder does not exist")));
}

} // namespace velmora
