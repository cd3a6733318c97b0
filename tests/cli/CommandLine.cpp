// Tests of the program as it is run from a shell.

#include "audio/AudioFileDecoder.h"
#include "base/File.h"
#include "midi/StandardMidiFile.h"
#include "support/Bank.h"
#include "support/GigBytes.h"
#include "support/MidiBytes.h"
#include "support/OrganFolder.h"
#include "support/Pitch.h"
#include "support/Sine.h"
#include "support/Stereo.h"
#include "tuning/Temperament.h"

#include <QProcess>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <map>
#include <set>

namespace velmora {

using Json = nlohmann::json;
using testing::HasSubstr;

namespace {

constexpr double kRoot = 261.6255653006; // Hertz; key 48 of the organ.

struct Result {
    int code;
    std::string out, error;
};

class CommandLine : public testing::Test {
protected:
    CommandLine()
    {
        folder_.write("song.mid", midi::file(midi::on(0, 52) + midi::off(288, 52)));
        folder_.write("broken.mid", "MThd");
        folder_.write("pure.scl",
                      "Pure\n12\n16/15\n9/8\n6/5\n5/4\n4/3\n7/5\n3/2\n8/5\n5/3\n9/5\n15/8\n2/1\n");
        folder_.write("cut.sf2", readTextFile(kBank).substr(0, 2'000'000));
        folder_.write("broken.scl", "Broken\n12\n16/15\nabc\n");
        folder_.writeSine("a.wav", kRoot);
        folder_.writeSine("b.wav", 3.0 * kRoot); // a twelfth
        folder_.write("test.organ",
                      "[Organ]\nChurchName=Test\n[Manual001]\nFirstAccessibleKeyMIDINoteNumber=48\n"
                      "[Stop001]\nPipe001=a.wav\nPipe002=missing.wav\n[Stop002]\nPipe001=b.wav\n");
    }

    auto content(const QString& name) { return readFile(folder_.path() / name.toStdString()); }
    auto files() { return std::distance(std::filesystem::directory_iterator(folder_.path()), {}); }

    /// Runs Velmora, or another program, in the test folder.
    Result run(const QStringList& words, const QString& program = VELMORA_PROGRAM)
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
        return run(QStringList{"render", "song.mid", "--output", output} + options);
    }

    Json info(const QString& name) { return Json::parse(run({"info", name, "--json"}).out); }

    OrganFolder folder_;
};

} // namespace

TEST_F(CommandLine, RendersTheSameBytesForTheSameSelectionOnly)
{
    const std::pair<QString, QStringList> rows[] = {
        {"out.wav", {}},
        {"Out.FLAC", {}},
        {"out.ogg", {}},
        {"out.opus", {}},
        {"out.mp3", {}},
        {"out.wav", {"--tuning", "pure.scl"}},
        {"out.wav", {"--program", "19"}},
        {"out.wav", {"--rate", "44100", "--stop", "0=0.5"}},
        {"out.wav", {"--rate", "192000"}},
        {"out.wav", {"--loop-start", "0", "--loop-end", "8", "--loops", "7"}}};
    std::set<decltype(content({}))> sounds;
    for (const auto& [name, options] : rows) {
        SCOPED_TRACE(name.toStdString() + options.join(' ').toStdString());
        const Result result = render(name, options);
        EXPECT_EQ(result.code, 0);
        EXPECT_EQ(result.error, "") << "progress is only shown on a terminal";
        const auto bytes = content(name);
        EXPECT_TRUE(sounds.insert(bytes).second);
        render(name, options);
        EXPECT_EQ(content(name), bytes);
        const Pcm sound = decodeAudio(bytes);
        // At 16 steps per second: the note's 24 steps and 32 more, or 7 times 8 steps. Then the
        // tail of one second.
        const double seconds = static_cast<double>(sound.size()) / 2.0 / sound.rate;
        EXPECT_NEAR(seconds, 56.0 / 16.0 + 1.0, 0.01);
        EXPECT_TRUE(sound.floats.empty() ? std::ranges::max(sound.samples) > 800
                                         : std::ranges::max(sound.floats) > 0.025F);
    }
}

