// Measures parsing an organ definition of 18 MB with full names, compared with pugixml.

#include "import/xml.h"

#include <benchmark/benchmark.h>
#include <pugixml.hpp>

#include <string>

namespace velmora {

namespace {

std::string field(const std::string& name, const std::string& value)
{
    return "\t\t\t<" + name + ">" + value + "</" + name + ">\r\n";
}

/// A definition of at least `size` bytes. Its samples have the fields of published definitions.
std::string generatedFile(std::size_t size)
{
    std::string result = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<Hauptwerk>\r\n"
                         "\t<ObjectList ObjectType=\"Sample\">\r\n";
    for (int i = 1; result.size() < size; ++i) {
        const std::string id = std::to_string(i);
        result += "\t\t<Sample>\r\n" + field("SampleID", id) +
                  field("InstallationPackageID", "42") +
                  field("SampleFilename", "pipes\\principal 8\\" + id + "-c.wav") +
                  field("Pitch_SpecificationMethodCode", "4") +
                  field("Pitch_RankBasePitch64ftHarmonicNum", "8") +
                  field("LicenceSerialNumRequiredForSampleFile", "0") + "\t\t</Sample>\r\n";
    }
    return result + "\t</ObjectList>\r\n</Hauptwerk>\r\n";
}

const std::string& file()
{
    static const std::string result = generatedFile(18'000'000);
    return result;
}

/// Both parsers start with a fresh copy of the file.
void tree(benchmark::State& state)
{
    while (state.KeepRunning())
        benchmark::DoNotOptimize(xml::parseXML(xml::Buffer(file())));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(file().size()));
}

void pugixml(benchmark::State& state)
{
    while (state.KeepRunning()) {
        std::string copy = file();
        pugi::xml_document document;
        if (!document.load_buffer_inplace(copy.data(), copy.size()))
            state.SkipWithError("pugixml cannot read it");
        benchmark::DoNotOptimize(document.document_element());
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(file().size()));
}

BENCHMARK(tree)->Unit(benchmark::kMillisecond);
BENCHMARK(pugixml)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace velmora
