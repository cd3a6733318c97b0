#include "notation/lilyPond.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <string_view>

namespace velmora {

namespace {

/// Returns a text as a LilyPond string.
std::string quotedText(std::string_view text)
{
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\')
            result += '\\';
        result += c;
    }
    return result + '"';
}

/// Returns the Dutch name of a pitch, as LilyPond has it unless told otherwise.
std::string pitchText(const WrittenPitch& pitch)
{
    std::string text(1, static_cast<char>(pitch.letter - 'A' + 'a'));
    for (int i = 0; i < std::abs(pitch.alteration); ++i)
        text += pitch.alteration > 0 ? "is" : "es";
    constexpr int kOctaveWithoutMark = 3;
    const int marks = pitch.octave - kOctaveWithoutMark;
    return text + std::string(static_cast<std::size_t>(std::abs(marks)), marks > 0 ? '\'' : ',');
}

std::string valueText(const NoteValue& value)
{
    return std::to_string(value.value) + (value.isDotted ? "." : "");
}

/// Returns a length in divisions as a multiple of a whole note.
std::string scaledText(int length)
{
    constexpr int kWhole = 4 * kScoreDivisions;
    const int divisor = std::gcd(length, kWhole);
    return fmt::format("1*{}/{}", length / divisor, kWhole / divisor);
}

std::string elementText(const Score::Element& element, char rest)
{
    std::string text;
    if (element.beginsTriplet)
        text += "\\tuplet 3/2 { ";
    if (element.pitches.empty()) {
        text += rest;
    } else if (element.pitches.size() == 1) {
        text += pitchText(element.pitches.front());
    } else {
        text += '<';
        for (const WrittenPitch& pitch : element.pitches)
            text += fmt::format("{}{}", text.back() == '<' ? "" : " ", pitchText(pitch));
        text += '>';
    }
    text += valueText(element.value);
    if (element.isTied)
        text += '~';
    return text + (element.endsTriplet ? " }" : "");
}

/// Returns the bars of a voice, a line each. Bars without it are skipped.
std::string voiceText(const Score& score, const Score::Part& part, unsigned staff, unsigned number)
{
    const char rest = number == 0 ? 'r' : 's';
    std::string text;
    for (std::size_t i = 0; i < score.bars.size(); ++i) {
        const auto voice = std::ranges::find_if(part.bars[i], [&](const Score::Voice& one) {
            return one.staff == staff && one.number == number;
        });
        const bool isRest =
            voice == part.bars[i].end() ||
            std::ranges::all_of(voice->elements, [](const auto& e) { return e.pitches.empty(); });
        text += "    ";
        if (isRest)
            text += (number == 0 ? 'R' : 's') + scaledText(score.bars[i].length) + ' ';
        else
            for (const Score::Element& element : voice->elements)
                text += elementText(element, rest) + ' ';
        text += "|\n";
    }
    return text;
}

/// Returns what holds for all staves: signatures and tempos.
std::string globalText(const Score& score)
{
    std::string text = "global = {\n";
    for (const Score::Bar& bar : score.bars) {
        text += "    ";
        if (bar.keySignature)
            text += fmt::format(
                "\\key {} \\{} ",
                // The tonic of a minor key lies three fifths above that of its major key.
                [&] {
                    const int place =
                        bar.keySignature->fifths + (bar.keySignature->isMinor ? 3 : 0);
                    const int key = ((7 * place) % 12 + 12) % 12 + 48;
                    return pitchText(writtenPitch(static_cast<unsigned>(key), place, 0));
                }(),
                bar.keySignature->isMinor ? "minor" : "major");
        if (bar.timeSignature)
            text += fmt::format("\\time {}/{} ", bar.timeSignature->beats, bar.timeSignature->unit);
        int position = bar.start;
        for (const Score::Bar::Tempo& tempo : bar.tempos) {
            if (tempo.position > position)
                text += fmt::format("s{} ", scaledText(tempo.position - position));
            position = tempo.position;
            text += fmt::format("\\tempo 4 = {} ", std::lround(tempo.quartersPerMinute));
        }
        text += fmt::format("s{} |\n", scaledText(bar.start + bar.length - position));
    }
    return text + "}\n\n";
}

std::string staffText(const Score& score, const Score::Part& part, unsigned staff)
{
    constexpr const char* kVoiceNames[Score::kVoices] = {"\\voiceOne", "\\voiceTwo", "\\voiceThree",
                                                         "\\voiceFour"};
    unsigned voices = 1;
    for (const auto& bar : part.bars)
        for (const Score::Voice& voice : bar)
            if (voice.staff == staff)
                voices = std::max(voices, voice.number + 1);
    std::string text = fmt::format("  \\new Staff << \\clef {} \\global\n",
                                   part.isBass[staff] ? "bass" : "treble");
    for (unsigned number = 0; number < voices; ++number)
        text +=
            fmt::format("    \\new Voice {{ {}\n{}    }}\n", voices > 1 ? kVoiceNames[number] : "",
                        voiceText(score, part, staff, number));
    return text + "  >>\n";
}

} // namespace

std::string writeLilyPond(const Score& score)
{
    std::string text =
        fmt::format("\\version \"2.24.0\"\n\n\\header {{\n    title = {}\n    tagline "
                    "= ##f\n}}\n\n",
                    quotedText(score.title));
    text += globalText(score) + "\\score {\n<<\n";
    for (const Score::Part& part : score.parts) {
        const bool isKeyboard = part.isBass.size() > 1;
        text += fmt::format("\\new {} \\with {{ instrumentName = {} }} <<\n",
                            isKeyboard ? "PianoStaff" : "StaffGroup", quotedText(part.name));
        for (unsigned staff = 0; staff < part.isBass.size(); ++staff)
            text += staffText(score, part, staff);
        text += ">>\n";
    }
    return text + ">>\n\\layout { }\n}\n";
}

} // namespace velmora
