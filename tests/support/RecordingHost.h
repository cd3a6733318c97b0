#pragma once

#include "import/InstrumentHost.h"

#include <string>
#include <vector>

namespace velmora {

/// Records the progress of an import and cancels it after `cancelAfter` updates.
class RecordingHost : public InstrumentHost {
public:
    explicit RecordingHost(std::size_t cancelAfter = SIZE_MAX) : cancelAfter_(cancelAfter) {}

    void startProgress(long steps) override { calls.push_back("start " + std::to_string(steps)); }

    void updateProgress(unsigned steps, const std::string& text) override
    {
        calls.push_back(std::to_string(steps) + " " + text);
    }

    bool isCancelled() const override { return calls.size() > cancelAfter_; }

    std::vector<std::string> calls;

private:
    std::size_t cancelAfter_;
};

} // namespace velmora
