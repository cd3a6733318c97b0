#include "cli/names.h"

#include "app/Tunings.h"
#include "app/programNames.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "cli/commands.h"
#include "sound/Instrument.h"
#include "tuning/spelling.h"

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

std::string nameOf(const Instrument& instrument, const Program& program)
{
    return instrument.hasSubMenu()
               ? kMIDIInstrumentNames.at(static_cast<std::size_t>(program.number))
               : program.name;
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

std::size_t findProgram(const Instrument& instrument, std::optional<int> bank,
                        const std::string& text)
{
    const auto programs = instrument.programs();
    if (programs.empty())
        throw UsageError("the instrument has no programs, so --program and --bank do not apply");
    std::vector<std::size_t> candidates;
    std::vector<std::string> names;
    for (std::size_t i = 0; i < programs.size(); ++i) {
        if (bank && programs[i].bank != *bank)
            continue;
        candidates.push_back(i);
        names.push_back(nameOf(instrument, programs[i]));
    }
    std::optional<std::size_t> found;
    if (text.find_first_not_of("0123456789") == std::string::npos) {
        const long number = text.empty() ? 0 : leadingInteger(text).value_or(-1);
        const auto matches = [&](std::size_t i) {
            return text.empty() || programs[i].number == number;
        };
        const auto candidate = std::ranges::find_if(candidates, matches);
        if (candidate != candidates.end())
            return *candidate;
    } else {
        found = findName(names, text);
    }
    if (found)
        return candidates[*found];
    if (candidates.empty())
        throw UsageError(fmt::format("the instrument has no bank {}", *bank));
    throw UsageError(fmt::format("there is no {}program \"{}\"; --program takes a number from 0 to "
                                 "127 or a name, as in \"{}\"",
                                 instrument.hasSubMenu() ? "General MIDI " : "", text,
                                 instrument.hasSubMenu() ? "Church Organ" : names.front()));
}

// See docs/decisions.md, 42.
std::string programTitle(const Instrument& instrument)
{
    const Program& program = instrument.programs()[instrument.program()];
    return fmt::format("{} ({}program {})", nameOf(instrument, program),
                       program.bank == 0 ? "" : fmt::format("bank {}, ", program.bank),
                       program.number);
}

std::string tuningTitle(const Tunings& tunings)
{
    const Transposition& where = tunings.transposition();
    std::string title = tunings.name();
    if (where.root != 0)
        title += " on " + rootName(where.root);
    if (where.a)
        title += fmt::format(", A {:g} Hz", *where.a);
    return title;
}

} // namespace velmora
