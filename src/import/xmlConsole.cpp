#include "import/xmlConsole.h"

#include "base/Text.h"
#include "sound/keys.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <optional>
#include <set>
#include <tuple>

namespace velmora {

namespace {

constexpr OrganColumn kDivisionId{"DivisionID", "a"};
constexpr OrganColumn kDivisionName{"Name", "b"};
constexpr OrganColumn kDivisionKeys{"InpGen_NumberOfInputs", "d"};
constexpr OrganColumn kDivisionFirstKey{"InpGen_MIDINoteNumberOfFirstInput", "e"};
constexpr OrganColumn kInputDivision{"DivisionID", "a"};
constexpr OrganColumn kInputNote{"NormalMIDINoteNumber", "c"};

constexpr OrganColumn kStopId{"StopID", "a"};
constexpr OrganColumn kStopName{"Name", "b"};
constexpr OrganColumn kStopDivision{"DivisionID", "c"};
constexpr OrganColumn kStopSwitch{"ControllingSwitchID", "d"};

constexpr OrganColumn kMappedStop{"StopID", "a"};
constexpr OrganColumn kMappedRank{"RankID", "d"};
constexpr OrganColumn kMappedAction{"ActionTypeCode", "f"};
constexpr OrganColumn kMappedFirstKey{"MIDINoteNumOfFirstMappedDivisionInputNode", "h"};
constexpr OrganColumn kMappedKeys{"NumberOfMappedDivisionInputNodes", "i"};
constexpr OrganColumn kMappedShift{"MIDINoteNumIncrementFromDivisionToRank", "j"};

constexpr OrganColumn kSwitchId{"SwitchID", "a"};
constexpr OrganColumn kSwitchName{"Name", "b"};
constexpr OrganColumn kSwitchEngaged{"DefaultToEngaged", "e"};

constexpr OrganColumn kActionSource{"SourceKeyboardID", "a"};
constexpr OrganColumn kActionToKeyboard{"DestIsKeyboardNotDivision", "b"};
constexpr OrganColumn kActionKeyboard{"DestKeyboardID", "c"};
constexpr OrganColumn kActionDivision{"DestDivisionID", "d"};
constexpr OrganColumn kActionName{"Name", "e"};
constexpr OrganColumn kActionSwitch{"ConditionSwitchID", "f"};
constexpr OrganColumn kActionType{"ActionTypeCode", "h"};
constexpr OrganColumn kActionShift{"MIDINoteNumberIncrement", "n"};

constexpr OrganColumn kKeyboardId{"KeyboardID", "a"};
constexpr OrganColumn kKeyboardDivision{"Hint_PrimaryAssociatedDivisionID", "x"};

constexpr int kDefaultFirstKey = 36;
constexpr int kDefaultKeys = 61;
constexpr int kNormalAction = 1; ///< The key sounds as long as it is held.

/// More keys than this make a division a manual, unless its name says otherwise.
constexpr int kPedalKeys = 32;

class ConsoleReading {
public:
    explicit ConsoleReading(const OrganTables& tables) : tables_(tables)
    {
        for (const OrganRow& row : tables.rows("Switch"))
            switches_.insert_or_assign(row.id(kSwitchId), row);
    }

    XmlConsole read()
    {
        readDivisions();
        for (const OrganRow& row : tables_.rows("StopRank"))
            mapped_[row.id(kMappedStop)].push_back(row);
        for (const OrganRow& row : tables_.rows("Stop"))
            readStop(row);
        readKeyboards();
        for (const OrganRow& row : tables_.rows("KeyAction"))
            readCoupler(row);
        return std::move(result_);
    }

private:
    void readDivisions()
    {
        std::map<int, std::pair<int, int>> inputs; // the lowest and the highest key
        for (const OrganRow& row : tables_.rows("DivisionInput")) {
            const int note = row.integer(kInputNote).value_or(kMiddleC);
            const auto [input, isNew] =
                inputs.try_emplace(row.id(kInputDivision), std::pair(note, note));
            input->second.first = std::min(input->second.first, note);
            input->second.second = std::max(input->second.second, note);
        }
        std::vector<std::pair<int, ConsoleDefinition::Division>> divisions;
        for (const OrganRow& row : tables_.rows("Division")) {
            const int id = row.id(kDivisionId);
            const int first = row.integer(kDivisionFirstKey).value_or(kDefaultFirstKey);
            std::pair keys(first, first + row.integer(kDivisionKeys).value_or(kDefaultKeys) - 1);
            if (const auto input = inputs.find(id); input != inputs.end())
                keys = input->second;
            ConsoleDefinition::Division division;
            division.name = row.text(kDivisionName);
            division.lowestKey = std::clamp(keys.first, 0, kLastKey);
            division.highestKey = std::clamp(keys.second, division.lowestKey, kLastKey);
            division.isPedal = isPedal(division);
            divisions.emplace_back(id, std::move(division));
        }
        std::ranges::stable_sort(divisions, {}, [](const auto& one) {
            return std::pair(!one.second.isPedal, one.first);
        });
        for (auto& [id, division] : divisions) {
            divisions_.try_emplace(id, result_.definition.divisions.size());
            result_.definition.divisions.push_back(std::move(division));
        }
    }

