#include "app/Session.h"

#include "app/AppDelegate.h"
#include "app/OfflineSound.h"
#include "app/openSession.h"
#include "base/FormatError.h"
#include "support/Bank.h"
#include "support/OrganFolder.h"

#include <gmock/gmock.h>

namespace velmora {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class SilentSynthesizer : public MusicDevice {
public:
    void midiEvent(int /*status*/, int /*data1*/, int /*data2*/) override {}
};

/// An application with the built-in tunings and the General MIDI player.
struct SessionProgram : AppDelegate {
    SessionProgram()
    {
        tunings().addBuiltins();
        makeMIDIPlayer(std::make_unique<SilentSynthesizer>());
    }

    std::vector<float> gains()
    {
        std::vector<float> result;
        player().with([&](const Instrument& now, const Temperament&) { result = gainsOf(now); });
        return result;
    }
};

std::filesystem::path writeOrgan(const OrganFolder& folder, const std::string& name)
{
    folder.writeSine("a.wav", 261.6);
    return folder.write(name + ".organ",
                        "[Organ]\nChurchName=" + name +
                            "\n[Manual001]\nFirstAccessibleKeyMIDINoteNumber=48\n"
                            "[Stop001]\nPipe001=a.wav\n[Stop002]\nPipe001=a.wav\n");
}

std::string errorOf(const std::string& text)
{
    try {
        decodeSession(text, "/folder");
    } catch (const FormatError& error) {
        return error.inFile("x");
    }
    return "no error";
}

} // namespace

TEST(Session, KeepsEveryFieldInItsFile)
{
    const std::filesystem::path odd = "/organs/100%25 f\xFCr \"Anna\"/a.organ";
    Session session;
    session.instruments = {{{}, {}, {}, {0.5F}},
                           {odd,
                            InstrumentFormat::Hauptwerk1,
                            {Reading::Plain, true, 3, true, false, StopsToLoad::Fitting},
                            {0.25F, 1.0F},
                            128,
                            25}};
    session.instruments[1].console = {{{false, true}, {true}}, {0.25F, 1.0F}, {0.5F}};
    session.instruments[1].gains.clear();
    session.currentInstrument = 1;
    session.program = 19;
    session.tunings = {{"/t/für.scl", "/t/für.kbm"}};
    session.tuning = "für.scl";
    session.transposition = -3;
    session.standing = {2, 415.3};
    session.pieces = {{"/a.mid", 1.5}, {"/b.mid", 1e9}};
    session.currentPiece = 1;
    session.layout = std::string("\0\xFF\n", 3);
    const std::string text = encodeSession(session, "/t");
    EXPECT_THAT(text, HasSubstr("\"fromHere\": \"für.scl\""));
    const Session read = decodeSession(text, "/elsewhere");
    EXPECT_EQ(encodeSession(read, "/t"), text);
    EXPECT_EQ(read.instruments.at(1).path, odd);
    EXPECT_EQ(read.instruments[1].console, session.instruments[1].console);
    EXPECT_EQ(read.instruments[1].options, session.instruments[1].options);
    EXPECT_EQ(read.layout, session.layout);
    EXPECT_EQ(read.standing, session.standing);

    EXPECT_TRUE(decodeSession(R"({"velmoraSession": 1, "later": {}})", "/").pieces.empty());
}

TEST(Session, FindsFilesThatWereMovedWithIt)
{
    const OrganFolder folder;
    Session session;
    session.pieces = {{folder.path() / "old/music/a.mid"}, {"/gone/b.mid"}};
    const std::string text = encodeSession(session, folder.path() / "old");
    const auto moved = folder.write("new/music/a.mid", "");
    const Session read = decodeSession(text, folder.path() / "new");
    EXPECT_EQ(read.pieces[0].path, moved);
    EXPECT_EQ(read.pieces[1].path, "/gone/b.mid");
}

TEST(Session, SaysWhatIsWrongWithAFile)
{
    const std::pair<const char*, const char*> wrong[] = {
        {"", "x, line 1: this is not valid JSON"},
        {"{\n\"velmoraSession\": 1,\n}", "x, line 3: this is not valid JSON"},
        {"{\"velmoraSession\": 1e999}", "x: contains a number that is too large"},
        {"[1]", "x: this is not a session of Velmora"},
        {"{}", "x: this is not a session of Velmora"},
        {R"({"velmoraSession": 2})", "x: a later version of Velmora has written this session"},
    };
    for (const auto& [text, error] : wrong)
        EXPECT_EQ(errorOf(text), error);

    const std::pair<std::string, const char*> fields[] = {
        {R"("instruments": {})", R"("instruments" is not a list)"},
        {R"("instruments": [3])", R"("instruments[0]" is not a record in braces)"},
        {R"("instruments": [{}])", R"("instruments[0]" has no "kind")"},
        {R"("instruments": [{"kind": "EXS"}])",
         R"("instruments[0].kind" is not a kind of instrument that Velmora knows)"},
        {R"("instruments": [{"kind": "General MIDI", "volumes": [0, 1.1]}])",
         R"("instruments[0].volumes[1]" is not a number from 0.0 to 1.0)"},
        {R"("currentInstrument": 1)", R"("currentInstrument" is not a whole number from 0 to 0)"},
        {R"("program": 128)", R"("program" is not a whole number from 0 to 127)"},
        {R"("program": 18446744073709551615)", R"("program" is not a whole number from 0 to 127)"},
        {R"("tunings": [{"path": "a.scl"}])", R"("tunings[0].path" is not an absolute path)"},
        {R"("tunings": [{"path": "/a\u0000b"}])", R"("tunings[0].path" is not the name of a file)"},
        {R"("tunings": [{}])", R"("tunings[0]" has no "path")"},
        {R"("tunings": [{"name": "a", "hertz": [440]}])",
         R"("tunings[0].hertz" is not a list of the pitches of 128 keys)"},
        {R"("tuning": 1)", R"("tuning" is not a text in quotation marks)"},
        {R"("root": 12)", R"("root" is not a whole number from 0 to 11)"},
        {R"("a": 500)", R"("a" is not a number from 380.0 to 480.0)"},
        {R"("transposition": 2.5)", R"("transposition" is not a whole number from -24 to 24)"},
        {R"("pieces": [{"path": "/a.mid", "position": -1}])",
         R"("pieces[0].position" is not a number from 0.0 to 1000000000000.0)"},
    };
    for (const auto& [field, error] : fields)
        EXPECT_EQ(errorOf("{\"velmoraSession\": 1, " + field + "}"), "x: " + std::string(error));
}

