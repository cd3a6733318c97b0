#pragma once

#include "sound/ConsoleDefinition.h"
#include "sound/ConsoleState.h"
#include "sound/Windchest.h"
#include "sound/keys.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace velmora {

/// The console of an organ: knows which keys are held and what is drawn, and plays the pipes that
/// follow from both. A pipe that several stops or couplers ask for speaks once, until the last of
/// them lets it go. A coupler plays the stops of a division, but not the couplers of that division.
/// See docs/decisions.md, 160.
///
/// Not thread-safe. Only the constructor allocates memory. Stops, couplers and divisions are
/// numbered as in the definition; a number beyond it is ignored.
class Console {
public:
    /// Draws what the definition says. Every position in the definition must exist, except those of
    /// ranks from `ranks` on, which are silent. `chest` must outlive the console.
    Console(ConsoleDefinition definition, std::size_t ranks, Windchest& chest);

    const ConsoleDefinition& definition() const { return definition_; }

    /// Presses a key of a division. A key that is held already or is not on the manual is ignored.
    void press(std::size_t division, int key, float velocity);

    /// Releases a key of a division. Does nothing if it is not held.
    void release(std::size_t division, int key);

    /// Forgets the held keys, after the pipes have been silenced.
    void forgetKeys();

    /// Draws a stop or pushes it in. Keys that are held start or end to sound.
    void draw(std::size_t stop, bool isDrawn);
    void drawCoupler(std::size_t coupler, bool isDrawn);
    bool isDrawn(std::size_t stop) const;

    /// Sets the gain, 0…1, of the pipes that a stop starts from now on.
    void setGain(std::size_t stop, float gain);

    /// Starts the pipes of a rank that held keys ask for, after it was added to the chest.
    void startRank(std::size_t rank);

    /// Opens the swell of a division, from 0 for closed to 1 for open.
    void openSwell(std::size_t division, float opening);

    /// Draws exactly what a registration says. What it says nothing about is pushed in.
    void recall(const Registration& registration);

    /// Pushes in every stop and coupler.
    void cancel();

    /// Draws every stop and every coupler at unison pitch, or returns to what was drawn before.
    void setTutti(bool isTutti);

    /// True from `setTutti` until it is ended, or until another registration is recalled.
    bool isTutti() const { return isTutti_; }

    const ConsoleState& state() const { return state_; }

    /// Restores a state, as far as it fits this console.
    void setState(const ConsoleState& state);

private:
    /// A pipe, by its place among the pipes of all ranks.
    using Pipe = std::uint32_t;

    /// The pipes of a stop, in the order of the keys that play them.
    struct Trackers {
        std::vector<Pipe> pipes;
        std::array<std::uint32_t, kKeys + 1> begins{}; ///< Where the pipes of each key begin.
    };

    struct Manual {
        std::bitset<kKeys> held;
        std::array<float, kKeys> velocities{};
        std::vector<std::size_t> stops, couplers; ///< Those that its keys can play.
    };

    void connectPipes(std::size_t ranks);
    template <class Use> void forEachRoute(std::size_t division, int key, Use use) const;
    template <class Use> void forEachHeldKey(const Manual& manual, Use use) const;
    void change(std::size_t division, int key, float velocity, bool starts);
    void change(std::size_t stop, std::size_t key, float velocity, bool starts);
    void changeAll(bool starts);
    void restore(const Registration& registration);

    ConsoleDefinition definition_;
    Windchest& chest_;
    ConsoleState state_;
    Registration beforeTutti_;
    Registration none_, all_;
    Registration scratch_; ///< Of the size of this console.
    bool isTutti_ = false;
    std::vector<Manual> manuals_;       ///< By division.
    std::vector<Trackers> trackers_;    ///< By stop.
    std::vector<std::uint16_t> wanted_; ///< By pipe: how many routes from held keys lead to it.
};

} // namespace velmora
