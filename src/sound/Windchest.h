#pragma once

#include <cstddef>

namespace velmora {

/// The pipes that a console plays. Ranks and divisions are numbered as in the console's definition,
/// and pipes by the MIDI keys under which their ranks have them.
class Windchest {
public:
    virtual ~Windchest() = default;

    /// Starts a pipe that does not speak. Does nothing if there is none.
    virtual void startPipe(std::size_t rank, int key, float velocity, float gain) = 0;

    /// Ends a pipe. Does nothing if there is none.
    virtual void stopPipe(std::size_t rank, int key) = 0;

    /// Opens the swell of a division, from 0 for closed to 1 for open.
    virtual void openSwell(std::size_t division, float opening) = 0;
};

} // namespace velmora
