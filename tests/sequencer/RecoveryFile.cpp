#include "sequencer/RecoveryFile.h"

#include "base/FormatError.h"
#include "support/ChildProcess.h"

#include <QTemporaryDir>

#include <fstream>

namespace {

UnsavedSequence unsaved()
{
    const Note note{.start = 1.0 / 3.0,
                    .length = 1e-9,
                    .oldLength = 7.25,
                    .velocity = 0.7F,
                    .channel = 19,
                    .key = 127,
                    .oldStart = -0.1,
                    .oldKey = 126};
    const std::chrono::milliseconds time(1234567890123);
    return {"/tmp/Fug\xFF.mid", decltype(UnsavedSequence::time)(time), true, {note, Note{}}};
}

UnsavedSequence decode(const std::string& bytes)
{
    return decodeUnsaved(std::as_bytes(std::span(bytes)));
}

} // namespace

TEST(UnsavedSequence, ComesBackExactlyOrNotAtAll)
{
    const UnsavedSequence before = unsaved();
    const std::string bytes = encodeUnsaved(before);
    const UnsavedSequence after = decode(bytes);
    EXPECT_EQ(std::tie(after.path, after.time, after.isImported),
              std::tie(before.path, before.time, before.isImported));
    ASSERT_EQ(after.notes.size(), 2U);
    const Note &a = before.notes[0], &b = after.notes[0];
    EXPECT_EQ(std::tie(b.start, b.length, b.oldStart, b.oldLength, b.velocity),
              std::tie(a.start, a.length, a.oldStart, a.oldLength, a.velocity));
    EXPECT_EQ(std::tie(b.channel, b.key, b.oldKey), std::tie(a.channel, a.key, a.oldKey));

    for (std::size_t size = 0; size < bytes.size(); ++size)
        EXPECT_THROW(decode(bytes.substr(0, size)), FormatError) << size;
    EXPECT_THROW(decode(bytes + "x"), FormatError);
    std::string endless = bytes; // the first byte of the last note's start, as of a NaN
    endless[bytes.size() - 52] = endless[bytes.size() - 51] = '\x7F';
    EXPECT_THROW(decode(endless), FormatError);
}

TEST(RecoveryFile, IsOfferedOnceItsProgramIsGone)
{
    const QTemporaryDir temporary;
    const std::filesystem::path folder = temporary.path().toStdString();
    std::ofstream(folder / "garbled.unsaved") << "garbled";
    RecoveryFile own(folder);
    own.write(unsaved());
    killWhileWorking([&](const auto& ready) {
        RecoveryFile file(folder);
        file.write(unsaved());
        if (RecoveryFile::abandoned(folder).empty()) // both are still there
            ready();
        pause();
    });
    {
        const auto found = RecoveryFile::abandoned(folder);
        ASSERT_EQ(found.size(), 1U);
        EXPECT_EQ(found[0].sequence.path, unsaved().path);
        EXPECT_TRUE(RecoveryFile::abandoned(folder).empty()) << "it is taken over";
    }
    auto again = RecoveryFile::abandoned(folder);
    ASSERT_EQ(again.size(), 1U) << "nobody has wanted it yet";
    again[0].file.discard();
    EXPECT_TRUE(RecoveryFile::abandoned(folder).empty());
}
