#include "import/SectionedRanks.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "sound/keys.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <array>

namespace velmora {

namespace {

constexpr int kKeysPerOctave = 12;
constexpr int kLowestC = 36;

/// The greatest number of times that a borrowed pipe is looked up in turn.
constexpr int kMaximumBorrowings = 16;

/// What the value of a pipe's key is.
enum class PipeKind : std::uint8_t { File, Borrowed, Silent };

PipeKind kindOf(const std::string& value)
{
    const std::string lower = lowerCase(value);
    if (lower.starts_with("ref:"))
        return PipeKind::Borrowed;
    return lower.empty() || lower == "dummy" || lower == "empty" ? PipeKind::Silent
                                                                 : PipeKind::File;
}

std::string keyOf(int pipe)
{
    return fmt::format("pipe{}", pipe);
}

/// The manual, the stop and the pipe in "REF:manual:stop:pipe".
std::optional<std::array<int, 3>> numbersOf(std::string_view reference)
{
    std::array<int, 3> result{};
    for (int& number : result) {
        const std::size_t colon = reference.find(':');
        if (colon == std::string_view::npos)
            return std::nullopt;
        reference.remove_prefix(colon + 1);
        const auto read = leadingInteger(reference);
        if (!read)
            return std::nullopt;
        number = *read;
    }
    return result;
}

/// Returns how many octaves a rank must be written lower so that its pipes have MIDI keys.
int octavesTooHigh(int lowestKey, int highestKey)
{
    int octaves = 0;
    while (highestKey - octaves * kKeysPerOctave > kLastKey &&
           lowestKey - (octaves + 1) * kKeysPerOctave >= 0)
        ++octaves;
    while (lowestKey - octaves * kKeysPerOctave < 0 &&
           highestKey - (octaves - 1) * kKeysPerOctave <= kLastKey)
        --octaves;
    return octaves;
}

} // namespace

SectionedRanks::SectionedRanks(const OrganSections& sections,
                               const std::map<int, OrganManual>& manuals, PipeOrgan& organ,
                               OrganOmissions& omissions)
    : sections_(sections), manuals_(manuals), organ_(organ), omissions_(omissions),
      pipes_(sections, organ.files, omissions)
{
    for (const int number : sections.numbers("windchestgroup"))
        hasSwells_ |=
            !sections.find(fmt::format("windchestgroup{}", number))->numbers("enclosure").empty();
    // The pedal is number 0, so every manual comes after it. See docs/decisions.md, 152.
    for (const auto& [manualNumber, manual] : manuals) {
        for (const auto& [stopNumber, stop] : manual.stops) {
            divisions_[stop] = manual.division;
            for (const int n : stop->numbers("rank")) {
                if (const OrganSection* rank = rankOf(*stop, n))
                    divisions_[rank] = manual.division;
            }
        }
    }
}

int SectionedRanks::lastPipe(const OrganSection& section)
{
    const std::vector<int> numbers = section.numbers("pipe");
    return numbers.empty() ? 0 : std::min(numbers.back(), static_cast<int>(kKeys) * 2);
}

int SectionedRanks::firstKeyOf(const OrganSection& stop, const OrganManual& manual)
{
    const int logicalKey =
        std::clamp(stop.integer("firstaccessiblepipelogicalkeynumber", 1), 0, 999);
    const int pipe = std::clamp(stop.integer("firstaccessiblepipelogicalpipenumber", 1), 0, 999);
    return manual.midiKey(logicalKey) - (pipe - 1);
}

const OrganSection* SectionedRanks::rankOf(const OrganSection& stop, int n) const
{
    return sections_.find(fmt::format("rank{}", stop.integer(fmt::format("rank{}", n), 0)));
}

std::optional<SectionedRanks::Place> SectionedRanks::find(const OrganSection& section, int pipe,
                                                          int firstKey)
{
    return find(section, pipe, firstKey, 0);
}

std::optional<SectionedRanks::Place> SectionedRanks::find(const OrganSection& section, int pipe,
                                                          int firstKey, int borrowings)
{
    if (kindOf(section.text(keyOf(pipe))) == PipeKind::Borrowed)
        return findBorrowed(section, pipe, borrowings);
    const Built& built = build(section, firstKey);
    if (pipe < 1 || pipe >= static_cast<int>(built.sounds.size()) ||
        !built.sounds[static_cast<std::size_t>(pipe)])
        return std::nullopt;
    return Place{built.rank, built.firstKey + pipe - 1};
}

std::optional<SectionedRanks::Place> SectionedRanks::findBorrowed(const OrganSection& section,
                                                                  int pipe, int borrowings)
{
    const auto numbers = numbersOf(section.text(keyOf(pipe)));
    if (!numbers || borrowings == kMaximumBorrowings) {
        omissions_.addPipe(section, pipe,
                           numbers
                               ? "borrowed from pipes that are borrowed from each other"
                               : "does not say from which manual, stop and pipe it is borrowed");
        return std::nullopt;
    }
    const auto [manualNumber, stopNumber, pipeNumber] = *numbers;
    const auto manual = manuals_.find(manualNumber);
    const OrganSection* stop = nullptr;
    if (manual != manuals_.end()) {
        const auto found = manual->second.stops.find(stopNumber);
        if (found != manual->second.stops.end())
            stop = found->second;
    }
    if (stop == nullptr) {
        omissions_.addPipe(section, pipe,
                           fmt::format("borrowed from stop {} of manual {}, which does not exist",
                                       stopNumber, manualNumber));
        return std::nullopt;
    }
    const OrganSection* rank = rankOf(*stop, 1);
    const auto place =
        stop->integer("numberofranks", 0) > 0 && rank != nullptr
            ? find(*rank, pipeNumber, kLowestC, borrowings + 1)
            : find(*stop, pipeNumber, firstKeyOf(*stop, manual->second), borrowings + 1);
    if (!place && borrowings == 0)
        omissions_.addPipe(section, pipe, "borrowed from a pipe that does not sound");
    return place;
}

const SectionedRanks::Built& SectionedRanks::build(const OrganSection& section, int firstKey)
{
    const auto [entry, isNew] = built_.try_emplace(&section);
    Built& built = entry->second;
    if (!isNew)
        return built;

    std::vector<int> numbers;
    for (const int number : section.numbers("pipe")) {
        if (number >= 1 && number <= lastPipe(section) &&
            kindOf(section.text(keyOf(number))) == PipeKind::File)
            numbers.push_back(number);
    }
    if (numbers.empty())
        return built;
    const int key = std::clamp(section.integer("firstmidinotenumber", firstKey), -999, 999);
    const int octaves = octavesTooHigh(key + numbers.front() - 1, key + numbers.back() - 1);
    built.rank = organ_.ranks.size();
    built.firstKey = key - octaves * kKeysPerOctave;
    built.sounds.resize(static_cast<std::size_t>(numbers.back()) + 1);
    PipeOrgan::Rank rank;
    rank.name = section.text("name");
    rank.division = swellOf(section);
    for (const int number : numbers) {
        const int pipeKey = built.firstKey + number - 1;
        if (pipeKey < 0 || pipeKey > kLastKey) {
            omissions_.addPipe(section, number, "is outside the MIDI keys 0 to 127");
        } else if (auto pipe = pipes_.read(section, number, pipeKey, octaves)) {
            rank.pipes.push_back(std::move(*pipe));
            built.sounds[static_cast<std::size_t>(number)] = true;
        }
    }
    organ_.ranks.push_back(std::move(rank));
    return built;
}

std::optional<std::size_t> SectionedRanks::swellOf(const OrganSection& section) const
{
    const OrganSection* windchest = pipes_.windchest(section);
    const auto division = divisions_.find(&section);
    const bool isEnclosed =
        !hasSwells_ || (windchest != nullptr && !windchest->numbers("enclosure").empty());
    return isEnclosed && division != divisions_.end() ? std::optional(division->second)
                                                      : std::nullopt;
}

} // namespace velmora
