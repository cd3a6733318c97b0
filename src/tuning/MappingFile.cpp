#include "tuning/MappingFile.h"

#include "tuning/TextLines.h"

namespace velmora {

namespace {

constexpr int kLastMidiKey = 127;

/// More degrees than a scale can have keys for.
constexpr int kHighestDegree = 9999;

int readWhole(const TextLine& line, const std::string& name, int highest)
{
    const std::string_view word = firstWord(line.text);
    const auto value = wholeNumber(word);
    if (!value || *value > highest)
        throw errorInLine(line, word,
                          "is not " + name + ", a number from 0 to " + std::to_string(highest));
    return *value;
}

/// Reads the number on the next line.
int readNext(ContentLines& lines, const std::string& name, int highest)
{
    return readWhole(lines.need("the mapping ends before " + name), name, highest);
}

double readFrequency(ContentLines& lines)
{
    const TextLine line = lines.need("the mapping ends before the frequency");
    const std::string_view word = firstWord(line.text);
    const auto hertz = decimalNumber(word);
    if (!hertz || !(*hertz > 0.0))
        throw errorInLine(line, word, "is not a frequency in hertz above 0");
    return *hertz;
}

std::optional<int> readDegree(const TextLine& line)
{
    const std::string_view word = firstWord(line.text);
    if (word == "x" || word == "X")
        return std::nullopt;
    return readWhole(line, "a degree of the scale or an x", kHighestDegree);
}

} // namespace

KeyMapping readMapping(std::span<const std::byte> bytes)
{
    ContentLines lines(bytes);
    KeyMapping mapping;
    const int size = readNext(lines, "the size of the mapping", kLastMidiKey + 1);
    mapping.firstKey = readNext(lines, "the first key", kLastMidiKey);
    mapping.lastKey = readNext(lines, "the last key", kLastMidiKey);
    mapping.middleKey = readNext(lines, "the middle key", kLastMidiKey);
    mapping.referenceKey = readNext(lines, "the reference key", kLastMidiKey);
    mapping.referenceHertz = readFrequency(lines);
    mapping.octaveDegree = readNext(lines, "the formal octave", kHighestDegree);
    if (size == 0)
        mapping.octaveDegree = 0; // does not count
    while (mapping.degrees.size() < static_cast<std::size_t>(size)) {
        const auto line = lines.next();
        if (!line)
            break;
        if (!trimmed(line->text).empty())
            mapping.degrees.push_back(readDegree(*line));
    }
    mapping.degrees.resize(static_cast<std::size_t>(size));
    return mapping;
}

std::string writeMapping(const KeyMapping& mapping, std::size_t notes)
{
    const int octave = mapping.octaveDegree == 0 ? static_cast<int>(notes) : mapping.octaveDegree;
    std::string text;
    const auto add = [&](const std::string& name, const std::string& value) {
        text += "! " + name + "\n" + value + "\n";
    };
    add("Size of the mapping; 0 if each key plays the next degree:",
        std::to_string(mapping.degrees.size()));
    add("First key:", std::to_string(mapping.firstKey));
    add("Last key:", std::to_string(mapping.lastKey));
    add("Middle key, with which the mapping begins:", std::to_string(mapping.middleKey));
    add("Reference key:", std::to_string(mapping.referenceKey));
    add("Its frequency in hertz:", decimalText(mapping.referenceHertz));
    add("Degree of the formal octave:", std::to_string(octave));
    text += "! Degrees of the keys; x for a silent key:\n";
    for (const auto& degree : mapping.degrees)
        text += (degree ? std::to_string(*degree) : "x") + "\n";
    return text;
}

} // namespace velmora
