#pragma once

#include <QString>

#include <cstdint>

namespace velmora {

/// Returns the text of `sizeString` with the decimal point of the default locale.
QString sizeText(std::uint64_t bytes);

} // namespace velmora
