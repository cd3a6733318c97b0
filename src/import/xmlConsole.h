#pragma once

#include "import/OrganTables.h"
#include "sound/ConsoleDefinition.h"

#include <string>
#include <utility>
#include <vector>

namespace velmora {

/// The console of an XML organ definition.
struct XmlConsole {
    ConsoleDefinition definition; ///< Its stops name ranks by their place in `ranks`.
    std::vector<int> ranks;       ///< The numbers of the ranks that stops need.
    std::vector<std::pair<std::string, std::string>> skipped; ///< Stops without pipes, and why.
};

/// Reads the divisions, stops and couplers; there are none if the definition has only pipes. The
/// tables must be those of one definition.
XmlConsole readXmlConsole(const OrganTables& tables);

} // namespace velmora
