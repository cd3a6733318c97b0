// The program as it is called from a shell.

#include "platform/MidiBytes.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>
#include <sndfile.h>

#include <algorithm>
#include <fstream>
#include <set>

using Json = nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

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
        write("chord.mid", midi::file(midi::on(0, 60) + midi::on(0, 64) + midi::on(0, 67) +
                                      midi::off(96, 60) + midi::off(0, 64) + midi::off(0, 67)));
        write("broken.mid", "MThd");
        write("pure.scl",
              "Pure\n12\n16/15\n9/8\n6/5\n5/4\n4/3\n45/32\n3/2\n8/5\n5/3\n9/5\n15/8\n2/1\n");
        write("broken.scl", "Broken\n12\n16/15\nabc\n");
    }

    std::string path(const std::string& name) const
    {
        return directory_.filePath(QString::fromStdString(name)).toStdString();
    }

    void write(const std::string& name, const std::string& content)
    {
        std::ofstream(path(name), std::ios::binary) << content;
    }

    std::string content(const std::string& name) const
    {
        std::ifstream file(path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::vector<std::string> files() const
    {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path(".")))
            names.insert(entry.path().filename().string());
        return {names.begin(), names.end()};
    }

    /// Runs a program in the directory of the files.
    Result run(const QString& program, const std::vector<std::string>& words)
    {
        QProcess process;
        process.setWorkingDirectory(directory_.path());
        QStringList arguments;
        for (const std::string& word : words)
            arguments.append(QString::fromStdString(word));
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished(60'000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {process.exitCode(), process.readAllStandardOutput().toStdString(),
                process.readAllStandardError().toStdString()};
    }

    Result velmora(const std::vector<std::string>& words) { return run(VELMORA_PROGRAM, words); }

    QTemporaryDir directory_;
};

} // namespace

TEST_F(CommandLine, RendersTheSameBytesEveryTime)
{
    for (const std::string extension : {".wav", ".flac", ".ogg"}) {
        for (const std::string name : {"a", "b"}) {
            const Result result = velmora({"render", "chord.mid", "-o", name + extension});
            EXPECT_EQ(result.code, 0) << result.error;
            EXPECT_EQ(result.error, "") << "no terminal, no progress";
        }
        EXPECT_EQ(content("a" + extension), content("b" + extension)) << extension;

        SF_INFO info{};
        SNDFILE* file = sf_open(path("a" + extension).c_str(), SFM_READ, &info);
        ASSERT_NE(file, nullptr) << sf_strerror(nullptr);
        std::vector<float> frames(2 * static_cast<std::size_t>(info.frames));
        EXPECT_EQ(sf_readf_float(file, frames.data(), info.frames), info.frames) << extension;
        sf_close(file);
        EXPECT_EQ(info.samplerate, 48000);
        // 8 steps of the notes and 32 more, 15 a second; then the tail.
        EXPECT_NEAR(static_cast<double>(info.frames) / 48000.0, 40.0 / 15.0 + 1.0, 0.01);
        EXPECT_GT(*std::ranges::max_element(frames), 0.05F);
    }
}

TEST_F(CommandLine, RendersEveryTuningAndProgramToASoundOfItsOwn)
{
    std::set<std::string> sounds;
    const std::vector<std::vector<std::string>> selections = {
        {},
        {"--tuning", "Quartercomma Meantone"},
        {"--tuning", "pure.scl"},
        {"--program", "19"},
        {"--stop", "0=0.5"},
        {"--rate", "44100"},
        {"--loop-start", "0", "--loop-end", "4", "--loops", "3"}};
    for (auto words : selections) {
        words.insert(words.begin(), {"render", "chord.mid", "-o", "out.wav"});
        EXPECT_EQ(velmora(words).code, 0);
        sounds.insert(content("out.wav"));
    }
    EXPECT_EQ(sounds.size(), selections.size());
}

