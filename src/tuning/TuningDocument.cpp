#include "tuning/TuningDocument.h"

#include "base/File.h"
#include "base/FormatError.h"
#include "base/Log.h"
#include "base/Numbers.h"
#include "tuning/DynamicTemperament.h"

#include <cmath>
#include <new>
#include <vector>

namespace {

constexpr std::size_t kPitchClasses = 12;

/// How many lines a file must hold: in a scale a description, the count and eleven pitches; in the
/// frequency format the base, eleven frequencies and one more.
constexpr std::size_t kKeptLines = 13;

struct Line {
    std::string text;
    std::size_t number; ///< In the file, from 1.
};

struct Lines {
    std::vector<Line> kept;
    std::size_t count = 0;  ///< All lines of the file.
    bool openEnded = false; ///< The file does not end with a line end.
};

bool isKept(std::string_view line)
{
    return !line.empty() && std::string_view("\n\r!/:@").find(line.front()) == std::string::npos;
}

/// The lines that hold content, without their line ends. A last line without one does not count.
Lines keptLines(const std::vector<std::byte>& bytes)
{
    std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    Lines lines;
    for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end + 1);
        ++lines.count;
        if (!isKept(line))
            continue;
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        lines.kept.push_back({std::string(line), lines.count});
    }
    lines.openEnded = !text.empty();
    return lines;
}

FormatError wrongLineCount(const Lines& lines, const std::string& wanted)
{
    std::string message = "the file holds " + std::to_string(lines.kept.size()) +
                          " lines of content, but " + wanted + " are wanted";
    if (lines.openEnded)
        message += " (the last line does not count: it has no line end)";
    return FormatError::atLine(lines.count + (lines.openEnded ? 1 : 0), message);
}

double finiteNumber(const Line& line, std::string_view text)
{
    const auto value = leadingNumber(text);
    if (!value)
        throw FormatError::atLine(line.number, "\"" + line.text + "\" is not a number");
    if (!std::isfinite(*value))
        throw FormatError::atLine(line.number, "\"" + line.text + "\" is not a finite number");
    return *value;
}

std::unique_ptr<Tuning> readRatio(const Line& line, std::size_t slash)
{
    const double numerator = std::trunc(finiteNumber(line, line.text.substr(0, slash)));
    const double denominator = std::trunc(finiteNumber(line, line.text.substr(slash + 1)));
    if (denominator == 0.0)
        throw FormatError::atLine(line.number, "\"" + line.text + "\" divides by zero");
    if (!std::isnormal(numerator / denominator) || numerator / denominator < 0.0)
        throw FormatError::atLine(line.number, "\"" + line.text + "\" is no ratio above zero");
    logger("tuning").info("R {:.0f}/{:.0f}", numerator, denominator);
    return std::make_unique<Ratio>(numerator, denominator);
}

std::unique_ptr<Tuning> readCents(const Line& line)
{
    const double cents = finiteNumber(line, line.text);
    if (!std::isnormal(std::exp2(cents / 1200.0)))
        throw FormatError::atLine(line.number, "\"" + line.text + "\" cents are no audible pitch");
    logger("tuning").info("C {:f}", cents);
    return std::make_unique<Cent>(cents);
}

Temperament readScale(const Lines& lines)
{
    if (lines.kept.size() < 2)
        throw wrongLineCount(lines, "at least " + std::to_string(kKeptLines));
    const Line& countLine = lines.kept[1];
    const auto count = leadingInteger(countLine.text);
    const std::string wanted = ", but a scale of 12 notes is wanted";
    if (!count)
        throw FormatError::atLine(countLine.number, "the number of notes, \"" + countLine.text +
                                                        "\", is not a number" + wanted);
    if (*count != static_cast<int>(kPitchClasses))
        throw FormatError::atLine(countLine.number,
                                  "the number of notes is " + std::to_string(*count) + wanted);
    if (lines.kept.size() < kKeptLines)
        throw wrongLineCount(lines, "at least " + std::to_string(kKeptLines));

    Temperament temperament;
    temperament.append(std::make_unique<Cent>(0.0));
    for (std::size_t i = 2; i < kKeptLines; ++i) {
        const Line& line = lines.kept[i];
        const std::size_t slash = line.text.find('/');
        temperament.append(slash == std::string::npos ? readCents(line) : readRatio(line, slash));
    }
    return temperament;
}

double frequency(const Line& line)
{
    const double hertz = finiteNumber(line, line.text);
    if (!(hertz > 0.0))
        throw FormatError::atLine(line.number, "\"" + line.text + "\" is no frequency above zero");
    return hertz;
}

Temperament readFrequencies(const Lines& lines)
{
    if (lines.kept.size() != kKeptLines)
        throw wrongLineCount(lines, "exactly " + std::to_string(kKeptLines));

    Temperament temperament;
    temperament.setBaseFrequency(frequency(lines.kept[0]));
    for (std::size_t i = 1; i < kPitchClasses; ++i) {
        const double hertz = frequency(lines.kept[i]);
        logger("tuning").info("F {:f}", hertz);
        temperament.append(std::make_unique<Freq>(hertz));
    }
    // The format names eleven pitches; the base an octave up closes the keyboard.
    temperament.append(std::make_unique<Freq>(2.0 * temperament.baseFrequency()));
    return temperament;
}

} // namespace

TuningDocument::TuningDocument() : temperament_(std::make_unique<Temperament>()) {}

std::unique_ptr<TuningDocument> TuningDocument::initBuiltin(const std::string& name)
{
    auto document = std::make_unique<TuningDocument>();
    document->name_ = name;
    if (name == "Dynamic")
        document->temperament_ = std::make_unique<DynamicTemperament>();
    else if (name == "Equal")
        *document->temperament_ = Temperament::Equal();
    else
        *document->temperament_ = Temperament::Meantone();
    return document;
}

bool TuningDocument::readFromURL(const std::filesystem::path& path, std::string_view type)
{
    name_ = path.filename().string();
    errorString_.clear();
    try {
        const Lines lines = keptLines(readFile(path));
        logger("tuning").info("TUNING {}", name_);
        *temperament_ = type == kFrequencyType ? readFrequencies(lines) : readScale(lines);
        return true;
    } catch (const FormatError& error) {
        errorString_ = error.inFile(name_);
    } catch (const std::bad_alloc&) {
        errorString_ = name_ + ": is too large to be read into memory";
    }
    return false;
}
