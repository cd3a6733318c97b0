#pragma once

#include <string>

namespace velmora {

/// What importing asks of the application: to show how far it is, and whether the user has had
/// enough. Called on the thread that imports.
class InstrumentHost {
public:
    virtual ~InstrumentHost() = default;

    /// An import of that many steps begins.
    virtual void startProgress(long steps) = 0;

    /// So many more steps are done; the text says what the last one was. 0 steps change nothing.
    virtual void updateProgress(unsigned steps, const std::string& text) = 0;

    /// Whether the import is to be given up. Asked between one file or sample and the next.
    virtual bool isCancelled() const = 0;
};

} // namespace velmora
