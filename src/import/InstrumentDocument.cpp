#include "import/InstrumentDocument.h"

#include "base/FormatError.h"
#include "base/Log.h"
#include "base/Text.h"
#include "import/Import.h"
#include "import/gig.h"
#include "import/hauptwerk1.h"
#include "import/organXml.h"
#include "import/sf2.h"
#include "sound/ALInstrument.h"
#include "sound/MIDIInstrument.h"

#include <fstream>
#include <map>
#include <new>
#include <string>

namespace velmora {

namespace {

/// Fills the import from a file of that type.
void read(const std::filesystem::path& path, const std::string& type, Import& import)
{
    if (type == "XML")
        readXML(path, import);
    else if (type == "Gigasampler")
        readGigaSampler(path, import);
    else if (type == "SoundFont")
        readSoundFont(path, import);
    else
        readHauptwerk1(path, import);
}

/// Names in any encoding become UTF-8.
void cleanNames(Import& import)
{
    import.name = toUtf8(import.name);
    for (InstrumentStop& stop : import.instrument->stops())
        stop.name = toUtf8(stop.name);
    for (auto& [file, why] : import.report.skipped) {
        file = toUtf8(file);
        why = toUtf8(why);
    }
}

} // namespace

InstrumentDocument::InstrumentDocument(std::unique_ptr<Instrument> instrument, std::string name)
    : instrument_(std::move(instrument)), name_(std::move(name))
{
}

std::unique_ptr<InstrumentDocument>
InstrumentDocument::initWithMIDIPlayer(std::unique_ptr<MusicDevice> synthesizer)
{
    auto instrument = std::make_unique<MIDIInstrument>(std::move(synthesizer));
    return std::unique_ptr<InstrumentDocument>(
        new InstrumentDocument(std::move(instrument), "MIDI Player"));
}

std::string InstrumentDocument::typeOf(const std::filesystem::path& path)
{
    static const std::map<std::string, std::string> types = {
        {".sf2", "SoundFont"}, {".gig", "Gigasampler"}, {".organ_hauptwerk_xml", "XML"},
        {".xml", "XML"},       {".organ", "Organ"},     {".exs", "EXS"}};
    const auto type = types.find(lowerCase(path.extension().string()));
    return type == types.end() ? "" : type->second;
}

bool InstrumentDocument::canUnload() const
{
    const auto* sampled = dynamic_cast<const ALInstrument*>(instrument_.get());
    return sampled != nullptr && !sampled->isSounding();
}

bool InstrumentDocument::readFromURL(const std::filesystem::path& path, const std::string& type,
                                     InstrumentHost& host)
{
    errorString_.clear();
    try {
        if (type == "EXS") {
            // Not imported: there is no public description of the format.
            if (!std::ifstream(path, std::ios::binary))
                throw FormatError("cannot be read");
            return true;
        }
        Import import(host);
        read(path, type, import);
        cleanNames(import);
        instrument_ = std::move(import.instrument);
        name_ = std::move(import.name);
        report_ = std::move(import.report);
        path_ = path;
        type_ = type;
        return true;
    } catch (const Cancelled&) {
        return false;
    } catch (const FormatError& error) {
        errorString_ = error.inFile(path.filename().string());
    } catch (const std::bad_alloc&) {
        errorString_ =
            FormatError("is too large to be read into memory").inFile(path.filename().string());
    }
    logger("import").info("{}", errorString_);
    return false;
}

} // namespace velmora
