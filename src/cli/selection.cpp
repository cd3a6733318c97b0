#include "cli/selection.h"

#include "cli/commands.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace {

std::string lowerExtension(const std::filesystem::path& path)
{
    std::string extension = path.extension().string();
    std::ranges::transform(extension, extension.begin(),
                           [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return extension;
}

std::unique_ptr<TuningDocument> tuningNamed(const std::string& name)
{
    for (const char* builtin : {"Equal", "Quartercomma Meantone", "Dynamic"}) {
        if (name == builtin)
            return TuningDocument::initBuiltin(name);
    }
    const auto type = tuningType(name);
    if (!type)
        throw UsageError("there is no tuning \"" + name +
                         "\": give Equal, \"Quartercomma Meantone\", Dynamic or a file that ends "
                         "in .scl or .mtx");
    auto document = std::make_unique<TuningDocument>();
    if (!document->readFromURL(name, *type))
        throw std::runtime_error(document->errorString());
    return document;
}

} // namespace

std::optional<std::string> tuningType(const std::filesystem::path& path)
{
    const std::string extension = lowerExtension(path);
    if (extension == ".mtx")
        return std::string(TuningDocument::kFrequencyType);
    return extension == ".scl" ? std::optional<std::string>("Scale") : std::nullopt;
}

bool isSequenceFile(const std::filesystem::path& path)
{
    constexpr std::array kExtensions = {".mid", ".midi", ".smf", ".kar"};
    return std::ranges::find(kExtensions, lowerExtension(path)) != kExtensions.end();
}

void select(const Selection& selection, AppDelegate& application)
{
    auto tuning = tuningNamed(selection.tuning);
    const std::string name = tuning->getName();
    application.putTuning(std::move(tuning));
    application.selectTuning(name);

    const std::lock_guard lock(application.soundLock());
    Instrument& instrument = *application.getInstrument();
    if (selection.program)
        instrument.setInstrument(*selection.program);
    for (const auto& [stop, gain] : selection.stops) {
        if (stop >= instrument.numStops())
            throw UsageError("the instrument has no stop " + std::to_string(stop) +
                             ": its stops are numbered from 0 to " +
                             std::to_string(instrument.numStops() - 1));
        instrument.setVolume(stop, gain);
    }
}
