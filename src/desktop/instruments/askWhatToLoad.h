#pragma once

#include "import/ImportOptions.h"

#include <QString>

#include <optional>
#include <vector>

namespace velmora {

/// Asks what to load of an instrument that does not fit into the memory. `message` says so, and
/// `fitting` are the options with which it would fit. Returns the options that the user chooses;
/// empty if the instrument is not to be loaded.
std::optional<ImportOptions> askWhatToLoad(const QString& message,
                                           const std::vector<ImportOptions>& fitting);

} // namespace velmora
