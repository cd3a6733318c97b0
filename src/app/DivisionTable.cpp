#include "app/DivisionTable.h"

#include "midi/messages.h"

namespace velmora {

DivisionTable defaultDivisions(const ConsoleDefinition& definition)
{
    DivisionTable table;
    for (const bool isPedal : {false, true}) {
        for (std::size_t division = 0; division < definition.divisions.size(); ++division) {
            const int channel = static_cast<int>(table.size());
            if (definition.divisions[division].isPedal == isPedal && channel < midi::kChannels)
                table.push_back({{}, channel, division});
        }
    }
    return table;
}

std::size_t divisionFor(const DivisionTable& table, const std::string& device, int channel,
                        std::size_t lowestManual)
{
    for (const DivisionRoute& route : table)
        if ((route.device.empty() || route.device == device) &&
            (route.channel == kEveryChannel || route.channel == channel))
            return route.division;
    return lowestManual;
}

} // namespace velmora
