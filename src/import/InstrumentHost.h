#pragma once

#include <string>

namespace velmora {

/// The application as importers see it: shows their progress and can cancel them. Called on the
/// thread that imports.
class InstrumentHost {
public:
    virtual ~InstrumentHost() = default;

    /// An import of `steps` steps starts.
    virtual void startProgress(long steps) = 0;

    /// Another `steps` steps are done. `text` names the last one.
    virtual void updateProgress(unsigned steps, const std::string& text) = 0;

    /// Returns whether to stop the import. Called before each file or sample.
    virtual bool isCancelled() const = 0;

    /// Returns whether an instrument may be handed over while a part of it is still being loaded.
    virtual bool loadsInBackground() const { return false; }

    /// Returns whether recordings whose pitch is not given are measured in the musical reading.
    virtual bool correctsTuning() const { return true; }
};

} // namespace velmora
