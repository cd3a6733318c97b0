#include "sequencer/RecoveryFile.h"

#include "base/FormatError.h"

#include "support/ChildProcess.h"

#include <fstream>

namespace {

using namespace std::chrono_literals;

UnsavedSequence unsaved()
{
    Note note;
    note.start = note.oldStart = 1.0 / 3.0;
    note.oldStart = -0.1;
    note.length = 1e-9;
    note.oldLength = 7.25;
    note.velocity = 0.7F;
    note.channel = 19;
    note.key = 127;
    note.oldKey = 126;
    return {"/tmp/Fug\xFF.mid",
            std::chrono::sys_time<std::chrono::milliseconds>(1234567890123ms),
            true,
            {note, Note{}}};
}

UnsavedSequence decode(const std::string& bytes)
{
    return decodeUnsaved(std::as_bytes(std::span(bytes)));
}

std::filesystem::path emptyFolder()
{
    const auto folder = std::filesystem::path(testing::TempDir()) / "recovery";
    std::filesystem::remove_all(folder);
    return folder;
}

} // namespace

TEST(UnsavedSequence, ComesBackExactly)
{
    const UnsavedSequence before = unsaved();
    const UnsavedSequence after = decode(encodeUnsaved(before));
    EXPECT_EQ(after.path, before.path);
    EXPECT_EQ(after.time, before.time);
    EXPECT_TRUE(after.isImported);
    ASSERT_EQ(after.notes.size(), 2U);
    const Note &a = before.notes[0], &b = after.notes[0];
    EXPECT_EQ(std::tie(b.start, b.length, b.oldStart, b.oldLength, b.velocity),
              std::tie(a.start, a.length, a.oldStart, a.oldLength, a.velocity));
    EXPECT_EQ(std::tie(b.channel, b.key, b.oldKey), std::tie(a.channel, a.key, a.oldKey));
}

TEST(UnsavedSequence, IsReadWithinItsBounds)
{
    const std::string bytes = encodeUnsaved(unsaved());
    for (std::size_t size = 0; size < bytes.size(); ++size)
        EXPECT_THROW(decode(bytes.substr(0, size)), FormatError) << size;
    EXPECT_THROW(decode(bytes + "x"), FormatError);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        std::string garbled = bytes;
        for (const char bits : {'\x01', '\x80', '\xFF'}) {
            garbled[i] = static_cast<char>(bytes[i] ^ bits);
            try {
                const auto notes = decode(garbled).notes;
                EXPECT_EQ(notes.size(), 2U);
                EXPECT_LE(notes[0].key, 127U);
                EXPECT_TRUE(std::abs(notes[0].start) <= 0x1p30) << i;
            } catch (const FormatError&) {
            }
        }
    }
}

TEST(RecoveryFile, IsOfferedOnceItsProgramIsGone)
{
    const auto folder = emptyFolder();
    ChildProcess other([&](const auto& ready) {
        RecoveryFile file(folder);
        file.write(unsaved());
        ready();
        pause();
    });
    std::ofstream(folder / "garbled.unsaved") << "garbled";
    RecoveryFile own(folder);
    own.write(unsaved());
    EXPECT_TRUE(RecoveryFile::abandoned(folder).empty()) << "both are still running";
    other.kill();
    {
        auto found = RecoveryFile::abandoned(folder);
        ASSERT_EQ(found.size(), 1U);
        EXPECT_EQ(found[0].sequence.path, unsaved().path);
        EXPECT_TRUE(RecoveryFile::abandoned(folder).empty()) << "it is taken over";
    }
    auto again = RecoveryFile::abandoned(folder);
    ASSERT_EQ(again.size(), 1U) << "nobody has wanted it yet";
    again[0].file.discard();
    own.discard();
    own.discard();
    EXPECT_TRUE(RecoveryFile::abandoned(folder).empty());
}
