#include "tuning/TuningFile.h"

#include "base/FormatError.h"
#include "base/Log.h"
#include "base/Numbers.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

namespace velmora {

namespace {

constexpr std::size_t kPitchClasses = 12;

/// How many lines a file must hold: in a scale a description, the count and eleven pitches; in the
/// frequency format the base, eleven frequencies and one more.
constexpr std::size_t kKeptLines = 13;

struct Line {
    std::string_view text;
    std::size_t number; ///< In the file, from 1.
};

struct Lines {
    std::vector<Line> kept;    ///< The first lines of content, as many as can have a meaning.
    std::size_t keptCount = 0; ///< All lines of content.
    std::size_t count = 0;     ///< All lines.
    std::string_view unended;  ///< What follows the last line end. It does not count.
};

bool isKept(std::string_view line)
{
    return !line.empty() && std::string_view("\n\r!/:@").find(line.front()) == std::string::npos;
}

Lines splitLines(std::string_view text)
{
    Lines lines;
    for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end + 1);
        ++lines.count;
        if (!isKept(line))
            continue;
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        if (++lines.keptCount <= kKeptLines)
            lines.kept.push_back({line, lines.count});
    }
    lines.unended = text;
    return lines;
}

/// The line for an error message: plain text of a readable length, whatever the file holds.
std::string quoted(const Line& line)
{
    constexpr std::size_t kLongest = 40;
    std::string text(line.text.substr(0, kLongest));
    std::ranges::replace_if(
        text, [](char c) { return c < ' ' || c > '~'; }, '?');
    return '"' + text + (line.text.size() > kLongest ? "...\"" : "\"");
}

FormatError wrongLine(const Line& line, const std::string& reason)
{
    return FormatError::atLine(line.number, quoted(line) + " " + reason);
}

FormatError wrongLineCount(const Lines& lines, const std::string& wanted)
{
    std::string message = "the file holds " + std::to_string(lines.keptCount) +
                          (lines.keptCount == 1 ? " line" : " lines") + " of content, but " +
                          wanted + " " + std::to_string(kKeptLines) + " are wanted";
    if (lines.count == 0 && lines.unended.find('\r') != std::string_view::npos)
        message += " (a line must end in LF or CR LF, not in CR alone)";
    else if (!lines.unended.empty())
        message += " (the last line does not count: it has no line end)";
    return FormatError::atLine(lines.count + (lines.unended.empty() ? 0 : 1), message);
}

double finiteNumber(const Line& line, std::string_view text)
{
    const auto value = leadingNumber(text);
    if (!value)
        throw wrongLine(line, "is not a number");
    if (!std::isfinite(*value))
        throw wrongLine(line, "is not a finite number");
    return *value;
}

/// Adds the pitch of a line, if it is one on every key that a MIDI keyboard can have.
void append(Temperament& temperament, std::unique_ptr<Tuning> tuning, const Line& line)
{
    constexpr int kLowestOctave = -4;
    constexpr int kHighestOctave = 6;
    const double lowest = tuning->tune(temperament.baseFrequency(), kLowestOctave);
    const double highest = tuning->tune(temperament.baseFrequency(), kHighestOctave);
    if (!(lowest > 0.0) || !std::isfinite(highest))
        throw wrongLine(line, "is no pitch");
    temperament.append(std::move(tuning));
}

std::unique_ptr<Tuning> readRatio(const Line& line, std::size_t slash)
{
    const double numerator = std::trunc(finiteNumber(line, line.text.substr(0, slash)));
    const double denominator = std::trunc(finiteNumber(line, line.text.substr(slash + 1)));
    if (denominator == 0.0)
        throw wrongLine(line, "divides by zero");
    logger("tuning").info("R {:.0f}/{:.0f}", numerator, denominator);
    return std::make_unique<Ratio>(numerator, denominator);
}

std::unique_ptr<Tuning> readCents(const Line& line)
{
    const double cents = finiteNumber(line, line.text);
    logger("tuning").info("C {:f}", cents);
    return std::make_unique<Cent>(cents);
}

void checkNoteCount(const Line& line)
{
    const auto count = leadingInteger(line.text);
    if (count != static_cast<int>(kPitchClasses))
        throw wrongLine(line, "is the number of notes, but a scale of 12 notes is wanted");
}

Temperament readScale(const Lines& lines)
{
    if (lines.kept.size() > 1)
        checkNoteCount(lines.kept[1]);
    if (lines.kept.size() < kKeptLines)
        throw wrongLineCount(lines, "at least");

    Temperament temperament;
    temperament.append(std::make_unique<Cent>(0.0));
    for (std::size_t i = 2; i < kKeptLines; ++i) {
        const Line& line = lines.kept[i];
        const std::size_t slash = line.text.find('/');
        append(temperament, slash == std::string::npos ? readCents(line) : readRatio(line, slash),
               line);
    }
    return temperament;
}

Temperament readFrequencies(const Lines& lines)
{
    if (lines.keptCount != kKeptLines)
        throw wrongLineCount(lines, "exactly");

    Temperament temperament;
    const Line& baseLine = lines.kept.front();
    temperament.setBaseFrequency(finiteNumber(baseLine, baseLine.text));
    for (std::size_t i = 1; i < kPitchClasses; ++i) {
        const Line& line = lines.kept[i];
        const double hertz = finiteNumber(line, line.text);
        logger("tuning").info("F {:f}", hertz);
        append(temperament, std::make_unique<Freq>(hertz), line);
    }
    // The format names eleven pitches; the base an octave up closes the keyboard.
    append(temperament, std::make_unique<Freq>(2.0 * temperament.baseFrequency()), baseLine);
    return temperament;
}

} // namespace

Temperament readTuning(std::span<const std::byte> bytes, TuningFormat format)
{
    const Lines lines = splitLines({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    return format == TuningFormat::Frequencies ? readFrequencies(lines) : readScale(lines);
}

} // namespace velmora
