#pragma once

#include <string>

namespace velmora {

/// Shows progress on standard error, if that is a terminal.
class ProgressLine {
public:
    /// `what` names the work, as in "Rendering".
    explicit ProgressLine(std::string what);
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// Shows the part that is done, from 0 to 1.
    void show(double done);

private:
    std::string what_;
    bool isTerminal_;
    int shown_ = -1;
};

} // namespace velmora
