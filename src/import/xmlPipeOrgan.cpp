#include "import/xmlPipeOrgan.h"

#include "base/File.h"
#include "import/OrganPackages.h"
#include "import/OrganTables.h"
#include "import/xmlConsole.h"
#include "import/xmlRanks.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <map>
#include <optional>

namespace velmora {

namespace {

constexpr OrganColumn kName{"Identification_Name", "c"};
constexpr OrganColumn kNumber{"Identification_UniqueOrganID", "b"};

/// A console with a drawknob for each rank, for a definition that describes none.
XmlConsole consoleOf(const XmlRanks& ranks)
{
    XmlConsole result;
    result.definition.divisions.push_back({"Manual", false, 0, kLastKey});
    for (const int rank : ranks.ids()) {
        ConsoleDefinition::Stop stop;
        stop.name = ranks.name(rank);
        stop.pipes.push_back({0, kLastKey + 1, result.ranks.size(), 0});
        result.ranks.push_back(rank);
        result.definition.stops.push_back(std::move(stop));
    }
    return result;
}

/// Returns the division that each rank belongs to: that of the first stop with it, but the pedal's
/// only if no manual has it.
std::vector<std::size_t> divisionsOf(const XmlConsole& console)
{
    std::vector<std::optional<std::size_t>> found(console.ranks.size());
    for (const ConsoleDefinition::Stop& stop : console.definition.stops) {
        for (const ConsoleDefinition::Pipes& pipes : stop.pipes) {
            std::optional<std::size_t>& division = found[pipes.rank];
            if (!division || console.definition.divisions[*division].isPedal)
                division = stop.division;
        }
    }
    std::vector<std::size_t> result;
    result.reserve(found.size());
    for (const auto& division : found)
        result.push_back(division.value_or(0));
    return result;
}

/// Sets whose swell each rank stands in. A rank that several divisions play stands with the others
/// of its enclosure. See docs/decisions.md, 172.
void enclose(PipeOrgan& organ, const XmlConsole& console, const XmlRanks& ranks, bool hasEnclosures)
{
    const std::vector<std::size_t> divisions = divisionsOf(console);
    std::map<int, std::map<std::size_t, int>> votes;
    for (std::size_t i = 0; i < organ.ranks.size(); ++i)
        ++votes[ranks.enclosure(console.ranks[i])][divisions[i]];
    for (std::size_t i = 0; i < organ.ranks.size(); ++i) {
        const int enclosure = ranks.enclosure(console.ranks[i]);
        if (!hasEnclosures)
            organ.ranks[i].division = divisions[i];
        else if (enclosure != 0)
            organ.ranks[i].division =
                std::ranges::max_element(votes[enclosure], {}, [](const auto& vote) {
                    return vote.second;
                })->first;
    }
}

} // namespace

PipeOrgan readXmlPipeOrgan(const std::filesystem::path& path)
{
    const OrganTables tables(readTextFile(path));
    OrganPackages packages(path, tables);
    XmlRanks ranks(tables, packages);
    XmlConsole console = readXmlConsole(tables);
    if (console.definition.stops.empty())
        console = consoleOf(ranks);

    PipeOrgan organ;
    std::string number;
    for (const OrganRow& general : tables.rows("_General")) {
        organ.name = general.text(kName);
        number = general.text(kNumber);
    }
    for (const int rank : console.ranks)
        organ.ranks.push_back(ranks.read(rank));
    enclose(organ, console, ranks, !tables.rows("EnclosurePipe").empty());
    organ.files = packages.files();
    organ.tree = packages.tree();
    organ.console = std::move(console.definition);
    organ.console.identity =
        number.empty() ? path.filename().string() : fmt::format("{} {}", number, organ.name);
    organ.skipped = packages.missing();
    organ.skipped.insert(organ.skipped.end(), console.skipped.begin(), console.skipped.end());
    organ.skipped.insert(organ.skipped.end(), ranks.skipped().begin(), ranks.skipped().end());
    return organ;
}

} // namespace velmora
