#include "tuning/TuningFile.h"

#include "base/FormatError.h"
#include "base/Log.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "tuning/TextLines.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

namespace velmora {

namespace {

constexpr std::size_t kPitchClasses = 12;

/// The content lines of a file: in a scale the description, the count and eleven pitches; in the
/// frequency format the base, eleven frequencies and an ignored line.
constexpr std::size_t kKeptLines = 13;

struct Line {
    std::string_view text;
    std::size_t number; ///< Line number in the file, from 1.
};

struct Lines {
    std::vector<Line> kept;    ///< The first `kKeptLines` content lines.
    std::size_t keptCount = 0; ///< The number of content lines in the file.
    std::size_t count = 0;     ///< The number of lines in the file.
    std::string_view unended;  ///< The ignored text after the last line end.
};

std::string_view textOf(std::span<const std::byte> bytes)
{
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

/// Returns whether a line has content.
bool isKept(std::string_view line)
{
    // See docs/decisions.md, 6.
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
    // See docs/decisions.md, 7.
    lines.unended = text;
    return lines;
}

FormatError wrongLine(const Line& line, const std::string& reason)
{
    return FormatError::atLine(line.number, quotedLine(line.text) + " " + reason);
}

FormatError wrongLineCount(const Lines& lines, TuningFormat format, const std::string& limit)
{
    std::string message = typeName(format) + " files need " + limit + " " +
                          std::to_string(kKeptLines) + " lines of content; this one has " +
                          std::to_string(lines.keptCount);
    if (lines.count == 0 && lines.unended.find('\r') != std::string_view::npos)
        message += " (lines must end in LF or CR LF, not in CR alone)";
    else if (!lines.unended.empty())
        message += " (the last line is ignored because it has no line end)";
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

/// Appends a line's tuning. Throws FormatError if the pitch of any MIDI key would be unplayable.
void append(Temperament& temperament, std::unique_ptr<Tuning> tuning, const Line& line)
{
    constexpr int kLowestOctave = -4;
    constexpr int kHighestOctave = 6;
    const double lowest = tuning->tune(temperament.baseFrequency(), kLowestOctave);
    const double highest = tuning->tune(temperament.baseFrequency(), kHighestOctave);
    if (!(lowest > 0.0) || !std::isfinite(highest))
        throw wrongLine(line, "is not a playable pitch");
    temperament.append(std::move(tuning));
}

/// Reads a ratio, of which both parts are truncated to whole numbers.
std::unique_ptr<Tuning> readRatio(const Line& line, std::size_t slash)
{
    // See docs/decisions.md, 4.
    const double numerator = std::trunc(finiteNumber(line, line.text.substr(0, slash)));
    const double denominator = std::trunc(finiteNumber(line, line.text.substr(slash + 1)));
    if (denominator == 0.0)
        throw wrongLine(line, "has a zero denominator");
    logger("tuning").debug("R {:.0f}/{:.0f}", numerator, denominator);
    return std::make_unique<Ratio>(numerator, denominator);
}

/// Reads cents, with or without a decimal point.
std::unique_ptr<Tuning> readCents(const Line& line)
{
    const double cents = finiteNumber(line, line.text);
    logger("tuning").debug("C {:f}", cents);
    return std::make_unique<Cent>(cents);
}

void checkNoteCount(const Line& line)
{
    const auto count = leadingInteger(line.text);
    if (count != static_cast<int>(kPitchClasses))
        throw wrongLine(line, "is the number of notes; only scales of 12 notes are supported");
}

/// Reads a scale. The line of the octave is ignored.
Temperament readScale(const Lines& lines)
{
    if (lines.kept.size() > 1)
        checkNoteCount(lines.kept[1]);
    if (lines.kept.size() < kKeptLines)
        throw wrongLineCount(lines, TuningFormat::Scale, "at least");

    Temperament temperament;
    temperament.append(std::make_unique<Cent>(0.0));
    // See docs/decisions.md, 5.
    for (std::size_t i = 2; i < kKeptLines; ++i) {
        const Line& line = lines.kept[i];
        // See docs/decisions.md, 3.
        const std::size_t slash = line.text.find('/');
        append(temperament, slash == std::string::npos ? readCents(line) : readRatio(line, slash),
               line);
    }
    return temperament;
}

Temperament readFrequencies(const Lines& lines)
{
    if (lines.keptCount != kKeptLines)
        throw wrongLineCount(lines, TuningFormat::Frequencies, "exactly");

    Temperament temperament;
    const Line& baseLine = lines.kept.front();
    temperament.setBaseFrequency(finiteNumber(baseLine, baseLine.text));
    for (std::size_t i = 1; i < kPitchClasses; ++i) {
        const Line& line = lines.kept[i];
        const double hertz = finiteNumber(line, line.text);
        logger("tuning").debug("F {:f}", hertz);
        append(temperament, std::make_unique<Freq>(hertz), line);
    }
    // The format has no frequency for B: see docs/decisions.md, 8.
    append(temperament, std::make_unique<Freq>(2.0 * temperament.baseFrequency()), baseLine);
    return temperament;
}

} // namespace

std::optional<TuningFormat> tuningFormatOf(const std::filesystem::path& path)
{
    const std::string extension = lowerCase(path.extension().string());
    if (extension == ".scl")
        return TuningFormat::Scale;
    if (extension == ".mtx")
        return TuningFormat::Frequencies;
    if (extension == ".ascl")
        return TuningFormat::ExtendedScale;
    if (extension == ".tun")
        return TuningFormat::KeyTunings;
    return std::nullopt;
}

bool isMappingFile(const std::filesystem::path& path)
{
    return lowerCase(path.extension().string()) == ".kbm";
}

std::string typeName(TuningFormat format)
{
    switch (format) {
    case TuningFormat::Scale:
        return "Scale";
    case TuningFormat::Frequencies:
        return "MTX";
    case TuningFormat::ExtendedScale:
        return "ASCL";
    default:
        return "TUN";
    }
}

Temperament readTuning(std::span<const std::byte> bytes, TuningFormat format)
{
    const Lines lines = splitLines(textOf(bytes));
    return format == TuningFormat::Frequencies ? readFrequencies(lines) : readScale(lines);
}

std::string readTuningDescription(std::span<const std::byte> bytes, TuningFormat format)
{
    const Lines lines = splitLines(textOf(bytes));
    if (format == TuningFormat::Frequencies || lines.kept.empty())
        return {};
    constexpr std::string_view kSpaces = " \t";
    std::string_view text = lines.kept.front().text;
    text.remove_prefix(std::min(text.find_first_not_of(kSpaces), text.size()));
    text.remove_suffix(text.size() - (text.find_last_not_of(kSpaces) + 1));
    return toUtf8(text);
}

} // namespace velmora