TEST_F(CommandLine, RendersTheVoicesApart)
{
    folder_.write("duet.mid", midi::file(midi::on(0, 52) + midi::on(0, 60, 100, 3) +
                                         midi::off(288, 52) + midi::off(0, 60, 3)));
    const auto inParts = [&] {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder_.path() / "parts"))
            names.insert(entry.path().filename());
        return names;
    };
    EXPECT_EQ(run({"render", "duet.mid"}).code, 2) << "neither --output nor --stems";
    EXPECT_EQ(run({"render", "duet.mid", "--stems", "parts", "-o", "out.mid"}).code, 1);
    EXPECT_EQ(run({"render", "broken.mid", "--stems", "parts"}).code, 1);
    EXPECT_FALSE(std::filesystem::exists(folder_.path() / "parts"));

    EXPECT_EQ(run({"render", "duet.mid", "--stems", "parts"}).error, "");
    EXPECT_EQ(inParts(), (std::set<std::string>{"duet - 1.wav", "duet - 4.wav"}));
    EXPECT_NE(content("parts/duet - 1.wav"), content("parts/duet - 4.wav"));
    EXPECT_EQ(
        run({"render", "duet.mid", "--stems", "parts", "-o", "mix.flac", "--voice", "4"}).error,
        "");
    EXPECT_TRUE(inParts().contains("duet - 4.flac"));
    EXPECT_FALSE(inParts().contains("duet - 1.flac")) << "only voice 4 was chosen";
    EXPECT_TRUE(std::filesystem::exists(folder_.path() / "mix.flac"));
}

