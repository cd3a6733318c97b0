#pragma once

#include <string>

namespace velmora {

/// The name of a pitch of quarter-comma meantone by its cents above C: of the chain of fifths from
/// D double flat, say 41.06, to B sharp, say -41.06, with a few more at both ends. Empty for a
/// pitch that lies farther than two cents from all of them.
std::string spelling(double cents);

} // namespace velmora
