#include "cli/version.h"

namespace velmora {

extern const char* const kCommit; ///< Generated; empty if the commit is unknown.

std::string version()
{
    const std::string commit = kCommit;
    return VELMORA_VERSION + (commit.empty() ? "" : " (" + commit + ")");
}

} // namespace velmora