TEST(Session, OpensTheInstrumentsAndTuningsAgain)
{
    const OrganFolder folder;
    const auto first = writeOrgan(folder, "first");
    const auto second = writeOrgan(folder, "second");
    const auto scale = folder.write("a.scl", "a\n12\n" + std::string("100.\n200.\n300.\n400.\n"
                                                                     "500.\n600.\n700.\n800.\n"
                                                                     "900.\n1000.\n1100.\n2/1\n"));
    Session session;
    constexpr auto kOrgan = InstrumentFormat::Hauptwerk1;
    session.instruments = {{{}, {}, {}, {0.5F}},
                           {first, kOrgan, {Reading::Plain}, {0.25F, 0.75F}},
                           {folder.path() / "gone.organ", kOrgan, {}, {}},
                           {second, kOrgan, {Reading::Plain}, {}},
                           {kBank, InstrumentFormat::SoundFont, {}, {0.5F}, 128, 25}};
    session.currentInstrument = 1;
    session.program = 19;
    const auto mapping = folder.write("a.kbm", "0\n0\n127\n60\n69\n430.\n12\n");
    session.tunings = {{scale, mapping}, {folder.path() / "gone.scl"}};
    session.tuning = "a.scl";
    session.standing = {2, 415.0};
    session.transposition = -2;
    SessionProgram program;
    for (const char* time : {"the first time", "and again, beside itself"}) {
        EXPECT_THAT(openSession(session, program),
                    ElementsAre("gone.scl: cannot be read (No such file or directory)",
                                "gone.organ: cannot be read (No such file or directory)"));
        EXPECT_EQ(program.instruments().size(), 4U) << time;
        EXPECT_EQ(program.tunings().documents().size(), 3U) << time;
        EXPECT_EQ(program.instrumentName(), "first");
        EXPECT_THAT(program.gains(), ElementsAre(0.25F, 0.75F));
        EXPECT_EQ(program.midiProgram(), 19);
        EXPECT_EQ(program.tunings().name(), "a.scl");
        EXPECT_EQ(program.tunings().transposition(), session.standing);
        EXPECT_EQ(program.playing().settings().transposition, -2);
    }
    const Instrument& bank = *program.instruments().back()->instrument();
    EXPECT_TRUE(bank.programs()[bank.program()].isPercussion);
    const Session current = currentSession(program);
    session.instruments.erase(session.instruments.begin() + 2);
    session.instruments[2].gains = current.instruments.at(2).gains;
    session.tunings.pop_back();
    EXPECT_EQ(encodeSession(current, "/"), encodeSession(session, "/"));
    program.playing().setTransposition(0);
}

TEST(Session, KeepsTuningsThatHaveNoFile)
{
    const OrganFolder folder;
    const auto mapping = folder.write("a.kbm", "0\n0\n127\n60\n69\n430.\n12\n");
    KeyPitches hertz{};
    for (std::size_t key = 0; key < hertz.size(); ++key)
        hertz[key] = 8.0 + 0.1 * static_cast<double>(key * key);
    SessionProgram before;
    ASSERT_EQ(before.tunings().setMapping(mapping), "");
    before.tunings().select("Vallotti");
    ASSERT_EQ(before.tunings().setMapping(mapping), "");
    before.tunings().put(TuningDocument::makeReceived("Synth", hertz));
    before.tunings().select("Synth");
    const std::string text = encodeSession(currentSession(before), "/");

    SessionProgram after;
    const auto pitch = [&](const char* tuning, int key) {
        EXPECT_TRUE(after.tunings().select(tuning));
        return after.tunings().untransposed()->pitchAt(key) / 2;
    };
    for (const char* time : {"the first time", "and again"}) {
        EXPECT_THAT(openSession(decodeSession(text, "/"), after), IsEmpty());
        EXPECT_EQ(after.tunings().name(), "Synth");
        EXPECT_EQ(encodeSession(currentSession(after), "/"), text) << time;
    }
    EXPECT_NEAR(pitch("Synth", 127), hertz[127], 1e-9);
    EXPECT_NEAR(pitch("Equal", 69), 430.0, 1e-9);
    EXPECT_NEAR(pitch("Vallotti", 69), 430.0, 1e-9);

    Session wrong;
    wrong.tunings = {{{}, {}, "Nowhere"}, {{}, mapping, "Pure"}};
    EXPECT_THAT(openSession(wrong, after),
                ElementsAre("there is no tuning named \"Nowhere\"",
                            "a.kbm: a keyboard mapping needs a scale, and this tuning has none"));
}

} // namespace velmora
