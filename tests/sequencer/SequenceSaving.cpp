#include "base/File.h"
#include "base/FormatError.h"
#include "platform/pathNames.h"
#include "sequencer/RecoveryKeeper.h"
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
                      .oldKey = 126};
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
                        n.oldKey);
    };
    EXPECT_EQ(all(after.notes[0]), all(before));

    for (std::size_t size = 0; size < bytes.size(); ++size)
        EXPECT_THROW(decode(bytes.substr(0, size)), FormatError) << size;
    EXPECT_THROW(decode(bytes + "x"), FormatError);
    std::string wrong = bytes; // with NaN as the start of the last note
    wrong.replace(bytes.size() - 52, 2, "\x7F\xF8");
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
