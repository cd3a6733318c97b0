#pragma once

#include "midi/MidiFileEvents.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace velmora {

/// What changes in a file besides its notes: events that are left out, and events that are added.
class FileEdits {
public:
    /// An event that is added before those that the file has at its time.
    struct Added {
        std::size_t track;
        double step;
        std::uint8_t status;
        std::string data; ///< What follows the status.
    };

    /// Leaves out the events for which `isDropped` is true. It is not asked about notes.
    void drop(std::function<bool(const FileEvent&)> isDropped)
    {
        drops_.push_back(std::move(isDropped));
    }

    void add(Added event) { added_.push_back(std::move(event)); }

    /// Adds a meta event. `data` is what follows its type and length.
    void addMeta(std::size_t track, double step, std::uint8_t type, const std::string& data);

    bool drops(const FileEvent& event) const;

    /// The added events; those of one step in the order in which they are written.
    const std::vector<Added>& added() const { return added_; }

private:
    std::vector<std::function<bool(const FileEvent&)>> drops_;
    std::vector<Added> added_;
};

} // namespace velmora
