#pragma once

/// As long as it lives, Ctrl-C and a request to terminate are noted instead of ending the program,
/// so that it can tidy up. There is one at a time.
class Interruption {
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    /// Whether it has come to that.
    bool requested() const;
};
