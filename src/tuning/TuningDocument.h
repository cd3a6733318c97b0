#pragma once

#include "tuning/Temperament.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace velmora {

/// A temperament and its display name: built in, or read from a tuning file.
class TuningDocument {
public:
    /// The document type of the frequency format; every other type is read as a scale.
    static constexpr std::string_view kFrequencyType = "MTX";

    /// The type of file that the extension stands for, in any letter case: "Scale" (.scl) or
    /// `kFrequencyType` (.mtx). Empty for any other extension.
    static std::string typeOf(const std::filesystem::path& path);

    /// A document without tunings, to be read from a file.
    TuningDocument();

    /// "Equal", "Dynamic", or quarter-comma meantone under any other name.
    static std::unique_ptr<TuningDocument> initBuiltin(const std::string& name);

    /// Reads a tuning file of twelve notes: a Scala scale (a description, the count 12, eleven
    /// pitches in cents or as ratios, the octave) or, for the type "MTX", a base frequency and
    /// eleven frequencies in hertz, B being the base an octave up. A whole number is cents. False
    /// when it is no such file: `errorString` then says why, and the temperament stays as it was.
    bool readFromURL(const std::filesystem::path& path, std::string_view type);

    /// What is wrong with the file that could not be read, in one sentence.
    const std::string& errorString() const { return errorString_; }

    Temperament& getTemperament() const { return *temperament_; }
    const std::string& getName() const { return name_; }

private:
    std::string name_;
    std::unique_ptr<Temperament> temperament_;
    std::string errorString_;
};

} // namespace velmora
