#include "tuning/TuningDocument.h"

#include "base/File.h"
#include "base/FormatError.h"
#include "base/Log.h"
#include "base/Text.h"
#include "tuning/DynamicTemperament.h"
#include "tuning/ExtendedScaleFile.h"
#include "tuning/KeyTuningFile.h"
#include "tuning/MappingFile.h"
#include "tuning/PureTemperament.h"
#include "tuning/ScaleFile.h"
#include "tuning/ScaleTemperament.h"
#include "tuning/Tuning.h"
#include "tuning/TuningShape.h"
#include "tuning/historicalTemperaments.h"

#include <algorithm>
#include <cmath>
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
                                                           const TuningShape& shape,
                                                           std::string name)
{
    auto document = std::make_unique<TuningDocument>(
        std::move(name), std::string(),
        std::make_unique<ScaleTemperament>(shape.scale, shape.mapping));
    document->original_ = original.original_.empty() ? original.name_ : original.original_;
    return document;
}

std::unique_ptr<TuningDocument> TuningDocument::makeReceived(std::string name,
                                                             const KeyPitches& hertz)
{
    auto document =
        std::make_unique<TuningDocument>(std::move(name), std::string(), makeTemperament(hertz));
    document->received_ = hertz;
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

bool TuningDocument::read(const std::filesystem::path& path, TuningFormat format, Reading reading)
{
    name_ = toUtf8(path.filename().string());
    errorString_.clear();
    try {
        const auto bytes = readFile(path);
        // Diagnostics keep their texts: see docs/decisions.md, 125.
        logger("tuning").debug("TUNING {}", name_);
        if (format == TuningFormat::Frequencies ||
            (format == TuningFormat::Scale && reading == Reading::Plain))
            readPlainly(bytes, format);
        else
            readMusically(bytes, format);
        path_ = path;
        return true;
    } catch (const FormatError& error) {
        errorString_ = error.inFile(name_);
    } catch (const std::bad_alloc&) {
        errorString_ = name_ + ": not enough memory to read the file";
    }
    return false;
}

void TuningDocument::readPlainly(std::span<const std::byte> bytes, TuningFormat format)
{
    temperament_ = std::make_unique<Temperament>(readTuning(bytes, format));
    description_ = readTuningDescription(bytes, format);
    warning_.clear();
    if (format != TuningFormat::Scale)
        return;
    try {
        constexpr double kWanted = 1200.0, kSame = 0.01;
        const double period = readScale(bytes).period();
        if (std::abs(period - kWanted) > kSame)
            warning_ = FormatError("the scale repeats after " + std::to_string(period) +
                                   " cents, but the plain reading repeats it after an octave")
                           .inFile(name_);
    } catch (const FormatError&) { // NOLINT(bugprone-empty-catch)
        // Only the plain reading can read it.
    }
}

void TuningDocument::readMusically(std::span<const std::byte> bytes, TuningFormat format)
{
    if (format == TuningFormat::KeyTunings) {
        const KeyTunings tunings = readKeyTunings(bytes);
        temperament_ = makeTemperament(tunings.hertz);
        description_ = tunings.name;
    } else {
        auto [scale, mapping] = format == TuningFormat::Scale ? MappedScale{readScale(bytes), {}}
                                                              : readExtendedScale(bytes);
        temperament_ = std::make_unique<ScaleTemperament>(scale, mapping);
        description_ = scale.description;
    }
    warning_.clear();
}

std::unique_ptr<TuningDocument> TuningDocument::withMapping(const std::filesystem::path& file) const
{
    const Temperament& unmapped = unmapped_ ? *unmapped_ : *temperament_;
    auto copy = std::make_unique<TuningDocument>(name_, description_, unmapped.fresh());
    copy->original_ = original_;
    copy->path_ = path_;
    copy->warning_ = warning_;
    copy->received_ = received_;
    if (file.empty())
        return copy;
    const std::string fileName = toUtf8(file.filename().string());
    try {
        const auto shape = shapeOf(unmapped);
        if (!shape)
            throw FormatError("a keyboard mapping needs a scale, and this tuning has none");
        copy->temperament_ =
            std::make_unique<ScaleTemperament>(shape->scale, readMapping(readFile(file)));
        copy->unmapped_ = unmapped.fresh();
        copy->mappingPath_ = file;
    } catch (const FormatError& error) {
        copy->errorString_ = error.inFile(fileName);
    } catch (const std::bad_alloc&) {
        copy->errorString_ = fileName + ": not enough memory to read the file";
    }
    return copy;
}

} // namespace velmora
