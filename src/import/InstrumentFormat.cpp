#include "import/InstrumentFormat.h"

#include "base/Text.h"

#include <map>
#include <string>

namespace velmora {

std::string_view typeName(InstrumentFormat format)
{
    switch (format) {
    case InstrumentFormat::HauptwerkXml:
        return "XML";
    case InstrumentFormat::Hauptwerk1:
        return "Organ";
    case InstrumentFormat::OrganPackage:
        return "Organ Package";
    case InstrumentFormat::SoundFont:
        return "SoundFont";
    case InstrumentFormat::GigaSampler:
        return "Gigasampler";
    case InstrumentFormat::Exs:
        return "EXS";
    }
    return {};
}

std::optional<InstrumentFormat> instrumentFormatOf(const std::filesystem::path& path)
{
    static const std::map<std::string, InstrumentFormat> formats = {
        {".organ_hauptwerk_xml", InstrumentFormat::HauptwerkXml},
        {".xml", InstrumentFormat::HauptwerkXml},
        {".organ", InstrumentFormat::Hauptwerk1},
        {".orgue", InstrumentFormat::OrganPackage},
        {".sf2", InstrumentFormat::SoundFont},
        {".gig", InstrumentFormat::GigaSampler},
        {".exs", InstrumentFormat::Exs}};
    const auto format = formats.find(lowerCase(path.extension().string()));
    return format == formats.end() ? std::nullopt : std::optional(format->second);
}

} // namespace velmora
