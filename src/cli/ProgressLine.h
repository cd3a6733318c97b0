#pragma once

#include <string>

namespace velmora {

/// Shows how much is done on standard error, where that is a terminal.
class ProgressLine {
public:
    explicit ProgressLine(std::string what);
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// `done` ranges from 0 to 1.
    void show(double done);

private:
    std::string what_;
    bool isTerminal_;
    int shown_ = -1;
};

} // namespace velmora
