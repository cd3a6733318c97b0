#include "tuning/TuningDocument.h"

#include "base/File.h"
#include "base/FormatError.h"
#include "base/Log.h"
#include "base/Text.h"
#include "tuning/DynamicTemperament.h"
#include "tuning/TuningFile.h"

#include <new>

namespace velmora {

TuningDocument::TuningDocument() : temperament_(std::make_unique<Temperament>()) {}

std::unique_ptr<TuningDocument> TuningDocument::initBuiltin(const std::string& name)
{
    auto document = std::make_unique<TuningDocument>();
    document->name_ = name;
    if (name == "Dynamic")
        document->temperament_ = std::make_unique<DynamicTemperament>();
    else if (name == "Equal")
        *document->temperament_ = Temperament::Equal();
    else
        *document->temperament_ = Temperament::Meantone();
    return document;
}

std::string TuningDocument::typeOf(const std::filesystem::path& path)
{
    const std::string extension = lowerCase(path.extension().string());
    if (extension == ".mtx")
        return std::string(kFrequencyType);
    return extension == ".scl" ? "Scale" : "";
}

bool TuningDocument::readFromURL(const std::filesystem::path& path, std::string_view type)
{
    const auto format = type == kFrequencyType ? TuningFormat::Frequencies : TuningFormat::Scale;
    name_ = path.filename().string();
    errorString_.clear();
    try {
        const auto bytes = readFile(path);
        logger("tuning").info("TUNING {}", name_);
        temperament_ = std::make_unique<Temperament>(readTuning(bytes, format));
        return true;
    } catch (const FormatError& error) {
        errorString_ = error.inFile(name_);
    } catch (const std::bad_alloc&) {
        errorString_ = name_ + ": is too large to be read into memory";
    }
    return false;
}

} // namespace velmora
