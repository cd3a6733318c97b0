#include "import/SectionedConsole.h"

#include "base/Text.h"
#include "sound/keys.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>

namespace velmora {

namespace {

constexpr int kLowestPlayedKey = 36; // great C, where manuals and pedals begin
constexpr int kPlayedKeys = 61;
constexpr int kMaximumSwitches = 64; // that depend on each other in turn
constexpr int kMaximumShift = 48;

/// Returns a number of a key that is limited to a sensible range.
int limited(const OrganSection& section, const std::string& key, int fallback)
{
    return std::clamp(section.integer(key, fallback), 0, 999);
}

/// Adds a key that plays a pipe, in one run with the key before if their pipes are neighbours.
void add(std::vector<ConsoleDefinition::Pipes>& runs, int key, const SectionedRanks::Place& place)
{
    if (!runs.empty()) {
        ConsoleDefinition::Pipes& last = runs.back();
        if (last.rank == place.rank && last.firstKey + last.count == key &&
            last.firstPipe + last.count == place.key) {
            ++last.count;
            return;
        }
    }
    runs.push_back({key, 1, place.rank, place.key});
}

std::string functionOf(const OrganSection& section)
{
    return lowerCase(section.text("function"));
}

/// Returns what a function makes of its switches.
bool combined(const std::string& function, std::size_t drawn, std::size_t count)
{
    if (function == "and")
        return drawn == count;
    if (function == "or")
        return drawn > 0;
    if (function == "xor")
        return drawn % 2 == 1;
    if (function == "nand")
        return drawn < count;
    return drawn == 0; // "not" and "nor"
}

bool isInput(const OrganSection& section)
{
    const std::string function = functionOf(section);
    return function.empty() || function == "input";
}

} // namespace

SectionedConsole::SectionedConsole(const OrganSections& sections, PipeOrgan& organ,
                                   OrganOmissions& omissions)
    : sections_(sections), organ_(organ), omissions_(omissions)
{
}

void SectionedConsole::build()
{
    for (const int number : sections_.numbers("manual")) {
        OrganManual& manual = manuals_[number];
        manual.section = sections_.find(fmt::format("manual{}", number));
        addDivision(manual, number == 0 ? "Pedal" : fmt::format("Manual {}", number), number == 0);
    }
    collectStops();
    ranks_.emplace(sections_, manuals_, organ_, omissions_);
    for (const auto& [number, manual] : manuals_) {
        for (const auto& [position, stop] : manual.stops)
            addStop(*stop, manual);
        if (manual.section == nullptr)
            continue;
        for (const int coupler : manual.section->numbers("coupler")) {
            const auto* section = sections_.find(fmt::format(
                "coupler{}", manual.section->integer(fmt::format("coupler{}", coupler), 0)));
            if (section != nullptr)
                addCoupler(*section, manual);
        }
    }
    noteTremulants();
}

void SectionedConsole::addDivision(OrganManual& manual, const std::string& fallbackName,
                                   bool isPedal)
{
    static const OrganSection kEmpty("", 0);
    const OrganSection& section = manual.section == nullptr ? kEmpty : *manual.section;
    manual.division = organ_.console.divisions.size();
    manual.firstKey = std::clamp(
        section.integer("firstaccessiblekeymidinotenumber", kLowestPlayedKey), 0, kLastKey);
    manual.firstLogicalKey = limited(section, "firstaccessiblekeylogicalkeynumber", 1);
    const int keys = std::max(limited(section, "numberofaccessiblekeys", kPlayedKeys), 1);
    const std::string name = section.text("name");
    organ_.console.divisions.push_back({name.empty() ? fallbackName : name, isPedal,
                                        manual.firstKey,
                                        std::min(manual.firstKey + keys - 1, kLastKey)});
}

void SectionedConsole::collectStops()
{
    std::set<const OrganSection*> known;
    for (auto& [number, manual] : manuals_) {
        for (const int n : manual.section->numbers("stop")) {
            const int stop = manual.section->integer(fmt::format("stop{}", n), 0);
            const auto* section = sections_.find(fmt::format("stop{}", stop));
            if (section != nullptr)
                known.insert(manual.stops[n] = section);
            else
                omissions_.add(*manual.section, fmt::format("its stop {} does not exist", stop),
                               fmt::format("stop{}", n));
        }
    }
    const bool areListed = !known.empty();
    if (manuals_.empty())
        addDivision(manuals_[1], "Manual", false);
    // The first definitions have one manual, which plays all stops without listing them.
    OrganManual& first = manuals_.contains(1) ? manuals_.at(1) : manuals_.begin()->second;
    for (const int number : sections_.numbers("stop")) {
        const OrganSection* section = sections_.find(fmt::format("stop{}", number));
        if (section == nullptr || known.contains(section))
            continue;
        if (areListed)
            omissions_.add(*section, "belongs to no manual");
        else
            first.stops[number] = section;
    }
}

void SectionedConsole::addStop(const OrganSection& section, const OrganManual& manual)
{
    if (isHidden(section))
        return;
    // See docs/decisions.md, 150.
    if (section.integer("numberofaccessiblepipes", 0) == 1) {
        omissions_.add(section, "is a noise or an effect that sounds when its knob is drawn, not "
                                "when keys are pressed");
        return;
    }
    ConsoleDefinition::Stop stop{section.text("name"), manual.division, {}, isDrawn(section)};
    stop.pipes = section.integer("numberofranks", 0) > 0 ? ranksOf(section, manual)
                                                         : ownPipes(section, manual);
    if (stop.pipes.empty())
        omissions_.add(section, "has no pipe that sounds");
    else
        organ_.console.stops.push_back(std::move(stop));
}

std::vector<ConsoleDefinition::Pipes> SectionedConsole::ownPipes(const OrganSection& section,
                                                                 const OrganManual& manual)
{
    std::vector<ConsoleDefinition::Pipes> result;
    const int firstKey = SectionedRanks::firstKeyOf(section, manual);
    const int first = std::max(limited(section, "firstaccessiblepipelogicalpipenumber", 1), 1);
    const int last =
        std::min(SectionedRanks::lastPipe(section),
                 first + limited(section, "numberofaccessiblepipes", static_cast<int>(kKeys)) - 1);
    for (int pipe = first; pipe <= last; ++pipe) {
        const int key = firstKey + pipe - 1;
        if (key < 0 || key > kLastKey)
            continue;
        if (const auto place = ranks_->find(section, pipe, firstKey))
            add(result, key, *place);
    }
    return result;
}

std::vector<ConsoleDefinition::Pipes> SectionedConsole::ranksOf(const OrganSection& section,
                                                                const OrganManual& manual)
{
    std::vector<ConsoleDefinition::Pipes> result;
    const int stopKey = manual.midiKey(limited(section, "firstaccessiblepipelogicalkeynumber", 1));
    const int keys = limited(section, "numberofaccessiblepipes", static_cast<int>(kKeys));
    for (const int n : section.numbers("rank")) {
        const std::string prefix = fmt::format("rank{}", n);
        const OrganSection* rank = ranks_->rankOf(section, n);
        if (rank == nullptr) {
            omissions_.add(section, "its rank " + section.text(prefix) + " does not exist", prefix);
            continue;
        }
        const int firstPipe = std::max(limited(section, prefix + "firstpipenumber", 1), 1);
        const int offset =
            std::max(limited(section, prefix + "firstaccessiblekeynumber", 1), 1) - 1;
        const int available = std::max(SectionedRanks::lastPipe(*rank) - firstPipe + 1, 0);
        const int count = std::min({limited(section, prefix + "pipecount", available), available,
                                    std::max(keys - offset, 0)});
        const int rankKey = stopKey + offset - (firstPipe - 1);
        for (int i = 0; i < count; ++i) {
            const int key = stopKey + offset + i;
            if (key < 0 || key > kLastKey)
                continue;
            if (const auto place = ranks_->find(*rank, firstPipe + i, rankKey))
                add(result, key, *place);
        }
    }
    return result;
}

void SectionedConsole::addCoupler(const OrganSection& section, const OrganManual& manual)
{
    const std::string type = lowerCase(section.text("couplertype"));
    const auto to = manuals_.find(section.integer("destinationmanual", -1));
    if (section.isTrue("unisonoff", false))
        omissions_.add(section, "silences its own keys (\"unison off\"), which is not supported");
    else if (type == "bass" || type == "melody")
        omissions_.add(section,
                       "couples only the lowest or the highest key, which is not supported");
    else if (to == manuals_.end())
        omissions_.add(section, "couples to a manual that does not exist", "destinationmanual");
    else
        organ_.console.couplers.push_back(
            {section.text("name"), manual.division, to->second.division,
             std::clamp(section.integer("destinationkeyshift", 0), -kMaximumShift, kMaximumShift),
             isDrawn(section)});
}

void SectionedConsole::noteTremulants()
{
    for (const int number : sections_.numbers("tremulant"))
        omissions_.add(*sections_.find(fmt::format("tremulant{}", number)),
                       "tremulants are not supported");
}

bool SectionedConsole::isDrawn(const OrganSection& section, int depth)
{
    // Switches that depend on each other in a circle count as not drawn.
    const auto [known, isNew] = drawn_.try_emplace(&section, false);
    if (!isNew)
        return known->second;
    if (isInput(section) || depth == kMaximumSwitches)
        return drawn_[&section] = section.isTrue("defaulttoengaged", false);

    std::size_t drawn = 0;
    const std::vector<int> numbers = section.numbers("switch");
    for (const int n : numbers) {
        const auto* knob =
            sections_.find(fmt::format("switch{}", section.integer(fmt::format("switch{}", n), 0)));
        if (knob != nullptr && isDrawn(*knob, depth + 1))
            ++drawn;
    }
    return drawn_[&section] = combined(functionOf(section), drawn, numbers.size());
}

bool SectionedConsole::isHidden(const OrganSection& section)
{
    // With panels, what is shown is listed in other sections.
    return !section.isTrue("displayed", true) && isInput(section) && !isDrawn(section) &&
           sections_.find("panel0") == nullptr;
}

} // namespace velmora
