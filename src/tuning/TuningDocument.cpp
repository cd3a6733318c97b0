#include "tuning/TuningDocument.h"

#include "base/File.h"
#include "base/FormatError.h"
#include "base/Log.h"
#include "base/Text.h"
#include "tuning/DynamicTemperament.h"
#include "tuning/PureTemperament.h"
#include "tuning/Tuning.h"
#include "tuning/historicalTemperaments.h"

#include <algorithm>
#include <new>
#include <utility>

namespace velmora {

TuningDocument::TuningDocument() : temperament_(std::make_unique<Temperament>()) {}

TuningDocument::TuningDocument(std::string name, std::string description,
                               std::unique_ptr<const Temperament> temperament)
    : name_(std::move(name)), description_(std::move(description)),
      temperament_(std::move(temperament))
{
}

// Any other name is meantone: see docs/decisions.md, 18.
std::unique_ptr<TuningDocument> TuningDocument::makeBuiltin(const std::string& name,
                                                            const AdaptiveSettings& settings)
{
    const SpellingFollower::Settings spelling{.correction = settings.correction};
    auto document = std::make_unique<TuningDocument>();
    document->name_ = name;
    if (name == "Dynamic")
        document->temperament_ = std::make_unique<DynamicTemperament>();
    else if (name == "Following Meantone")
        document->temperament_ = std::make_unique<FollowingMeantone>(spelling);
    else if (name == "Pure")
        document->temperament_ = std::make_unique<PureTemperament>(settings.drift, spelling);
    else if (name == "Equal")
        document->temperament_ = std::make_unique<Temperament>(Temperament::Equal());
    else if (const auto* historical = findHistoricalTemperament(name)) {
        document->temperament_ = std::make_unique<Temperament>(historical->make());
        document->description_ = historical->source;
    } else {
        document->temperament_ = std::make_unique<Temperament>(Temperament::Meantone());
    }
    return document;
}

std::unique_ptr<TuningDocument> TuningDocument::makeEdited(const TuningDocument& original,
                                                           const std::array<double, 12>& cents)
{
    constexpr int kBaseKey = 48;
    Temperament temperament;
    temperament.setBaseFrequency(original.temperament().pitchAt(kBaseKey));
    for (const double each : cents)
        temperament.append(std::make_unique<Cent>(each));
    const std::string& name = original.original_.empty() ? original.name_ : original.original_;
    auto document = std::make_unique<TuningDocument>(
        name + " (edited)", std::string(), std::make_unique<Temperament>(std::move(temperament)));
    document->original_ = name;
    return document;
}

std::vector<std::string> TuningDocument::adaptiveNames()
{
    return {"Dynamic", "Following Meantone", "Pure"};
}

bool TuningDocument::isBuiltin(const std::string& name)
{
    const auto adaptive = adaptiveNames();
    return std::ranges::find(adaptive, name) != adaptive.end() ||
           findHistoricalTemperament(name) != nullptr;
}

bool TuningDocument::read(const std::filesystem::path& path, TuningFormat format)
{
    name_ = toUtf8(path.filename().string());
    errorString_.clear();
    try {
        const auto bytes = readFile(path);
        // Diagnostics keep their texts: see docs/decisions.md, 125.
        logger("tuning").debug("TUNING {}", name_);
        temperament_ = std::make_unique<Temperament>(readTuning(bytes, format));
        description_ = readTuningDescription(bytes, format);
        path_ = path;
        return true;
    } catch (const FormatError& error) {
        errorString_ = error.inFile(name_);
    } catch (const std::bad_alloc&) {
        errorString_ = name_ + ": not enough memory to read the file";
    }
    return false;
}

} // namespace velmora