TEST_F(CommandLine, RendersToAMidiFileInTheTuning)
{
    const Result result = render("out.mid", {"--tuning", "meantone", "--program", "19"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.error, "");
    const auto bytes = content("out.mid");
    const StandardMidiFile file = readStandardMidiFile(bytes);
    std::size_t notes = 0;
    for (const MidiEvent& event : file.tracks.at(0)) {
        if (event.kind == MidiEvent::Kind::Other)
            continue;
        ++notes;
        EXPECT_EQ(event.channel, event.key % 12);
        EXPECT_NEAR(event.duration, 2 * 24.0 / 16.0, 0.01) << "seconds at 120 beats a minute";
    }
    EXPECT_EQ(notes, 1);
    render("out.mid", {"--tuning", "Equal", "--program", "19"});
    EXPECT_NE(content("out.mid"), bytes);
}

TEST_F(CommandLine, TakesNamesInAnyCaseAndShortened)
{
    const std::pair<const char*, std::vector<const char*>> rows[] = {
        {"19", {"Church Organ", "church", "20 church organ"}},
        {"73", {"FLUTE", "0073"}}, // also the second word of another name
        {"3", {"honky tonk"}}};
    std::set<decltype(content({}))> sounds;
    for (const auto& [number, names] : rows) {
        render("out.wav", {"--program", number});
        const auto bytes = content("out.wav");
        for (const char* name : names) {
            EXPECT_EQ(render("out.wav", {"--program", name}).code, 0);
            EXPECT_EQ(content("out.wav"), bytes) << name;
        }
        render("out.wav", {"--instrument", kBank.c_str(), "--program", number});
        EXPECT_EQ(content("out.wav"), bytes) << "the same bank as an instrument";
        EXPECT_TRUE(sounds.insert(bytes).second);
    }
    const QString bank = kBank.c_str();
    for (const QStringList& options :
         {QStringList{"--bank", "128"}, {"--program", "brush"}, {"--as-stops"}}) {
        EXPECT_EQ(render("out.wav", QStringList{"--instrument", bank} + options).code, 0);
        EXPECT_TRUE(sounds.insert(content("out.wav")).second) << options.front().toStdString();
    }
    render("out.wav", {"--tuning", "Quartercomma Meantone"});
    const auto bytes = content("out.wav");
    for (const char* name : {"meantone", "QUARTER", "quarter-comma meantone"}) {
        EXPECT_EQ(render("out.wav", {"--tuning", name}).code, 0);
        EXPECT_EQ(content("out.wav"), bytes) << name;
    }
}

TEST_F(CommandLine, RendersBanksForAsLongAsTheirNotes)
{
    // A fifth of a second, whose loop has whole periods; the note lasts for eight fifths.
    using namespace riff;
    const double hertz = 176.4;
    const std::string tone = wave(points(sine(hertz, 0.2, 44'100)), 44'100);
    const std::string links = riff::links({}, {0}) + tuning(52, 0, 0, 1'000, 4'000);
    folder_.write("bank.gig",
                  bankOf(list("wave", tone), instrumentOf("Reed", regionOf(0, 127, links))));
    ASSERT_EQ(render("out.wav", {"--instrument", "bank.gig"}).error, "");
    const Pcm sound = decodeAudio(content("out.wav"));
    std::vector<float> held;
    for (std::size_t i = 0; i < sound.floats.size(); i += 2)
        held.push_back(sound.floats[i]);
    held.resize(72'000);
    const double measured = measuredHertz(std::span(held).last(60'000), 48'000, hertz);
    EXPECT_NEAR(cents(measured, hertz), 0.0, 0.25);
    EXPECT_NEAR(peak(std::span(held).last(4'800)), peak(std::span(held).first(9'600)), 0.01F);
}

TEST_F(CommandLine, ReportsErrorsInOneSentence)
{
    const struct {
        QStringList words; // a whole command line, or options for rendering the song
        int code;
        std::string sentence;
    } rows[] = {
        {{"render", "broken.mid", "-o", "out.wav"}, 1, "velmora: broken.mid, byte 4: "},
        {{"render", "song.mid", "-o", "out.aiff", "--instrument", "missing.sf2"},
         1,
         "must end in .wav, .flac, .ogg, .opus or .mp3"},
        {{"render", "song.mid", "-o", "nowhere/out.wav"}, 1, "nowhere/out.wav: "},
        {{"render", "song.mid", "--rate", "44100", "-o", "out.opus"},
         1,
         "does not support a sample rate of 44100 Hz"},
        {{"--tuning", "Pythagoras"}, 2, "no tuning \"Pythagoras\""},
        {{"--root", "H"}, 2, "--root: \"H\" is not the name of a key, such as C, F# or Eb"},
        {{"--root", "C##"}, 2, "\"C##\" is not the name of a key"},
        {{"--a", "379.9"}, 2, "--a: 379.9 is not between 380 and 480"},
        {{"--a", "nan"}, 2, "--a: nan is not between 380 and 480"},
        {{"--tuning", "werckmeister"}, 2, "Werckmeister III"},
        {{"--tuning", "broken.scl"}, 1, "broken.scl, line 4, column 1: "},
        {{"--tuning", "Pure Equal"}, 2, "no tuning \"Pure Equal\""},
        {{"--program", "128"}, 2, "no General MIDI program \"128\"; --program takes"},
        {{"--instrument", kBank.c_str(), "--bank", "7"}, 2, "the instrument has no bank 7"},
        {{"--instrument", kBank.c_str(), "--bank", "128", "--program", "1"}, 2, "program \"1\""},
        {{"--instrument", "cut.sf2"}, 1, "cut.sf2: is cut short"},
        {{"--program", "-"}, 2, "no General MIDI program \"-\""},
        {{"--program", "harp"}, 2, "\"harp\" may mean any of these: 7 Harpsichord, 47 Orch"},
        {{"--stop", "0=loud"}, 2, "\"0=loud\""},
        {{"--instrument", "missing.sf2"}, 1, "velmora: missing.sf2: cannot be read"},
        {{"--instrument", "song.mid"}, 2, "\"song.mid\" is not an instrument"},
        {{"--instrument", "test.organ", "--program", "3"}, 2, "the instrument has no programs"},
        {{"--instrument", "test.organ", "--stop", "2=1"}, 2, "numbered from 0 to 1"},
        {{"--loop-start", "4", "--loop-end", "4"}, 2, "--loop-end"},
        {{"--voice", "17"}, 2, "--voice"},
        {{"--voice", "1", "--voice", "3"}, 2, "song.mid has no voice 3; it has 1"},
        {{"--loop-start", "4", "--loop-end", "inf"}, 2, "--loop-end"},
        {{"--rate", "nan"}, 2, "--rate"},
        {{"--tail", "nan"}, 2, "--tail"},
        {{"live", "--output", "oss:dsp"}, 2, "no output \"oss\""},
        {{"live", "--period", "0"}, 2, "--period"},
        {{"devices", "--output", "none"}, 2, "--output requires --watch"},
        {{"info", "song.txt"}, 1, "song.txt: unrecognised file type"},
        {{"info", "map.kbm"}, 1, "map.kbm: a keyboard mapping needs a scale; see --mapping"},
        {{"info", "broken.mid", "--json"}, 1, "velmora: broken.mid, byte 4: "},
    };
    const auto before = files();
    for (const auto& [words, code, sentence] : rows) {
        const Result result = words.at(0).startsWith("--") ? render("out.wav", words) : run(words);
        EXPECT_EQ(result.code, code) << sentence;
        EXPECT_THAT(result.error, HasSubstr(sentence));
        EXPECT_EQ(result.out, "") << sentence;
        EXPECT_TRUE(code == 2 || std::ranges::count(result.error, '\n') == 1) << result.error;
    }
    EXPECT_THAT(run({"--plain", "info", "song.mid"}).error, HasSubstr("must follow the command"));
    EXPECT_EQ(files(), before) << "no file is left behind";
}

TEST_F(CommandLine, KeepsWhatHasTheNameIfRenderingFails)
{
    const auto before = files();
    for (const char* name : {"out.wav", "out.flac", "out.ogg", "out.opus", "out.mp3"}) {
        const auto path = folder_.path() / name;
        render(name, {});
        // "ulimit -f" counts in 512 bytes. The end of some files is only written on closing them.
        for (const auto blocks : {std::uintmax_t{8}, std::filesystem::file_size(path) / 512}) {
            folder_.write(name, "precious");
            const Result result =
                run({"-c", QString("trap '' XFSZ; ulimit -f %1; '%2' render song.mid -o %3")
                               .arg(QString::number(blocks), VELMORA_PROGRAM, name)},
                    "sh");
            EXPECT_EQ(result.code, 1) << name << blocks;
            EXPECT_EQ(result.error, "velmora: " + std::string(name) + ": File too large\n");
            EXPECT_EQ(readTextFile(path), "precious") << name << blocks;
        }
        std::filesystem::remove(path);
    }
    EXPECT_EQ(files(), before);

    run({"pipe.wav"}, "mkfifo");
    std::filesystem::create_symlink("loop.wav", folder_.path() / "loop.wav");
    EXPECT_EQ(render("pipe.wav", {}).error, "velmora: pipe.wav: not a regular file\n");
    EXPECT_EQ(render("loop.wav", {}).error,
              "velmora: loop.wav: Too many levels of symbolic links\n");
    EXPECT_TRUE(std::filesystem::is_fifo(folder_.path() / "pipe.wav"));
    EXPECT_TRUE(std::filesystem::is_symlink(folder_.path() / "loop.wav"));
}

TEST_F(CommandLine, RendersAnInstrumentInTune)
{
    const std::pair<QStringList, double> rows[] = {
        {{}, Temperament::Meantone().getPitch(52)},
        // On D, A is a fifth above the root, and E a fifth above A.
        {{"--root", "d", "--a", "415"}, 415.0 * std::pow(5.0, 0.25) / 2.0},
        {{"--root", "F♯"}, equal.getPitch(54) * std::sqrt(0.8)}, // a whole tone below
    };
    for (const auto& [options, pitch] : rows) {
        render("out.wav", QStringList{"--instrument", "test.organ", "--plain", "--tuning",
                                      "Quartercomma Meantone", "--stop", "1=0.25"} +
                              options);
        const Pcm heard = decodeAudio(content("out.wav"));
        std::vector<float> left;
        for (std::size_t i = 4800; i < 52800; ++i)
            left.push_back(heard.floats.at(2 * i));
        const double wanted = 3.0 * pitch; // the second stop's twelfth
        EXPECT_NEAR(cents(measuredHertz(left, 48000.0, wanted), wanted), 0.0, 0.25);
    }
}

TEST_F(CommandLine, RendersAVoiceAsItSoundsAmongTheOthers)
{
    folder_.write("trio.mid",
                  midi::file(midi::on(0, 53) + midi::on(0, 60) + midi::on(0, 56, 127, 4) +
                             midi::off(288, 53) + midi::off(0, 60) + midi::off(0, 56, 4)));
    folder_.write("solo.mid", midi::file(midi::on(0, 56, 127, 4) + midi::off(288, 56, 4)));
    const auto sound = [this](const char* piece, const char* tuning, const QStringList& options) {
        const Result result = run(QStringList{"render", piece, "-o", "out.wav", "--instrument",
                                              "test.organ", "--plain", "--tuning", tuning} +
                                  options);
        EXPECT_EQ(result.code, 0) << result.error;
        const Pcm heard = decodeAudio(content("out.wav"));
        std::vector<float> left;
        for (std::size_t i = 4800; i < 52800; ++i)
            left.push_back(heard.floats.at(2 * i));
        return left;
    };
    EXPECT_EQ(sound("trio.mid", "Equal", {"--voice", "5"}), sound("solo.mid", "Equal", {}));
    const auto third = [&](const char* piece, const QStringList& options) {
        const auto heard = sound(piece, "Following Meantone", options);
        return measuredHertz(heard, 48000.0, kRoot * std::exp2(8.0 / 12.0)) / kRoot;
    };
    EXPECT_NEAR(third("trio.mid", {"--voice", "5"}), 8.0 / 5.0, 1e-4) << "A♭ between F and C";
    EXPECT_NEAR(third("solo.mid", {}), 25.0 / 16.0, 1e-4) << "G♯";
}

TEST_F(CommandLine, DescribesScalesOfAnySizeOnTheirKeys)
{
    folder_.write("three.scl", "Three\n3\n400.\n5/3\n2\n");
    folder_.write("two.kbm", "2\n0\n127\n60\n60\n300.\n3\n2\nx\n");
    const Json scale = info("three.scl");
    EXPECT_EQ(scale["degrees"].at(2)["value"], "5/3");
    EXPECT_NEAR(scale["keys"].at(63)["hertz"].get<double>(), 523.2511306, 1e-6);
    const Json mapped =
        Json::parse(run({"info", "three.scl", "--mapping", "two.kbm", "--json"}).out);
    EXPECT_EQ(mapped["keys"].at(60)["hertz"], 300.0);
    EXPECT_TRUE(mapped["keys"].at(61)["hertz"].is_null());
    EXPECT_THAT(run({"info", "three.scl", "--plain"}).error,
                HasSubstr("three.scl, line 2: \"3\" is the number of notes"));
    EXPECT_THAT(run({"info", "three.scl", "--mapping", "none.kbm"}).error,
                HasSubstr("none.kbm: cannot be read"));
    render("out.wav", {"--tuning", "three.scl", "--mapping", "two.kbm"});
}

TEST_F(CommandLine, DescribesFiles)
{
    const Json third = info("pure.scl")["pitchClasses"].at(4);
    EXPECT_EQ(third["value"], "5/4");
    EXPECT_NEAR(third["hertz"].get<double>(), 2.0 * kRoot * 1.25, 1e-3) << "key 64";
    EXPECT_EQ(third["note"], "E5");
    EXPECT_EQ(info("song.mid")["notes"].at(0).dump(),
              R"({"channel":0,"key":52,"length":24.0,"start":0.0,"velocity":1.0})");
    const Json organ = Json::parse(run({"info", "test.organ", "--json", "--plain"}).out);
    EXPECT_EQ(organ["stops"].at(0)["keys"].at(48)["rootPitch"], kRoot);
    EXPECT_THAT(organ["report"]["skipped"].at(0)["file"], HasSubstr("missing.wav"));

    const Json bank = info(kBank.c_str());
    EXPECT_EQ(bank["usage"], 5764336);
    EXPECT_EQ(bank["programs"].at(19).dump(),
              R"({"bank":0,"isPercussion":false,"name":"Church Organ","program":19})");
    EXPECT_EQ(bank["programs"].back()["isPercussion"], true);

    EXPECT_THAT(run({"info", "pure.scl"}).out,
                HasSubstr("pure.scl: tuning, base frequency 261.625565 Hz at C4\n  Pure\n  C5 "));
    EXPECT_THAT(run({"info", "pure.scl", "--root", "eb", "--a", "440"}).out,
                HasSubstr("pure.scl: tuning, base frequency 314.285714 Hz at Eb4\n"))
        << "7/5 below A";
    const Result text = run({"info", "--plain", "broken.mid", "song.mid", "test.organ"});
    EXPECT_EQ(text.code, 1);
    EXPECT_THAT(text.out, HasSubstr("song.mid: sequence of 1 note"))
        << "continues with the next file";
    EXPECT_THAT(text.out, HasSubstr("Test: Organ instrument of 2 stops, 384000 bytes of sound\n"));
    EXPECT_THAT(text.out, HasSubstr("Loaded 2 ranks, 2 pipes, 2 samples; left out 1\n"));
}

TEST_F(CommandLine, ReportsWhatIsMissing)
{
    qputenv("DISPLAY", ":65000");
    qunsetenv("WAYLAND_DISPLAY");
    qputenv("XDG_CONFIG_HOME", "/dev/null");
    std::map<std::string, Json> findings;
    for (const Json& finding : Json::parse(run({"doctor", "--json"}).out))
        findings[finding["topic"]] = finding;
    EXPECT_EQ("velmora " + findings["Velmora"]["found"].get<std::string>() + "\n",
              run({"--version"}).out);
    EXPECT_THAT(findings["OpenAL"]["found"].get<std::string>(), HasSubstr("ALSOFT"));
    EXPECT_EQ(findings["Display"]["found"], "");
    EXPECT_THAT(run({"doctor"}).out,
                HasSubstr("missing  Preferences: /dev/null/velmora/velmora.conf, not writable; "
                          "make the file"));
}

} // namespace velmora
