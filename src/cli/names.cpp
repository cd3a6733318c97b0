#include "cli/names.h"

#include "app/programNames.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "cli/commands.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <span>

namespace velmora {

namespace {

bool isLetterOrDigit(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return (byte >= '0' && byte <= '9') || (byte >= 'a' && byte <= 'z') || byte >= 0x80;
}

/// The lower-case letters and digits of a text, from each of its words to its end.
std::vector<std::string> wordsToEnd(const std::string& text)
{
    std::vector<std::string> ends;
    bool isInWord = false;
    for (const char c : lowerCase(text)) {
        if (isLetterOrDigit(c)) {
            if (!isInWord)
                ends.emplace_back();
            for (std::string& end : ends)
                end += c;
        }
        isInWord = c != ' ' && (isInWord || isLetterOrDigit(c));
    }
    return ends;
}

} // namespace

std::optional<std::size_t> findName(const std::vector<std::string>& names, const std::string& text)
{
    const auto wanted = wordsToEnd(text);
    if (wanted.empty())
        return std::nullopt;
    std::vector<std::size_t> candidates;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto ends = wordsToEnd(names[i]);
        const auto whole = std::span(ends).first(std::min<std::size_t>(2, ends.size()));
        if (std::ranges::find(whole, wanted.front()) != whole.end())
            return i;
        if (std::ranges::any_of(ends,
                                [&](const auto& end) { return end.starts_with(wanted.front()); }))
            candidates.push_back(i);
    }
    if (candidates.empty())
        return std::nullopt;
    if (candidates.size() > 1) {
        std::vector<std::string> titles;
        titles.reserve(candidates.size());
        for (const std::size_t i : candidates)
            titles.push_back(names[i]);
        throw UsageError(
            fmt::format("\"{}\" may mean any of these: {}", text, fmt::join(titles, ", ")));
    }
    return candidates.front();
}

std::uint8_t programNamed(const std::string& text)
{
    std::optional<std::size_t> program;
    if (!text.empty() && text.find_first_not_of("0123456789") == std::string::npos)
        program = static_cast<std::size_t>(leadingInteger(text).value_or(-1));
    else
        program = findName({kMIDIInstrumentNames.begin(), kMIDIInstrumentNames.end()}, text);
    if (!program || *program >= kMIDIInstrumentNames.size())
        throw UsageError("there is no General MIDI program \"" + text +
                         "\"; --program takes a number from 0 to 127 or a name, as in \"Church "
                         "Organ\"");
    return static_cast<std::uint8_t>(*program);
}

// See docs/decisions.md, 42.
std::string programTitle(std::uint8_t program)
{
    return fmt::format("{} (program {})", kMIDIInstrumentNames.at(program), program);
}

} // namespace velmora