    static bool isPedal(const ConsoleDefinition::Division& division)
    {
        const std::string name = lowerCase(division.name);
        return name.starts_with("ped") || name.starts_with("p\u00E9d") ||
               division.highestKey - division.lowestKey < kPedalKeys;
    }

    void readStop(const OrganRow& row)
    {
        ConsoleDefinition::Stop stop;
        stop.name = row.text(kStopName);
        const auto division = divisions_.find(row.id(kStopDivision));
        if (division == divisions_.end()) {
            result_.skipped.emplace_back(stop.name, "belongs to no division");
            return;
        }
        stop.division = division->second;
        stop.isDrawn = isEngaged(row.id(kStopSwitch));
        for (const OrganRow& mapped : mapped_[row.id(kStopId)])
            readPipes(mapped, stop);
        if (stop.pipes.empty())
            result_.skipped.emplace_back(stop.name, "has no pipes that sound as long as their key");
        else
            result_.definition.stops.push_back(std::move(stop));
    }

    void readPipes(const OrganRow& row, ConsoleDefinition::Stop& stop)
    {
        const int rank = row.id(kMappedRank);
        if (rank == 0 || row.integer(kMappedAction).value_or(kNormalAction) != kNormalAction)
            return;
        const int first = row.integer(kMappedFirstKey).value_or(kDefaultFirstKey);
        const int count = row.integer(kMappedKeys).value_or(kDefaultKeys);
        const int shift = std::clamp(row.integer(kMappedShift).value_or(0), -kLastKey, kLastKey);
        // The keys that exist and lead to pipes that can exist.
        const int lowest = std::max({first, 0, -shift});
        const int highest =
            std::min({std::clamp(first, 0, kLastKey) + std::clamp(count, 0, kLastKey + 1) - 1,
                      kLastKey, kLastKey - shift});
        if (lowest > highest)
            return;
        stop.pipes.push_back({lowest, highest - lowest + 1, rankIndex(rank), lowest + shift});
    }

    std::size_t rankIndex(int rank)
    {
        const auto [index, isNew] = rankIndices_.try_emplace(rank, result_.ranks.size());
        if (isNew)
            result_.ranks.push_back(rank);
        return index->second;
    }

    /// Finds out which division each keyboard plays, directly or through other keyboards.
    void readKeyboards()
    {
        for (const OrganRow& row : tables_.rows("Keyboard")) {
            if (const auto division = divisions_.find(row.id(kKeyboardDivision));
                division != divisions_.end())
                keyboards_.try_emplace(row.id(kKeyboardId), division->second);
        }
        // Each pass finds at least one more keyboard, or else it is the last.
        std::size_t known = 0;
        do {
            known = keyboards_.size();
            for (const OrganRow& row : tables_.rows("KeyAction")) {
                if (row.id(kActionSwitch) != 0 || row.id(kActionShift) != 0)
                    continue;
                if (const auto division = destination(row))
                    keyboards_.try_emplace(row.id(kActionSource), *division);
            }
        } while (known != keyboards_.size());
    }

    std::optional<std::size_t> destination(const OrganRow& row) const
    {
        const int keyboard = row.id(kActionKeyboard);
        const int division = row.id(kActionDivision);
        const bool toKeyboard = row.flag(kActionToKeyboard, division == 0);
        const auto& known = toKeyboard ? keyboards_ : divisions_;
        const auto found = known.find(toKeyboard ? keyboard : division);
        return found == known.end() ? std::nullopt : std::optional(found->second);
    }

    void readCoupler(const OrganRow& row)
    {
        const int id = row.id(kActionSwitch);
        const auto from = keyboards_.find(row.id(kActionSource));
        const auto to = destination(row);
        if (id == 0 || from == keyboards_.end() || !to ||
            row.integer(kActionType).value_or(kNormalAction) != kNormalAction)
            return;
        ConsoleDefinition::Coupler coupler;
        coupler.from = from->second;
        coupler.to = *to;
        coupler.shift = row.id(kActionShift);
        const bool isOwn = coupler.from == coupler.to && coupler.shift == 0;
        if (isOwn || std::abs(coupler.shift) > kLastKey ||
            !couplers_.emplace(id, coupler.from, coupler.to, coupler.shift).second)
            return;
        const auto knob = switches_.find(id);
        if (knob != switches_.end())
            coupler.name = knob->second.text(kSwitchName);
        if (coupler.name.empty())
            coupler.name = row.text(kActionName);
        coupler.isDrawn = isEngaged(id);
        result_.definition.couplers.push_back(std::move(coupler));
    }

    bool isEngaged(int id) const
    {
        const auto found = switches_.find(id);
        return found != switches_.end() && found->second.flag(kSwitchEngaged, false);
    }

    const OrganTables& tables_;
    XmlConsole result_;
    std::map<int, OrganRow> switches_;
    std::map<int, std::vector<OrganRow>> mapped_; ///< The ranks of each stop.
    std::map<int, std::size_t> divisions_;        ///< Their places on the console.
    std::map<int, std::size_t> keyboards_;        ///< The division that each plays.
    std::map<int, std::size_t> rankIndices_;
    std::set<std::tuple<int, std::size_t, std::size_t, int>> couplers_;
};

} // namespace

XmlConsole readXmlConsole(const OrganTables& tables)
{
    return ConsoleReading(tables).read();
}

} // namespace velmora
