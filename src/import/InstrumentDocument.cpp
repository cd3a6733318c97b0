#include "import/InstrumentDocument.h"

#include "audio/DecodedCache.h"
#include "base/File.h"
#include "base/FormatError.h"
#include "base/Log.h"
#include "base/Text.h"
#include "import/Import.h"
#include "import/MemoryNeeds.h"
#include "import/PipeOrgan.h"
#include "import/gig.h"
#include "import/hauptwerk1.h"
#include "import/organFile.h"
#include "import/organXml.h"
#include "import/sf2.h"
#include "import/sf2Presets.h"
#include "import/xmlPipeOrgan.h"
#include "sound/ALInstrument.h"
#include "sound/MIDIInstrument.h"
#include "sound/OrganInstrument.h"

#include <new>

namespace velmora {

namespace {

constexpr const char* kTooLarge =
    "is too large for the free memory; unload other instruments, then open it again";

void readInto(Import& import, const std::filesystem::path& path, InstrumentFormat format)
{
    const bool isMusical = import.options.reading == Reading::Musical;
    switch (format) {
    case InstrumentFormat::HauptwerkXml:
        if (isMusical)
            loadPipeOrgan(readXmlPipeOrgan(path), import);
        else
            readXML(path, import);
        break;
    case InstrumentFormat::Hauptwerk1:
        import.options.reading == Reading::Plain ? readHauptwerk1(path, import)
                                                 : readOrganFile(path, import);
        break;
    case InstrumentFormat::OrganPackage:
        readOrganPackage(path, import);
        break;
    case InstrumentFormat::SoundFont:
        if (isMusical && import.options.asStops)
            readSoundFontStops(path, import);
        else if (isMusical)
            readSoundFontPresets(path, import);
        else
            readSoundFont(path, import);
        break;
    case InstrumentFormat::GigaSampler:
        if (isMusical)
            readGigaInstrument(path, import);
        else
            readGigaSampler(path, import);
        break;
    case InstrumentFormat::Exs:
        break;
    }
}

void cleanReport(ImportReport& report)
{
    for (auto& [rank, why] : report.notLoaded)
        rank = toUtf8(rank);
    for (auto& [file, why] : report.skipped) {
        file = toUtf8(file);
        why = toUtf8(why);
    }
}

/// Converts all names to UTF-8.
void cleanNames(Import& import)
{
    import.name = toUtf8(import.name);
    for (InstrumentStop& stop : import.instrument->stops())
        stop.name = toUtf8(stop.name);
    if (import.console) {
        for (ConsoleDefinition::Division& division : import.console->divisions)
            division.name = toUtf8(division.name);
        for (ConsoleDefinition::Stop& stop : import.console->stops)
            stop.name = toUtf8(stop.name);
        for (ConsoleDefinition::Coupler& coupler : import.console->couplers)
            coupler.name = toUtf8(coupler.name);
    }
    for (std::string& choice : import.choices)
        choice = toUtf8(choice);
    cleanReport(import.report);
}

} // namespace

InstrumentDocument::InstrumentDocument(std::unique_ptr<Instrument> instrument, std::string name)
    : instrument_(std::move(instrument)), name_(std::move(name))
{
}

std::unique_ptr<InstrumentDocument>
InstrumentDocument::makeMIDIPlayer(std::unique_ptr<MusicDevice> synthesizer)
{
    auto instrument = std::make_unique<MIDIInstrument>(std::move(synthesizer));
    return std::unique_ptr<InstrumentDocument>(
        new InstrumentDocument(std::move(instrument), "MIDI Player"));
}

std::string InstrumentDocument::title() const
{
    if (!isFromFile())
        return name_;
    std::string fileTitle = toUtf8(path_.stem().string());
    const bool isFileName = instrumentFormatOf(name_).has_value();
    const std::string title = isFileName ? std::filesystem::path(name_).stem().string() : name_;
    if (title.find_first_not_of(' ') == std::string::npos)
        return fileTitle;
    // Banks that were saved as a copy are called "Bank1.sf2" inside while the file is "Bank.sf2".
    const bool isNumbered =
        isFileName && title.starts_with(fileTitle) &&
        title.find_first_not_of("0123456789", fileTitle.size()) == std::string::npos;
    return isNumbered ? fileTitle : title;
}

bool InstrumentDocument::canUnload() const
{
    return isFromFile() && instrument_ && !instrument_->isSounding();
}

void InstrumentDocument::unload()
{
    background_.reset();
    instrument_.reset();
}

std::optional<double> InstrumentDocument::loadingProgress() const
{
    return background_ ? std::optional(background_->progress()) : std::nullopt;
}

void InstrumentDocument::continueLoading(const BackgroundLoading::Exclusively& exclusively)
{
    if (!background_)
        return;
    try {
        const bool isUnfinished = background_->advance(report_, exclusively);
        if (const ALInstrument* ranks = sampledRanksOf(*instrument_))
            instrument_->usage = ranks->usage;
        if (isUnfinished)
            return;
        endLoading(LoadState::Loaded);
    } catch (const FormatError& error) {
        report_.skipped.emplace_back(path_.filename().string(), error.what());
        endLoading(LoadState::Unusable);
    } catch (const MemoryShortage& shortage) {
        report_.skipped.emplace_back(path_.filename().string(), shortage.what());
        endLoading(LoadState::TooLarge);
    } catch (const std::bad_alloc&) {
        report_.skipped.emplace_back(path_.filename().string(), kTooLarge);
        endLoading(LoadState::TooLarge);
    }
}

void InstrumentDocument::stopLoading()
{
    if (background_)
        endLoading(LoadState::Stopped);
}

/// Gives up what is not loaded, if anything is left, for that reason.
void InstrumentDocument::endLoading(LoadState why)
{
    background_->giveUp(why, report_);
    background_.reset();
    cleanReport(report_);
    decodedSamples().trim();
}

bool InstrumentDocument::read(const std::filesystem::path& path, InstrumentFormat format,
                              const ImportOptions& options, InstrumentHost& host)
{
    errorString_.clear();
    fitting_.clear();
    try {
        // See docs/decisions.md, 53.
        if (format == InstrumentFormat::Exs) {
            readFile(path);
            return true;
        }
        Import import(host, options);
        readInto(import, path, format);
        decodedSamples().trim();
        cleanNames(import);
        background_.reset();
        if (import.presets)
            instrument_ = std::move(import.presets);
        else if (import.console)
            instrument_ = std::make_unique<OrganInstrument>(std::move(import.instrument),
                                                            std::move(*import.console));
        else
            instrument_ = std::move(import.instrument);
        background_ = std::move(import.background);
        name_ = std::move(import.name);
        report_ = std::move(import.report);
        choices_ = std::move(import.choices);
        path_ = path;
        format_ = format;
        options_ = options;
        return true;
    } catch (const Cancelled&) {
        return false;
    } catch (const FormatError& error) {
        errorString_ = error.inFile(path.filename().string());
    } catch (const TooLarge& shortage) {
        errorString_ = FormatError(shortage.what()).inFile(path.filename().string());
        fitting_ = shortage.fitting();
    } catch (const MemoryShortage& shortage) {
        errorString_ = FormatError(shortage.what()).inFile(path.filename().string());
    } catch (const std::bad_alloc&) {
        errorString_ = FormatError(kTooLarge).inFile(path.filename().string());
    }
    logger("import").info("{}", errorString_);
    return false;
}

} // namespace velmora