TEST_F(CommandLine, FailsWithASentence)
{
    const auto render = [](std::vector<std::string> more) {
        more.insert(more.begin(), {"render", "chord.mid", "-o", "out.wav"});
        return more;
    };
    const auto before = files();
    const struct {
        std::vector<std::string> words;
        int code;
        std::string sentence;
    } rows[] = {
        {{}, 2, "subcommand"},
        {{"render", "chord.mid"}, 2, "--output"},
        {{"render", "missing.mid", "-o", "out.wav"}, 1, "missing.mid: "},
        {{"render", "broken.mid", "-o", "out.wav"}, 1, "velmora: broken.mid, byte 4: "},
        {{"render", "chord.mid", "-o", "out.mp3"}, 1, "must end in .wav, .flac or .ogg"},
        {{"render", "chord.mid", "-o", "nowhere/out.wav"}, 1, "nowhere/out.wav: "},
        {render({"--tuning", "Pythagorean"}), 2, "no tuning \"Pythagorean\""},
        {render({"--tuning", "missing.scl"}), 1, "missing.scl: "},
        {render({"--tuning", "broken.scl"}), 1, "broken.scl, line 4: "},
        {render({"--program", "128"}), 2, "--program"},
        {render({"--stop", "1=0.5"}), 2, "no stop 1"},
        {render({"--stop", "0=loud"}), 2, "\"0=loud\""},
        {render({"--rate", "1"}), 2, "--rate"},
        {render({"--loop-start", "4", "--loop-end", "4"}), 2, "--loop-end"},
        {{"info", "chord.txt"}, 1, "chord.txt: is no kind of file"},
        {{"info", "broken.scl"}, 1, "broken.scl, line 4: "},
        {{"info", "broken.mid", "--json"}, 1, "velmora: broken.mid, byte 4: "},
    };
    for (const auto& row : rows) {
        const Result result = velmora(row.words);
        EXPECT_EQ(result.code, row.code) << row.sentence;
        EXPECT_THAT(result.error, HasSubstr(row.sentence));
        EXPECT_EQ(result.out, "") << row.sentence;
        if (row.code == 1) {
            EXPECT_EQ(std::ranges::count(result.error, '\n'), 1) << result.error;
        }
    }
    EXPECT_EQ(files(), before) << "nothing is left behind";
}

TEST_F(CommandLine, KeepsTheFileThatIsThereWhenRenderingFails)
{
    write("out.wav", "precious");
    const auto before = files();
    // Files may grow to 8 kB here.
    const Result result = run("sh", {"-c", "trap '' XFSZ; ulimit -f 8; exec \"$0\" \"$@\"",
                                     VELMORA_PROGRAM, "render", "chord.mid", "-o", "out.wav"});
    EXPECT_EQ(result.code, 1);
    EXPECT_THAT(result.error, StartsWith("velmora: out.wav: "));
    EXPECT_EQ(content("out.wav"), "precious");
    EXPECT_EQ(files(), before);
}

TEST_F(CommandLine, TellsWhatItMakesOfFiles)
{
    const Json tuning = Json::parse(velmora({"info", "pure.scl", "--json"}).out);
    EXPECT_EQ(tuning["name"], "pure.scl");
    EXPECT_NEAR(tuning["baseFrequency"].get<double>(), 261.6256, 1e-4);
    ASSERT_EQ(tuning["pitchClasses"].size(), 12U);
    const Json& third = tuning["pitchClasses"][4];
    EXPECT_EQ(third["kind"], "ratio");
    EXPECT_EQ(third["value"], "5/4");
    EXPECT_NEAR(third["cents"].get<double>(), 386.3137, 1e-4);
    EXPECT_NEAR(third["hertz"].get<double>(), 2.0 * 261.6256 * 1.25, 1e-3) << "of key 64";

    const Json sequence = Json::parse(velmora({"info", "chord.mid", "--json"}).out);
    EXPECT_EQ(sequence["isImported"], false);
    EXPECT_EQ(sequence["extent"], 40.0);
    ASSERT_EQ(sequence["notes"].size(), 3U);
    EXPECT_EQ(sequence["notes"][0], Json::parse(R"({"key": 60, "channel": 0, "velocity": 1.0,
                                                    "start": 0.0, "length": 8.0})"));

    const Result both = velmora({"info", "broken.mid", "chord.mid"});
    EXPECT_EQ(both.code, 1);
    EXPECT_THAT(both.out, HasSubstr("chord.mid: sequence of 3 notes")) << "goes on with the next";
}
