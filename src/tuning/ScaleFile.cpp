#include "tuning/ScaleFile.h"

#include "base/Text.h"
#include "tuning/TextLines.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace velmora {

namespace {

constexpr std::string_view kDigits = "0123456789";

constexpr const char* kNoPitch =
    "is not a pitch: write cents with a point, as in 701.955, or a ratio, as in 3/2";

/// Returns what follows a part of a text.
std::string_view behind(std::string_view text, std::string_view part)
{
    return text.substr(static_cast<std::size_t>(part.data() - text.data()) + part.size());
}

int readCount(const TextLine& line)
{
    const std::string_view word = firstWord(line.text);
    const auto count = wholeNumber(word);
    if (!count || *count > kMostScaleNotes)
        throw errorInLine(line, word, "is not a number of notes from 0 to 128");
    return *count;
}

/// Reads the digits with which a text begins. Numbers of any length are read, as exactly as cents
/// need it.
double readDigits(const TextLine& line, std::string_view& text)
{
    const std::string_view digits =
        text.substr(0, std::min(text.find_first_not_of(kDigits), text.size()));
    if (digits.empty())
        throw errorInLine(line, text, kNoPitch);
    double value = 0.0;
    if (std::from_chars(digits.data(), digits.data() + digits.size(), value).ec != std::errc())
        throw errorInLine(line, digits, "has a number that is too large");
    if (value == 0.0)
        throw errorInLine(line, digits, "is not a pitch above 0");
    text = behind(text, digits);
    return value;
}

Ratio readScaleRatio(const TextLine& line)
{
    constexpr std::string_view kBetween = " \t";
    std::string_view text = trimmed(line.text);
    if (text.starts_with('+'))
        text.remove_prefix(1);
    const double numerator = readDigits(line, text);
    double denominator = 1.0;
    std::string_view rest = trimmed(text);
    if (rest.starts_with('/')) {
        text = rest.substr(1);
        text.remove_prefix(std::min(text.find_first_not_of(kBetween), text.size()));
        denominator = readDigits(line, text);
    }
    if (!text.empty() && text.find_first_of(" \t!") != 0)
        throw errorInLine(line, text, kNoPitch);
    return {numerator, denominator};
}

ScalePitch readScalePitch(const TextLine& line)
{
    const std::string_view word = firstWord(line.text);
    if (word.find('.') == std::string_view::npos)
        return readScaleRatio(line);
    // The unit may follow directly.
    const std::string_view number =
        word.substr(0, word.find_last_of(std::string(kDigits) + '.') + 1);
    const auto cents = decimalNumber(number);
    if (!cents)
        throw errorInLine(line, word, kNoPitch);
    return Cent(*cents);
}

Scale readLines(ContentLines& lines)
{
    const auto description = lines.next();
    if (!description)
        throw FormatError("the scale has no description and no number of notes");
    Scale scale;
    scale.description = toUtf8(trimmed(description->text));
    const int count = readCount(lines.need("the scale has no number of notes"));
    for (int i = 0; i < count; ++i)
        scale.pitches.push_back(
            readScalePitch(lines.need("the scale ends after " + std::to_string(i) + " of " +
                                      std::to_string(count) + " pitches")));
    return scale;
}

bool isWhole(double value)
{
    return value >= 1.0 && value == std::floor(value) && std::isfinite(value);
}

std::string textOf(const ScalePitch& pitch)
{
    const auto* ratio = std::get_if<Ratio>(&pitch);
    if (ratio == nullptr || !isWhole(ratio->numerator()) || !isWhole(ratio->denominator()))
        return decimalText(centsOf(pitch));
    std::string text = decimalText(ratio->numerator()) + '/' + decimalText(ratio->denominator());
    std::erase(text, '.');
    return text;
}

} // namespace

Scale readScale(std::span<const std::byte> bytes)
{
    ContentLines lines(bytes);
    return readLines(lines);
}

std::string writeScale(const Scale& scale)
{
    std::string description = scale.description;
    std::ranges::replace_if(
        description, [](char c) { return c == '\n' || c == '\r'; }, ' ');
    // Otherwise it could be a comment.
    std::string text = (description.starts_with('!') ? " " : "") + description + "\n " +
                       std::to_string(scale.pitches.size()) + "\n!\n";
    for (const ScalePitch& pitch : scale.pitches)
        text += ' ' + textOf(pitch) + '\n';
    return text;
}

} // namespace velmora
