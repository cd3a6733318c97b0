#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

namespace velmora {

/// The kinds of file that hold an instrument.
enum class InstrumentFormat : std::uint8_t {
    HauptwerkXml, ///< Organ definition of Hauptwerk 2 and later.
    Hauptwerk1,   ///< Organ definition of Hauptwerk 1, and what has grown out of it.
    OrganPackage, ///< Archive of an organ definition of that kind with its samples.
    SoundFont,
    GigaSampler,
    Exs, ///< Recognised but not imported, since the format has no public description.
};

/// The short name of a format, as `velmora info` shows it.
std::string_view typeName(InstrumentFormat format);

/// The format that a file's extension stands for, in any letter case: .organ_hauptwerk_xml or .xml,
/// .organ, .orgue, .sf2, .gig, .exs. Empty for any other extension.
std::optional<InstrumentFormat> instrumentFormatOf(const std::filesystem::path& path);

} // namespace velmora
