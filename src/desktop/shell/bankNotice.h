#pragma once

#include <QString>

#include <filesystem>

namespace velmora {

/// Returns a notice for the status line if `bank`, the General MIDI bank that is in use, is not the
/// one that the user has chosen, or if it is empty because there is none; otherwise nothing.
QString bankNotice(const std::filesystem::path& bank);

} // namespace velmora
