// The program as it is called from a shell.

#include "base/File.h"
#include "platform/AudioFileDecoder.h"
#include "platform/MidiBytes.h"
#include "support/OrganFolder.h"

#include <QProcess>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <set>

using Json = nlohmann::json;
using testing::HasSubstr;

namespace {

struct Result {
    int code;
    std::string out, error;
};

class CommandLine : public testing::Test {
protected:
    CommandLine()
    {
        // The third C-E and the fifth C-G, half a second long.
        folder_.write("chord.mid",
                      midi::file(midi::on(0, 60) + midi::on(0, 64) + midi::on(0, 67) +
                                 midi::off(96, 60) + midi::off(0, 64) + midi::off(0, 67)));
        folder_.write("broken.mid", "MThd");
        folder_.write(
            "pure.scl",
            "Pure\n12\n16/15\n9/8\n6/5\n5/4\n4/3\n45/32\n3/2\n8/5\n5/3\n9/5\n15/8\n2/1\n");
        folder_.write("broken.scl", "Broken\n12\n16/15\nabc\n");
    }

    auto content(const QString& name) const
    {
        return readFile(folder_.path() / name.toStdString());
    }

    auto files() const
    {
        return std::distance(std::filesystem::directory_iterator(folder_.path()), {});
    }

    /// Runs a program in the folder.
    Result run(const QString& program, const QStringList& words)
    {
        QProcess process;
        process.setWorkingDirectory(QString::fromStdString(folder_.path().string()));
        process.start(program, words);
        EXPECT_TRUE(process.waitForFinished(60'000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {process.exitCode(), process.readAllStandardOutput().toStdString(),
                process.readAllStandardError().toStdString()};
    }

    Result render(const QString& output, const QStringList& options)
    {
        return run(VELMORA_PROGRAM,
                   QStringList{"render", "chord.mid", "--output", output} + options);
    }

    OrganFolder folder_;
};

} // namespace

TEST_F(CommandLine, RendersTheSameBytesEveryTimeAndEverySelectionToItsOwn)
{
    const std::pair<QString, QStringList> rows[] = {
        {"out.wav", {}},
        {"out.flac", {}},
        {"out.ogg", {}},
        {"out.wav", {"--tuning", "Quartercomma Meantone"}},
        {"out.wav", {"--tuning", "pure.scl"}},
        {"out.wav", {"--program", "19"}},
        {"out.wav", {"--rate", "44100", "--stop", "0=0.5"}},
        {"out.wav", {"--loop-start", "0", "--loop-end", "4", "--loops", "10"}}};
    std::set<decltype(content({}))> sounds;
    for (const auto& [name, options] : rows) {
        SCOPED_TRACE(name.toStdString() + options.join(' ').toStdString());
        const Result result = render(name, options);
        EXPECT_EQ(result.code, 0);
        EXPECT_EQ(result.error, "") << "no terminal, no progress";
        const auto bytes = content(name);
        EXPECT_TRUE(sounds.insert(bytes).second);
        render(name, options);
        EXPECT_EQ(content(name), bytes);
        const Pcm sound = decodeAudio(bytes);
        // 8 steps of the notes and 32 more or 4 ten times, 15 a second; then the tail.
        const double seconds = static_cast<double>(sound.samples.size()) / 2.0 / sound.rate;
        EXPECT_NEAR(seconds, 40.0 / 15.0 + 1.0, 0.01);
        EXPECT_GT(std::ranges::max(sound.samples), 800);
    }
}

TEST_F(CommandLine, FailsWithASentence)
{
    const struct {
        QStringList words; // alone or, where they are options, of rendering the chord
        int code;
        std::string sentence;
    } rows[] = {
        {{}, 2, "subcommand"},
        {{"render", "chord.mid"}, 2, "--output"},
        {{"render", "missing.mid", "-o", "out.wav"}, 1, "missing.mid: "},
        {{"render", "broken.mid", "-o", "out.wav"}, 1, "velmora: broken.mid, byte 4: "},
        {{"render", "chord.mid", "-o", "out.mp3"}, 1, "must end in .wav, .flac or .ogg"},
        {{"render", "chord.mid", "-o", "nowhere/out.wav"}, 1, "nowhere/out.wav: "},
        {{"--tuning", "Pythagorean"}, 2, "no tuning \"Pythagorean\""},
        {{"--tuning", "missing.scl"}, 1, "missing.scl: "},
        {{"--tuning", "broken.scl"}, 1, "broken.scl, line 4: "},
        {{"--program", "128"}, 2, "--program"},
        {{"--stop", "1=0.5"}, 2, "no stop 1"},
        {{"--stop", "0=loud"}, 2, "\"0=loud\""},
        {{"--rate", "1"}, 2, "--rate"},
        {{"--loop-start", "4", "--loop-end", "4"}, 2, "--loop-end"},
        {{"info", "chord.txt"}, 1, "chord.txt: is no kind of file"},
        {{"info", "broken.mid", "--json"}, 1, "velmora: broken.mid, byte 4: "},
    };
    const auto before = files();
    for (const auto& [words, code, sentence] : rows) {
        const bool areOptions = words.value(0).startsWith("--");
        const Result result = areOptions ? render("out.wav", words) : run(VELMORA_PROGRAM, words);
        EXPECT_EQ(result.code, code) << sentence;
        EXPECT_THAT(result.error, HasSubstr(sentence));
        EXPECT_EQ(result.out, "") << sentence;
        EXPECT_TRUE(code == 2 || std::ranges::count(result.error, '\n') == 1) << result.error;
    }
    EXPECT_EQ(files(), before) << "nothing is left behind";
}

TEST_F(CommandLine, KeepsTheFileThatIsThereWhenRenderingFails)
{
    folder_.write("out.wav", "precious");
    const auto before = files();
    const auto precious = content("out.wav");
    // Files may grow to 8 kB here.
    const Result result = run("sh", {"-c", "trap '' XFSZ; ulimit -f 8; exec \"$0\" \"$@\"",
                                     VELMORA_PROGRAM, "render", "chord.mid", "-o", "out.wav"});
    EXPECT_EQ(result.code, 1);
    EXPECT_THAT(result.error, HasSubstr("velmora: out.wav: "));
    EXPECT_EQ(content("out.wav"), precious);
    EXPECT_EQ(files(), before);
}

TEST_F(CommandLine, TellsWhatItMakesOfFiles)
{
    const Json tuning = Json::parse(run(VELMORA_PROGRAM, {"info", "pure.scl", "--json"}).out);
    const Json& third = tuning["pitchClasses"].at(4);
    EXPECT_EQ(third["value"], "5/4");
    EXPECT_NEAR(third["cents"].get<double>(), 386.3137, 1e-4);
    EXPECT_NEAR(third["hertz"].get<double>(), 2.0 * 261.6256 * 1.25, 1e-3) << "of key 64";
    const Json sequence = Json::parse(run(VELMORA_PROGRAM, {"info", "chord.mid", "--json"}).out);
    EXPECT_EQ(sequence["extent"], 40.0);
    EXPECT_EQ(sequence["notes"].at(0).dump(),
              R"({"channel":0,"key":60,"length":8.0,"start":0.0,"velocity":1.0})");

    const Result both = run(VELMORA_PROGRAM, {"info", "broken.mid", "chord.mid"});
    EXPECT_EQ(both.code, 1);
    EXPECT_THAT(both.out, HasSubstr("chord.mid: sequence of 3 notes")) << "goes on with the next";
}
