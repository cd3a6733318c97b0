#include "sequencer/Lyrics.h"

#include "base/Text.h"
#include "midi/MidiFileEvents.h"
#include "midi/messages.h"
#include "sequencer/SequenceTime.h"

#include <algorithm>
#include <string_view>

namespace velmora {

namespace {

/// A line is broken at the next word when it has this many bytes.
constexpr std::size_t kLongLine = 50;

/// How long before it begins a line appears, in steps.
constexpr double kLead = 2.0 * kStepsPerBeat;

constexpr std::string_view kBreaks = "/\\\r\n";

/// A text of a file, as it stands there.
struct RawText {
    double step;
    std::string_view text;
};

std::vector<RawText> textsOf(const FileTrack& track, const MidiFileHeader& header,
                             std::uint8_t type)
{
    std::vector<RawText> texts;
    for (const FileEvent& event : track.events)
        if (const auto text = metaData(event, type); !text.empty())
            texts.push_back(
                {static_cast<double>(event.tick) / header.ticksPerBeat * kStepsPerBeat, text});
    return texts;
}

/// Returns the longest list of texts of one type that a single track has.
std::vector<RawText> longestTexts(const MidiFileEvents& file, std::uint8_t type)
{
    std::vector<RawText> longest;
    for (const FileTrack& track : file.tracks)
        if (auto texts = textsOf(track, file.header, type); texts.size() > longest.size())
            longest = std::move(texts);
    return longest;
}

/// Returns the sung texts among the texts of a karaoke file. Those that begin with "@" tell about
/// the file. Nothing is sung in a file without such texts and without the marks of lines.
std::vector<RawText> sungTexts(std::vector<RawText> texts)
{
    const auto isAbout = [](const RawText& each) { return each.text.front() == '@'; };
    const auto beginsLine = [](const RawText& each) {
        return each.text.front() == '/' || each.text.front() == '\\';
    };
    if (std::ranges::none_of(texts, isAbout) && std::ranges::none_of(texts, beginsLine))
        return {};
    std::erase_if(texts, isAbout);
    return texts;
}

/// Returns whether words are told apart by spaces.
bool hasSpaces(const std::vector<RawText>& texts)
{
    return std::ranges::any_of(texts, [](const RawText& each) {
        return each.text.front() == ' ' || each.text.back() == ' ';
    });
}

std::size_t lengthOf(const LyricLine& line)
{
    std::size_t length = 0;
    for (const Syllable& syllable : line)
        length += syllable.text.size();
    return length;
}

} // namespace

std::vector<LyricLine> lyricsOf(const MidiFileEvents& file)
{
    std::vector<RawText> texts = longestTexts(file, midi::kLyric);
    if (texts.empty())
        texts = sungTexts(longestTexts(file, midi::kText));
    const bool isSpaced = hasSpaces(texts);
    std::vector<LyricLine> lines;
    bool isNewLine = true;
    for (const auto& [step, raw] : texts) {
        std::string_view text = raw;
        const std::size_t begin = std::min(text.find_first_not_of(kBreaks), text.size());
        isNewLine = isNewLine || begin > 0;
        text.remove_prefix(begin);
        const std::size_t end = text.find_last_not_of(kBreaks) + 1;
        std::string syllable = toUtf8(text.substr(0, end));
        if (!isSpaced && !syllable.empty() && syllable.back() != '-')
            syllable += ' ';
        if (!syllable.empty()) {
            const bool isLong = !lines.empty() && lengthOf(lines.back()) >= kLongLine &&
                                (lines.back().back().text.back() == ' ' || syllable[0] == ' ');
            if (isNewLine || isLong)
                lines.emplace_back();
            lines.back().push_back({step, std::move(syllable)});
            isNewLine = false;
        }
        isNewLine = isNewLine || end < text.size();
    }
    return lines;
}

LyricPlace lyricPlaceAt(const std::vector<LyricLine>& lines, double step)
{
    const auto begun = std::ranges::upper_bound(
        lines, step + kLead, {}, [](const LyricLine& line) { return line.front().step; });
    std::size_t line =
        begun == lines.begin() ? 0 : static_cast<std::size_t>(begun - lines.begin()) - 1;
    // The last syllables of the line before are sung first.
    while (line > 0 && lines[line].front().step > step &&
           lines[line - 1].back().step > step - kLead)
        --line;
    const auto next = std::ranges::upper_bound(lines[line], step, {}, &Syllable::step);
    if (next == lines[line].begin())
        return {line, std::nullopt};
    return {line, static_cast<std::size_t>(next - lines[line].begin()) - 1};
}

} // namespace velmora
