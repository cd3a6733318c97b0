#include "tuning/ExtendedScaleFile.h"

#include "tuning/ScaleFile.h"
#include "tuning/TextLines.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

/// Splits a text into words; those with spaces stand in quotation marks.
std::vector<std::string_view> splitArguments(std::string_view text)
{
    std::vector<std::string_view> arguments;
    for (text = trimmed(text); !text.empty(); text = trimmed(text)) {
        const bool isQuoted = text.starts_with('"');
        if (isQuoted)
            text.remove_prefix(1);
        const std::size_t length =
            std::min(isQuoted ? text.find('"') : text.find_first_of(" \t"), text.size());
        arguments.push_back(text.substr(0, length));
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    return arguments;
}

/// Returns the arguments of a directive, beginning with its name; none for any other line.
std::vector<std::string_view> directiveIn(std::string_view line)
{
    constexpr std::string_view kMark = "@ABL";
    if (!line.starts_with('!'))
        return {};
    const std::string_view text = trimmed(line.substr(1));
    if (!text.starts_with(kMark))
        return {};
    return splitArguments(text.substr(kMark.size()));
}

/// Reads the octave, the index of the note in it and its frequency.
void readReference(const TextLine& line, std::span<const std::string_view> arguments,
                   MappedScale& result)
{
    constexpr int kOctaveOfMiddleKey = 4, kLastMidiKey = 127;
    const char* form = "needs an octave, the index of a note and its frequency in hertz, which "
                       "sounds on a key from 0 to 127";
    const bool isComplete = arguments.size() >= 4;
    const auto octave = isComplete ? decimalNumber(arguments[1]) : std::nullopt;
    const auto index = isComplete ? wholeNumber(arguments[2]) : std::nullopt;
    const auto hertz = isComplete ? decimalNumber(arguments[3]) : std::nullopt;
    if (!octave || *octave != std::floor(*octave) || !index || !hertz || !(*hertz > 0.0))
        throw errorInLine(line, arguments.front(), form);
    const double key =
        result.mapping.middleKey + *index +
        (*octave - kOctaveOfMiddleKey) * static_cast<double>(result.scale.pitches.size());
    if (!(key >= 0.0 && key <= kLastMidiKey))
        throw errorInLine(line, arguments.front(), form);
    result.mapping.referenceKey = static_cast<int>(key);
    result.mapping.referenceHertz = *hertz;
}

} // namespace

MappedScale readExtendedScale(std::span<const std::byte> bytes)
{
    MappedScale result{readScale(bytes), {}};
    for (const TextLine& line : splitTextLines(bytes)) {
        const auto arguments = directiveIn(line.text);
        if (arguments.empty())
            continue;
        if (arguments.front() == "REFERENCE_PITCH")
            readReference(line, arguments, result);
        else if (arguments.front() == "NOTE_NAMES")
            result.scale.names.assign(arguments.begin() + 1, arguments.end());
    }
    return result;
}

} // namespace velmora
